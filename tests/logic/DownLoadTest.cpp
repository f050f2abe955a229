// The download of one file: what it tells, in which order, and what is on the disk afterwards.

#include <gtest/gtest.h>

#include "maps/DownloadFormats.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct DownLoadTest : testing::Test, World {
  DownLoadTest() {
    dl1.url = "http://m.test/a.zip";
    dl1.SaveLocation = "/app/a.tmp";
    heard.push_back(dl1.DLComplete.connect([this] { told += "complete\n"; }));
    heard.push_back(dl1.DLECode.connect([this](std::int32_t code) { told += std::to_string(code) + "\n"; }));
    heard.push_back(dl1.DLError.connect([this](const std::string& text) { told += "E " + text + "\n"; }));
    heard.push_back(dl1.StatusChange.connect([this](const std::string& text) {
      if (!text.starts_with("Recieving") && text != lastStatus) {
        told += text + "\n";
      }
      lastStatus = text;
    }));
    heard.push_back(dl1.RecievedBytes.connect([this](std::int32_t bytes) { received = bytes; }));
    heard.push_back(dl1.Percent.connect([this](std::int32_t percent) { percents += std::to_string(percent) + " "; }));
    heard.push_back(dl1.Rate.connect([this](const std::string& text) { rate = text; }));
    heard.push_back(dl1.TimeLeft.connect([this](const std::string& text) { left = text; }));
    heard.push_back(dl1.ConnectionState.connect([this](const std::string& text) { told += text + "\n"; }));
  }
  FakePage& page(const std::string& body) { return web.pages[dl1.url] = {.body = body}; }
  std::string onceTold() { return std::exchange(told, {}); }

  std::vector<Connection> heard;
  std::string told;
  std::string lastStatus;
  std::string percents;
  std::string rate;
  std::string left;
  std::int32_t received = 0;
};

const std::string asking = "Initiating Connection.\nConnection Accepted, Retrieving File Information.\n";

TEST_F(DownLoadTest, a_file_comes_chunk_by_chunk_and_each_step_is_told) {
  page(std::string(2048, 'x'));
  files.changeOutside("/app/a.tmp", std::string(5000, 'o'));
  dl1.GetFileInformation();
  EXPECT_EQ(onceTold(), asking + "Retrieving File Information Complete!\n");
  EXPECT_TRUE(dl1.FileExists() && dl1.AResume());
  EXPECT_EQ(dl1.FileSize(), 2048);
  bool during = false;
  heard.push_back(dl1.RecievedBytes.connect([&](std::int32_t /*bytes*/) { during = dl1.InDL(); }));
  dl1.StartDownLoad();
  EXPECT_EQ(onceTold(), "Opening /app/a.tmp For DATA Input.\ncomplete\nDownload Successful!\n");
  EXPECT_EQ(files.bytes("/app/a.tmp"), std::string(2048, 'x'));
  EXPECT_EQ(percents, "50 100 100 ");
  EXPECT_EQ(rate, "1.99 KB/S");
  EXPECT_EQ(left, "0 sec");
  EXPECT_TRUE(during);
  EXPECT_FALSE(dl1.InDL());
}

TEST_F(DownLoadTest, what_the_server_answers_decides) {
  struct {
    const char* status = nullptr;
    std::optional<std::string> length;
    const char* wanted = nullptr;
    int size = 0;
    bool exists = false;
  } const cases[] = {
      {"HTTP/1.1 401 No", {}, "Unauthorized Access, Download Terminated!\n401\nE Unauthorized Access!\n", 0, true},
      {"HTTP/1.1 403 No", {}, "Access Denied, Download Terminated!\n403\nE Access Denied!\n", 0, true},
      {"HTTP/1.1 404 No", {}, "E File Not Found!\nFile Not Found!\n2\n", 0, false},
      {"HTTP/1.0 500 Oh", {}, "Retrieving File Information Complete!\n", 4, true},
      {"HTTP/1.1 200 OK", "", "E Error Reading File Headers.\nError Reading File Headers!\n3\n", 7, true},
      {"HTTP/1.1 200 OK", "3000000000", "E Error Reading File Headers.\nError Reading File Headers!\n3\n", 7, true},
  };
  for (const auto& c : cases) {
    page("1234567");
    dl1.GetFileInformation();
    page("1234") = {.body = "1234", .status = c.status, .length = c.length};
    onceTold();
    dl1.GetFileInformation();
    EXPECT_EQ(onceTold(), asking + c.wanted);
    EXPECT_EQ(dl1.FileSize(), c.size) << c.status;
    EXPECT_EQ(dl1.FileExists(), c.exists) << c.status;
  }
  page("").hasHead = false;
  dl1.GetFileInformation();
  EXPECT_EQ(onceTold(), asking + "E Error Reading File Headers.\nError Reading File Headers!\n3\n");
}

