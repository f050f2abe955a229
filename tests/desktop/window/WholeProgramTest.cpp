// The whole program with its real window, sockets and files, against a sandbox world on the loopback addresses.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QCheckBox>
#include <QEventLoop>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "app/Program.h"
#include "core/Text.h"
#include "desktop/text/Cp1252.h"
#include "sandbox/SandboxWorld.h"

namespace vantrel {
namespace {

using sandbox::FaultKind;

// Every test process has a master address of its own, so that they can run beside each other.
std::string ownMasterAddress() {
  const int id = ::getpid();
  return "127.42." + std::to_string(id / 250 % 250 + 1) + "." + std::to_string(id % 250 + 1);
}

sandbox::WorldSettings smallWorld() {
  sandbox::WorldSettings settings;
  settings.seed = 5;
  settings.servers = 60;
  settings.masterAddress = ownMasterAddress();
  settings.gamePort = 0;
  settings.latencyLow = std::chrono::milliseconds(0);
  settings.latencyHigh = std::chrono::milliseconds(60);
  settings.silentShare = 0.1;
  settings.closedShare = 0.2;
  return settings;
}

struct WholeProgram : ::testing::Test {
  explicit WholeProgram(const sandbox::WorldSettings& settings = smallWorld()) : world(settings) {
    world.start();
    program.registry().SetRegValue(RegistryRoot::currentUser, parametersKey, "splash", RegistryType::text, "1");
    program.registry().SetRegValue(RegistryRoot::currentUser, settingsKey, "InitDir", RegistryType::text, "/games");
    program.start();
  }
  ~WholeProgram() override { program.loop().beginEnding(); }

  void press() { QTest::mouseClick(program.window().findChild<QPushButton*>("cmdMenu32"), Qt::LeftButton); }

  bool runUntil(const std::function<bool()>& done, int milliseconds = 20'000) {
    QEventLoop loop;
    QTimer look;
    bool reached = false;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
      reached = reached || done();  // Waits inside this one may hold it back for a while.
      if (reached) {
        loop.quit();
      }
    });
    look.start(5);
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return reached;
  }

  bool sweepIsOver() {
    return program.model().grdServers.rowCount() == static_cast<int>(world.answeringServers()) &&
           !program.progress().walking.get() && rowsWritten == program.model().grdServers.rowCount();
  }

  QString shown(const char* name) { return program.window().findChild<QLabel*>(name)->text(); }

  sandbox::SandboxWorld world;
  QTemporaryDir folder;
  Program program{
      {world.masterAddress(), "http://maps.example.test/", "http://example.test/"},
      {1, 0, 0},
      {folder.path().toStdString(), folder.filePath("config").toStdString(), folder.filePath("prefix").toStdString()}};
  int rowsWritten = 0;
  Connection counting = program.sweep().rowAdded.connect([this](int) { ++rowsWritten; });
};

std::map<std::string, const sandbox::GameServer*> answeringByAddress(const sandbox::SandboxWorld& world) {
  std::map<std::string, const sandbox::GameServer*> servers;
  for (const sandbox::GameServer& server : world.servers()) {
    if (server.behaviour == sandbox::Behaviour::Answers) {
      servers[server.endpoint.text()] = &server;
    }
  }
  return servers;
}

TEST_F(WholeProgram, a_press_of_the_button_shows_every_server_that_answers_as_it_answered) {
  press();
  ASSERT_TRUE(runUntil([this] { return sweepIsOver(); }));
  auto expected = answeringByAddress(world);
  const ServerGrid& grid = program.model().grdServers;
  int players = 0;
  for (int row = 1; row <= grid.rowCount(); ++row) {
    const std::string address = grid.cellText(row, 3) + ":" + grid.cellText(row, 4);
    ASSERT_EQ(expected.count(address), 1U) << "twice, or from nowhere: " << address;
    const sandbox::GameServer& server = *expected[address];
    const std::string playing = std::to_string(server.players.size());
    players += static_cast<int>(server.players.size());
    EXPECT_EQ(grid.cellText(row, 1), server.hostname);
    EXPECT_EQ(grid.cellText(row, 2), "...");
    EXPECT_EQ(grid.cellText(row, 5), capitalizeWords(server.mapName));
    EXPECT_EQ(grid.cellText(row, 6), playing + "/" + std::to_string(server.maxPlayers));
    EXPECT_EQ(grid.cell(row, 6).color, playing == "16" ? colors::red : colors::white);
    EXPECT_EQ(grid.cellText(row, 8), server.locked ? "Yes" : "No");
    expected.erase(address);
  }
  EXPECT_TRUE(expected.empty());
  EXPECT_TRUE(runUntil([&] {
    return shown("txtPlayers") == QString::number(players) &&
           shown("lblCount") == "Server Count: " + QString::number(grid.rowCount());
  }));
  EXPECT_TRUE(program.model().tmrPing.enabled());
}

