// Getting into the game: the check before a launch, the game's command line, its end, and the tools.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

struct JoinTest : testing::Test, World {
  JoinTest() {
    mainWindow.txtIP.text.set("192.0.2.1");
    mainWindow.txtPort.text.set("2302");
    mainWindow.txtHaloPath.text.set("/Games/Halo");
    for (const char* const folderPath : {"/games", "/games/halo", "/app/plugins"}) {
      files.makeFolder(folderPath);
    }
    files.changeOutside("/games/halo/HaloCE.exe", "");
  }
  void answerCheck(const std::string& bytes) {
    wsPass.receive(0, {bytes, "192.0.2.1", 2302});
    loop.wait(0);
  }
  void launchAndAnswer(const std::string& bytes = statusReply("Fun")) {
    commands.clickIt(18);
    answerCheck(bytes);
  }
  std::string checks() const {
    std::string all;
    for (const std::string& line : network.log) {
      all += line.substr(line.find(' ') + 1) + ";";
    }
    return all;
  }
};

TEST_F(JoinTest, a_launch_asks_the_server_and_its_reply_starts_the_game_in_its_folder_with_high_priority) {
  buddies.visible.set(true);
  commands.clickIt(18);
  EXPECT_EQ(checks(), "192.0.2.1:2302 > \\;");
  EXPECT_EQ(buddies.windowState.get(), WindowState::minimized);
  EXPECT_TRUE(processes.starts.empty());
  answerCheck(statusReply("Fun"));
  ASSERT_EQ(processes.starts.size(), 1u);
  EXPECT_EQ(processes.starts[0].application, "/games/halo/HaloCE.exe");
  EXPECT_EQ(processes.starts[0].directory, "/Games/Halo/");
  EXPECT_EQ(processes.starts[0].priority, ProcessPriority::high);
  EXPECT_EQ(processes.starts[0].commandLine, "       -connect 192.0.2.1:2302");
  EXPECT_EQ(notices.told(), "Joining: Fun");
  EXPECT_NE(mainWindow.lblProcess.caption.get(), "");
}

TEST_F(JoinTest, the_command_line_has_its_pieces_in_one_order) {
  mainWindow.myFaves1.add({"CTF", "", "192.0.2.1:2302", "without"});
  mainWindow.myFaves1.add({"CTF", "zero", "192.0.2.1:02302", "other"});
  mainWindow.myFaves1.add({"CTF", "my \"word\"", "192.0.2.1:2302", "this"});
  for (std::size_t box = 0; box < 4; ++box) {
    mainWindow.chkOptions[box].value.set(1);
  }
  mainWindow.cmbVid.text.set("  -use11 -nojoystick ");
  mainWindow.myFaves1.select(1);
  launchAndAnswer("\\hostname\\Fun\\password\\2\\password");
  launchAndAnswer("\\hostname\\Fun\\password\\1\\numplayers\\3");
  ASSERT_EQ(processes.starts.size(), 2u);
  const std::string switches = " -console -screenshot -novideo -nojoystick ";
  EXPECT_EQ(processes.starts[0].commandLine, switches + " -use11 -nojoystick -connect 192.0.2.1:2302");
  EXPECT_EQ(processes.starts[1].commandLine,
            switches + "-password my \"word\"  -use11 -nojoystick -connect 192.0.2.1:2302");
  EXPECT_EQ(mainWindow.myFaves1.selected(), 1);
}

TEST_F(JoinTest, a_launch_that_cannot_be_says_why) {
  mainWindow.txtPort.text.set("");
  commands.clickIt(18);
  EXPECT_EQ(notices.told() + checks(), "");
  mainWindow.txtPort.text.set("port");
  commands.clickIt(18);
  EXPECT_EQ(notices.told() + checks(), "Error # 13 Type mismatch");
  mainWindow.txtPort.text.set("2302");
  processes.fails = failures::fileNotFound();
  launchAndAnswer();
  EXPECT_EQ(notices.told(), "Joining: Fun\nUnable to launch game \r\nDirectory: /Games/Halo/\r\nExe: haloce.exe");
  EXPECT_FALSE(mainWindow.tmrRunning.enabled());
  mainWindow.txtHaloPath.text.set("Not Found");
  launchAndAnswer();
  EXPECT_EQ(notices.told(), "Please go to Settings, and locate HaloCE.exe");
  mainWindow.txtIP.text.set("");
  commands.clickIt(18);
  EXPECT_EQ(notices.told(), "Please select a server to join.");
}

TEST_F(JoinTest, one_launch_starts_one_game_and_a_datagram_that_nobody_asked_for_none) {
  answerCheck(statusReply("Stranger"));
  EXPECT_TRUE(processes.starts.empty());
  commands.clickIt(18);
  commands.clickIt(18);
  answerCheck("no reply at all");
  answerCheck(statusReply("Fun"));
  EXPECT_EQ(processes.starts.size(), 1u);
}

