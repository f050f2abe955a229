// Unpacking, of good archives and of such as somebody has made on purpose; and large files on the disk.

#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <set>

#include "desktop/adapters/DiskBinaryFiles.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/ZipUnzipLibrary.h"
#include "sandbox/ZipWriter.h"
#include "support/BinaryFilesContract.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;
using sandbox::ZipEntry;
using sandbox::zipOf;

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct RealBinaryFilesPeer {
  BinaryFiles& disk() { return binary; }
  std::string folder() const { return dir.path().toStdString(); }
  static std::string content(const std::string& path) { return contentOf(path); }

  QTemporaryDir dir;
  DiskBinaryFiles binary;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, BinaryFilesContract, RealBinaryFilesPeer);

struct UnzipTest : testing::Test {
  UnzipTest() {
    fs::create_directories(top + "/up/maps");
    options.zipFile = top + "/a.zip";
    options.unzipFolder = top + "/up/maps";
  }
  void write(const std::string& bytes) const { std::ofstream(options.zipFile, std::ios::binary) << bytes; }
  UnzipResult unzip(const std::vector<ZipEntry>& entries) {
    write(zipOf(entries));
    return run();
  }
  UnzipResult run(const UnzipCallbacks& callbacks = {}) { return library.unzip({}, {}, options, callbacks); }
  // Every file below the top, but for the archive, with what is in it: "up/maps/a=1 ".
  std::string disk() const {
    std::set<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
      if (!entry.is_directory() && entry.path() != options.zipFile) {
        files.insert(entry.path().string().substr(top.size() + 1) + "=" + contentOf(entry.path()));
      }
    }
    std::string all;
    for (const std::string& file : files) {
      all += file + " ";
    }
    return all;
  }

  QTemporaryDir dir;
  std::string top = dir.path().toStdString();
  QtLoop loop;
  ZipUnzipLibrary library{loop};
  UnzipOptions options;
};

TEST_F(UnzipTest, members_land_in_the_folder_and_nothing_is_written_over) {
  std::ofstream(options.unzipFolder + "/B.map") << "mine";
  EXPECT_EQ(unzip({{.name = "x/a.map", .bytes = "1"},
                   {.name = "b.map", .bytes = "2"},
                   {.name = "x/", .bytes = ""},
                   {.name = "empty.txt", .bytes = ""}})
                .code,
            0);
  EXPECT_EQ(disk(), "up/maps/B.map=mine up/maps/a.map=1 up/maps/empty.txt= ");
  EXPECT_EQ(fs::status(options.unzipFolder + "/a.map").permissions() & fs::perms::owner_write, fs::perms::owner_write);
}

TEST_F(UnzipTest, options_do_what_they_say) {
  const std::vector<ZipEntry> entries = {{.name = "x y/a b.txt", .bytes = "1\n2\r\n"}};
  options.useFolderNames = options.spaceToUnderscore = options.convertCrToCrLf = true;
  EXPECT_EQ(unzip(entries).code, 0);
  EXPECT_EQ(disk(), "up/maps/x_y/a_b.txt=1\r\n2\r\n ");
  options = {.zipFile = options.zipFile, .unzipFolder = options.unzipFolder};
  options.testZip = true;
  EXPECT_EQ(run().code, 0);
  options.testZip = false;
  std::ofstream(options.unzipFolder + "/a b.txt") << "old";
  options.promptToOverwrite = true;
  std::string asked;
  UnzipCallbacks callbacks;
  callbacks.replace = [&asked](const std::string& name) {
    asked = name;
    return ReplaceAnswer::no;
  };
  run(callbacks);
  EXPECT_EQ(asked, "x y/a b.txt");
  EXPECT_EQ(contentOf(options.unzipFolder + "/a b.txt"), "old");
  options.overwriteExisting = options.extractOnlyNewer = true;
  run();
  EXPECT_EQ(contentOf(options.unzipFolder + "/a b.txt"), "old") << "it is the newer one";
  options.extractOnlyNewer = false;
  run();
  EXPECT_EQ(contentOf(options.unzipFolder + "/a b.txt"), "1\n2\r\n");
  std::string listed;
  callbacks.message = [&listed](const UnzipMember& member) {
    listed += member.folder + "|" + member.name + "|" + std::to_string(member.size) + "|" + member.method;
  };
  options.list = true;
  run(callbacks);
  EXPECT_EQ(listed, "x y|a b.txt|5|Stored");
  EXPECT_EQ(library.unzip({"none"}, {}, options, {}).problem, "The archive: it has none of the members asked for.");
}