TEST_F(DownLoadTest, a_transfer_that_breaks_keeps_what_came_and_a_body_that_is_short_ends_it) {
  const std::string failed =
      "E Error Downloading File from : http://m.test/a.zip\n"
      "Download Aborted Due To Error In Download!\n1\n";
  struct {
    FakePage page;
    const char* end = nullptr;
    std::size_t kept = 0;
  } const cases[] = {
      {{.body = std::string(3000, 'x'), .breaksAfter = 2048}, "1\n", 2048},
      {{.body = std::string(3000, 'x'), .length = "9000"}, "Download Successful!\n", 3000},
      {{.body = std::string(2049, 'x')}, "Download Successful!\n", 2049},
      {{.body = "", .length = "10"}, "1\n", 0},
      {{.body = "abc", .length = "0"}, "1\n", 3},
  };
  for (const auto& c : cases) {
    web.pages[dl1.url] = c.page;
    dl1.GetFileInformation();
    onceTold();
    dl1.StartDownLoad();
    const std::string end = onceTold();
    EXPECT_TRUE(end.ends_with(c.end)) << end;
    EXPECT_EQ(end.find(failed) != std::string::npos, std::string(c.end) == "1\n") << end;
    EXPECT_EQ(files.bytes("/app/a.tmp").size(), c.kept);
    EXPECT_FALSE(dl1.InDL());
  }
  page("abc");
  dl1.GetFileInformation();
  files.full = true;
  dl1.StartDownLoad();
  EXPECT_TRUE(told.ends_with("1\n")) << "the disk is full";
}

TEST_F(DownLoadTest, a_cancel_is_taken_up_wherever_it_comes) {
  page(std::string(50000, 'x')).headTime = 500;
  loop.at(30, [this] { dl1.Cancel(); });
  dl1.GetFileInformation();
  EXPECT_EQ(onceTold(),
            "Initiating Connection.\nCancelling..\nConnection Accepted, Retrieving File Information.\n"
            "4\ncancelled.\n");
  EXPECT_LT(loop.tickCount(), 100U);
  for (const int when : {5, 300}) {  // in the middle of the transfer, and of a pause
    page(std::string(50000, 'x'));
    dl1.GetFileInformation();
    onceTold();
    loop.at(loop.tickCount() + 10, [&] { dl1.Pause(when > 100); });
    loop.at(loop.tickCount() + static_cast<std::uint64_t>(when), [this] { dl1.Cancel(); });
    dl1.StartDownLoad();
    EXPECT_TRUE(told.ends_with("Cancelling..\n4\nCancelled.\n") ||
                told.ends_with("Cancelling..\nPaused.\n4\nCancelled.\n"))
        << told;
    EXPECT_FALSE(dl1.InDL() || dl1.CCancel() || dl1.CPause());
    EXPECT_LT(files.bytes("/app/a.tmp").size(), 50000U);
  }
  web.pages[dl1.url].stallsAfter = 4096;
  dl1.GetFileInformation();
  const std::uint64_t start = loop.tickCount();
  loop.at(start + 1000, [this] { dl1.Cancel(); });
  dl1.StartDownLoad();
  EXPECT_TRUE(told.ends_with("4\nCancelled.\n")) << told;
  EXPECT_LT(loop.tickCount() - start, 1100U);
  dl1.Cancel();
  onceTold();
  dl1.StartDownLoad();
  EXPECT_EQ(onceTold(), "") << "a cancel that is not taken up yet";
}

TEST_F(DownLoadTest, a_pause_holds_the_transfer_and_ends_with_the_program) {
  page(std::string(20000, 'x'));
  dl1.GetFileInformation();
  loop.at(loop.tickCount() + 3, [this] { dl1.Pause(true); });
  loop.at(loop.tickCount() + 5000, [this] { dl1.Pause(false); });
  const std::uint64_t start = loop.tickCount();
  dl1.StartDownLoad();
  EXPECT_GE(loop.tickCount() - start, 5000U);
  EXPECT_EQ(received, 20000);
  dl1.GetFileInformation();
  loop.at(loop.tickCount() + 3, [this] { dl1.Pause(true); });
  loop.at(loop.tickCount() + 50, [this] { loop.ends = true; });
  dl1.StartDownLoad();
  EXPECT_FALSE(dl1.InDL());
}

TEST_F(DownLoadTest, a_newer_request_ends_one_that_waits_without_a_word_of_it) {
  page("old").headTime = 1000;
  loop.at(50, [this] {
    dl1.url = "http://m.test/b.zip";
    page("new and longer");
    dl1.GetFileInformation();
  });
  dl1.GetFileInformation();
  EXPECT_EQ(dl1.FileSize(), 14);
  dl1.StartDownLoad();
  EXPECT_EQ(files.bytes("/app/a.tmp"), "new and longer");
  EXPECT_EQ(told.find("Error"), std::string::npos) << told;
}