TEST_F(JoinTest, a_server_that_refuses_is_joined_all_the_same_without_a_word_of_it_to_others) {
  dde.clientRuns = true;
  mainWindow.chkOptions[5].value.set(1);
  mainWindow.cmdMenu[10].value.set(1);
  network.servers["192.0.2.1:2302"].refuses = true;
  network.servers["192.0.2.9:2302"].refuses = true;
  mainWindow.txtIP.text.set("192.0.2.9");
  commands.clickIt(18);
  mainWindow.txtIP.text.set(" 192.0.2.1 ");
  commands.clickIt(18);
  mainWindow.txtIP.text.set("192.0.2.1");
  loop.wait(10);
  ASSERT_EQ(processes.starts.size(), 1u);
  EXPECT_EQ(processes.starts[0].commandLine, "       -connect 192.0.2.1:2302");
  EXPECT_EQ(notices.told(), "Server may not be up anymore. Launching Halo CE.");
  EXPECT_EQ(mainWindow.cmdMenu[10].value.get(), 0);
  EXPECT_TRUE(dde.log.empty());
}

TEST_F(JoinTest, behind_the_game_the_user_is_welcomed_back_and_the_windows_return) {
  buddies.visible.set(true);
  launchAndAnswer();
  launchAndAnswer();
  const GameProcess second = processes.started.back();
  mainWindow.windowState.set(WindowState::minimized);
  notices.told();
  loop.wait(10000);
  EXPECT_EQ(notices.told(), "");
  EXPECT_EQ(processes.openHandles(), 2);
  processes.end(second.process);
  loop.wait(2000);
  EXPECT_EQ(notices.told(), "Welcome back.");
  EXPECT_EQ(mainWindow.windowState.get(), WindowState::normal);
  EXPECT_EQ(buddies.windowState.get(), WindowState::normal);
  EXPECT_EQ(mainWindow.lblProcess.caption.get() + mainWindow.lblThreadID.caption.get(), "");
  EXPECT_EQ(processes.openHandles(), 0);
  loop.wait(10000);
  EXPECT_EQ(notices.told(), "");
}

TEST_F(JoinTest, a_channel_hears_of_the_join_and_of_the_return_when_the_user_wants_it) {
  dde.clientRuns = true;
  mainWindow.mircChan.text.set(" #ha\r\nlo ");
  launchAndAnswer();
  EXPECT_TRUE(dde.log.empty());
  mainWindow.chkOptions[5].value.set(1);
  launchAndAnswer("\\hostname\\Fu\r\n/quit\x03n\\numplayers\\0");
  processes.end(processes.started.back().process);
  loop.wait(2000);
  const std::string joined =
      "/msg #halo \x03"
      "2,0 I have joined Halo CE: Fu/quitn SERVER: halo://192.0.2.1:2302/join -=] Vantrel CE 1.2 "
      "http://www.example.test/ [=-";
  const std::string back =
      "/msg #halo \x03"
      "2,0 I am back from playing Halo CE. -=] Vantrel CE 1.2 http://www.example.test/ [=-";
  const std::vector<std::string> told = {"open mirc|command", "poke " + joined + " " + joined, "close",
                                         "open mirc|command", "poke " + back + " " + back,     "close"};
  EXPECT_EQ(dde.log, told);
}

TEST_F(JoinTest, auto_refresh_asks_while_a_detail_page_is_on_show) {
  commands.clickIt(30);
  commands.clickIt(12);
  loop.wait(5000);
  commands.clickIt(16);
  loop.wait(10000);
  commands.clickIt(3);
  loop.wait(5000);
  EXPECT_EQ(wsHaloData.sent, 3);
}

TEST_F(JoinTest, the_tools_are_the_programs_of_their_folder_and_each_is_started_in_it) {
  for (const char* const name : {"b.exe", "A.EXE", "notes.txt", "script"}) {
    files.changeOutside(std::string("/app/plugins/") + name, "");
  }
  files.programs.insert("/app/plugins/script");
  tools.LoadTools();
  FileListBox& list = mainWindow.lstApps;
  ASSERT_EQ(list.files.count(), 3);
  EXPECT_EQ(list.files.line(0) + list.files.line(1) + list.files.line(2), "A.EXEb.exescript");
  commands.clickIt(37);
  EXPECT_EQ(mainWindow.windowState.get(), WindowState::normal);
  list.files.select(2);
  list.clicked.fire();
  commands.clickIt(37);
  processes.fails = failures::fileNotFound();
  commands.clickIt(37);
  ASSERT_EQ(processes.starts.size(), 2u);
  EXPECT_EQ(
      processes.starts[0].application + "|" + processes.starts[0].commandLine + "|" + processes.starts[0].directory,
      "/app/plugins/script|1.00|/app/plugins/");
  EXPECT_EQ(notices.told(), "Unable to launch plugin \r\nDirectory: /app/plugins/\r\nExe: script");
  EXPECT_EQ(mainWindow.windowState.get(), WindowState::minimized);
  EXPECT_EQ(processes.openHandles(), 0);
}

TEST_F(JoinTest, without_their_folder_there_are_no_tools) {
  World bare;
  bare.tools.LoadTools();
  EXPECT_EQ(bare.mainWindow.lblText2[9].caption.get(), "Plugins folder not available");
  EXPECT_FALSE(bare.mainWindow.cmdMenu[37].enabled.get());
}

}  // namespace
}  // namespace vantrel