TEST_F(UnzipTest, hostile_members_are_left_out_and_told_of_and_the_others_arrive) {
  const std::string good = "up/maps/good.map=g ";
  struct {
    ZipEntry entry;
    std::string also;  // that may lie there
    std::string problem;
  } const cases[] = {
      {{.name = "../../evil"}, "up/maps/evil=e ", ""},
      {{.name = "/tmp/evil"}, "up/maps/evil=e ", ""},
      {{.name = "C:\\evil"}, "up/maps/evil=e ", ""},
      {{.name = "..\\evil"}, "up/maps/evil=e ", ""},
      {{.name = "x/.."}, "", "\"x/..\": its name stands for a folder."},
      {{.name = "."}, "", "\".\": its name stands for a folder."},
      {{.name = ""}, "", "\"\": it has no name."},
      {{.name = "NUL.map"}, "", "\"NUL.map\": its name is a device of Windows."},
      {{.name = "com1"}, "", "\"com1\": its name is a device of Windows."},
      {{.name = "a:b"}, "up/maps/b=e ", ""},
      {{.name = "evil."}, "", "\"evil.\": its name is none that Windows allows."},
      {{.name = "a\nb"}, "", "\"a?b\": its name has control characters."},
      {{.name = std::string(300, 'n')}, "", "\"" + std::string(100, 'n') + "...\": its name is too long."},
      {{.name = "GOOD.MAP"}, "", "\"GOOD.MAP\": another member has its name."},
      {{.name = "evil", .isLink = true}, "", "\"evil\": it is a link."},
      {{.name = "evil", .hasWrongCrc = true}, "", "\"evil\": it is damaged (its CRC is wrong)."},
      {{.name = "evil", .toldSize = 9}, "", "\"evil\": it is damaged."},
      {{.name = "evil", .isEncrypted = true}, "", "\"evil\": it is encrypted."},
  };
  for (const auto& c : cases) {
    fs::remove_all(options.unzipFolder);
    fs::create_directories(options.unzipFolder);
    ZipEntry entry = c.entry;
    entry.bytes = entry.isEncrypted ? std::string(20, 'e') : "e";
    const UnzipResult result = unzip({{.name = "good.map", .bytes = "g"}, entry, {.name = "last", .bytes = "l"}});
    std::string wanted = c.also < good ? c.also + good : good + c.also;
    EXPECT_EQ(disk(), wanted + "up/maps/last=l ") << entry.name;
    EXPECT_EQ(result.problem, c.problem) << entry.name;
    EXPECT_EQ(result.code == 0, c.problem.empty());
  }
}

TEST_F(UnzipTest, nothing_leads_out_of_the_folder_with_folders_either) {
  options.useFolderNames = true;
  fs::create_directory_symlink(top, options.unzipFolder + "/way");
  unzip({{.name = "../evil", .bytes = "e"},
         {.name = "/evil", .bytes = "e"},
         {.name = "C:/evil", .bytes = "e"},
         {.name = "way/evil", .bytes = "e"},
         {.name = "a/../../evil", .bytes = "e"},
         {.name = "a/b.map", .bytes = "g"}});
  EXPECT_EQ(contentOf(options.unzipFolder + "/a/b.map"), "g");
  EXPECT_FALSE(fs::exists(top + "/evil") || fs::exists(top + "/up/evil") || fs::exists("/evil"));
}

TEST_F(UnzipTest, an_archive_that_is_none_or_has_no_room_changes_nothing) {
  const std::string whole = zipOf({{.name = "a.map", .bytes = std::string(5000, 'a')}});
  struct {
    std::string bytes;
    std::string problem;
  } const cases[] = {
      {"", "The archive: it is no whole zip archive."},
      {"nonsense", "The archive: it is no whole zip archive."},
      {whole.substr(0, 3000), "The archive: it is no whole zip archive."},
      {whole.substr(2000), "The archive: it is no whole zip archive."},
      {zipOf({{.name = "bomb", .bytes = "b", .toldSize = 4'000'000'000}}),
       "The archive: it would unpack to more than a hundred times its size."},
  };
  for (const auto& c : cases) {
    write(c.bytes);
    const UnzipResult result = run();
    EXPECT_NE(result.code, 0);
    if (c.bytes.size() != 3148) {
      EXPECT_EQ(result.problem, c.problem) << c.bytes.size();
    }
    EXPECT_EQ(disk(), "");
  }
  fs::remove(options.zipFile);
  EXPECT_EQ(run().problem, "The archive: it cannot be opened.");
  write(whole);
  options.unzipFolder += "/none";
  EXPECT_TRUE(run().problem.starts_with("The archive: the folder ")) << run().problem;
}

TEST_F(UnzipTest, ten_thousand_members_arrive_and_events_run_meanwhile) {
  std::vector<ZipEntry> entries;
  for (int i = 0; i < 10000; ++i) {
    entries.push_back({.name = std::to_string(i) + ".map", .bytes = "m"});
  }
  int turns = 0;
  const TimerId timer = loop.startTimer(5, TimerKind::repeating, [&turns] { ++turns; });
  EXPECT_EQ(unzip(entries).code, 0);
  loop.stopTimer(timer);
  EXPECT_EQ(std::distance(fs::directory_iterator(options.unzipFolder), {}), 10000);
  EXPECT_GT(turns, 2);
}

TEST_F(UnzipTest, a_run_that_is_stopped_leaves_nothing_half_written_and_none_begins_during_another) {
  UnzipCallbacks callbacks;
  int members = 0;
  callbacks.service = [&](const std::string& /*name*/, std::uint32_t /*size*/) {
    EXPECT_EQ(run().problem, "Another archive is being unpacked.");
    return ++members == 2;
  };
  std::ofstream(options.unzipFolder + "/.vantrel-abcdef.part") << "left by one that was killed";
  write(zipOf({{.name = "a", .bytes = "1"}, {.name = "b", .bytes = "2"}, {.name = "c", .bytes = "3"}}));
  EXPECT_EQ(run(callbacks).problem, "\"b\": it was stopped.");
  EXPECT_EQ(disk(), "up/maps/a=1 ");
}

}  // namespace
}  // namespace vantrel