TEST_F(WholeProgram, a_second_press_in_the_middle_of_a_walk_starts_over_and_doubles_nothing) {
  press();
  ASSERT_TRUE(runUntil([this] { return program.model().grdServers.rowCount() >= 10; }));
  rowsWritten = 0;
  press();
  EXPECT_EQ(program.model().grdServers.rowCount(), 0);
  EXPECT_EQ(program.model().lblCount.caption.get(), "Server Count: 0");
  ASSERT_TRUE(runUntil([this] { return program.progress().asked.get() == 60 && !program.progress().walking.get(); }));
  runUntil([] { return false; }, 200);
  // Servers that were asked before the second press may answer into the new list, each once more.
  std::map<std::string, int> seen;
  for (int row = 1; row <= program.model().grdServers.rowCount(); ++row) {
    ++seen[program.model().grdServers.cellText(row, 3)];
  }
  EXPECT_EQ(seen.size(), world.answeringServers());
  EXPECT_LE(program.model().grdServers.rowCount(), static_cast<int>(world.answeringServers()) + 20);
}

TEST_F(WholeProgram, a_master_server_that_misbehaves_leaves_a_program_that_works) {
  std::vector<FaultKind> faults = {FaultKind::CloseAfterAccept, FaultKind::ResetAfterAccept, FaultKind::NeverAnswer,
                                   FaultKind::GarbageGreeting,  FaultKind::NoChallenge,      FaultKind::RandomData,
                                   FaultKind::SplitEndMark};
  QTimer user;  // presses again while whatever the last press led to is still under way
  QObject::connect(&user, &QTimer::timeout, [&] {
    world.setMasterFault({faults.front(), faults.front() == FaultKind::RandomData ? std::size_t{2} : std::size_t{0}});
    faults.erase(faults.begin());
    if (faults.empty()) {
      user.stop();
    }
    press();
  });
  user.start(150);
  ASSERT_TRUE(runUntil(
      [&] { return faults.empty() && program.progress().asked.get() == 60 && !program.progress().walking.get(); }));
  EXPECT_EQ(program.progress().listed.get(), 60);
  EXPECT_TRUE(program.window().isVisible());
}

TEST_F(WholeProgram, a_window_closed_in_the_middle_of_a_walk_ends_the_program_at_once) {
  QTimer::singleShot(0, [this] { press(); });
  bool closed = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (program.model().grdServers.rowCount() >= 5 && !closed) {
      closed = true;
      program.window().close();
    }
  });
  watch.start(5);
  const auto start = std::chrono::steady_clock::now();
  QApplication::exec();
  EXPECT_TRUE(closed);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_LT(program.progress().asked.get(), 60);
}

TEST_F(WholeProgram, a_second_copy_says_so_and_ends_while_the_first_works_on) {
  Program second({"127.0.0.1", "", ""}, {1, 0, 0},
                 {folder.path().toStdString(), folder.filePath("config").toStdString(), ""});
  const auto start = std::chrono::steady_clock::now();
  second.run();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(6));
  EXPECT_FALSE(second.window().isVisible());
  EXPECT_TRUE(program.window().isVisible());
  EXPECT_FALSE(program.loop().ending());
}

TEST_F(WholeProgram, what_was_clicked_and_added_is_on_the_disk_when_the_program_has_ended) {
  program.model().myFaves1.add({"CTF", "", "192.0.2.1:2302", "Mine"});
  QTest::mouseClick(program.window().findChild<QPushButton*>("cmdMenu5"), Qt::LeftButton);
  program.window().findChild<QCheckBox*>("chkOptions3")->click();
  QTimer::singleShot(0, [this] { program.window().close(); });
  QApplication::exec();
  const auto bytesOf = [this](const char* name) {
    QFile file(folder.filePath(name));
    file.open(QFile::ReadOnly);
    return file.readAll();
  };
  EXPECT_TRUE(bytesOf("favorites.ini").contains("name=Mine\r\n"));
  EXPECT_TRUE(bytesOf("config/registry.ini").contains("novideo=1\r\n"));
}

}  // namespace
}  // namespace vantrel