TEST_F(DownLoadTest, what_is_missing_is_asked_for_behind_what_is_there) {
  page("abcdef");
  dl1.DLResume();
  EXPECT_EQ(onceTold(), "E Resume File Not Found!\n6\nResume File Not Found, Aborting Download!\n");
  files.changeOutside("/app/a.tmp", "abc");
  dl1.DLResume();
  EXPECT_EQ(onceTold(), "E Resume Not Supported!\n7\nResume NotSupported, Aborting Download!\n");
  dl1.GetFileInformation();
  page("def");
  dl1.DLResume();
  EXPECT_TRUE(web.asked.ends_with(" Range: bytes=3-\r\n"));
  EXPECT_EQ(files.bytes("/app/a.tmp"), "abcdef");
  EXPECT_EQ(received, 6);
}

TEST_F(DownLoadTest, a_file_that_is_there_is_replaced_only_as_the_user_wants) {
  page("new");
  dl1.PromptOverwrite = true;
  files.changeOutside("/app/a.tmp", "old");
  dl1.GetFileInformation();
  dialogs.answers = {"no", "", "seen", "/app/a.tmp", "yes", "/app/b.tmp"};
  dl1.StartDownLoad();
  EXPECT_EQ(files.bytes("/app/a.tmp") + files.bytes("/app/b.tmp"), "oldnew");
  EXPECT_EQ(dialogs.asked[0], "Overwrite?|Would you like to overwrite the file at: /app/a.tmp ?");
  EXPECT_EQ(dialogs.asked[1], "New File...|Please type in a new file path and name.\r\nExample: C:\\File2.txt");
  EXPECT_EQ(dialogs.asked[2], "Error!|You didn't specify a file!");
  EXPECT_EQ(dialogs.asked[4], "Try Again?|You typed in the same file! Would you like type in a different file?");
  dl1.GetFileInformation();
  dialogs.answers = {"no", "/app/a.tmp", "no"};
  dl1.StartDownLoad();
  EXPECT_EQ(files.bytes("/app/a.tmp"), "old");
  dl1.GetFileInformation();
  dialogs.answers = {"yes"};
  dl1.StartDownLoad();
  EXPECT_EQ(files.bytes("/app/a.tmp"), "new");
}

TEST_F(DownLoadTest, without_a_network_nothing_is_asked) {
  dl1.OnlineCheck = true;
  connectivity.state = {false, 0};
  dialogs.answers = {"seen"};
  dl1.GetFileInformation();
  EXPECT_EQ(dialogs.asked.back(), "|You are not currently connected to the internet!\r\nThe download will be aborted!");
  const std::string aborted = "5\nE No Connection Found!\nDownload aborted, no connection present!\n";
  EXPECT_EQ(onceTold(), aborted);
  dl1.StartDownLoad();
  EXPECT_EQ(onceTold(), "5\nE No Connection Found!\n") << "the same status is told once here";
  EXPECT_EQ(web.asked, "");
  page("x");
  connectivity.state = {true, 1 + 2 + 4};
  dl1.GetFileInformation();
  EXPECT_TRUE(told.starts_with("Connected Via Modem.\nConnected Via LAN.\nConnected Through A Proxy.\n")) << told;
}

TEST(DownloadFormats, rates_and_times_are_read_at_a_glance) {
  const std::pair<float, const char*> rates[] = {
      {0, "0 Bytes/S"},     {0.5F, "0 Bytes/S"},    {1.5F, "2 Bytes/S"}, {1023, "1023 Bytes/S"},
      {1023.5F, ""},        {1024, "1 KB/S"},       {1536, "1.5 KB/S"},  {1300, "1.27 KB/S"},
      {102400, "100 KB/S"}, {1048575, "1024 KB/S"}, {1048576, ""},       {-1, ""},
  };
  for (const auto& [rate, text] : rates) {
    EXPECT_EQ(FormatRate(rate), text) << rate;
  }
  const std::pair<float, const char*> times[] = {
      {0, "0 sec"},         {58.5F, "58 sec"},       {59, "59 sec"},          {59.5F, "0 hr 1 min"},
      {60, "1 min 0 sec"},  {119.6F, "1 min 0 sec"}, {3599, "59 min 59 sec"}, {3600, "1 hr 0 min"},
      {7290, "2 hr 2 min"},
  };
  for (const auto& [time, text] : times) {
    EXPECT_EQ(FormatTimeLeft(time), text) << time;
  }
  const char* const types[][3] = {
      {"http://m/a.zip", "C:\\brak.tmp", "C:\\brak.zip"},
      {"http://m/abcdefg", "a.tmp", "a.tmp"},
      {"http://m/a.zip", "archive", "archivezip"},
      {"http://m/a.tar.gz", "b.7z", "b.gz"},
      {"", "", ""},
  };
  for (const auto& [url, path, kept] : types) {
    EXPECT_EQ(KeepFileType(url, path), kept) << url;
  }
}

}  // namespace
}  // namespace vantrel
