// Round trips: the pass over the server list, the current server, and what becomes of a list that changes meanwhile.

#include <gtest/gtest.h>

#include "core/modSGrid.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct PingListTest : testing::Test, World {
  PingListTest() { SetupGrid(grid); }

  void addRow(const std::string& ip) {
    const int row = grid.rowCount() + 1;
    grid.setCell(row, cIP, ip);
    grid.setCell(row, cPing, "...");
  }
  // The column of the pings, each with its colour and icon: "79 ms 65280 0; ".
  std::string pings() const {
    std::string all;
    for (int row = 1; row <= grid.rowCount(); ++row) {
      const GridCell& cell = grid.cell(row, cPing);
      all += cell.text + " " + std::to_string(cell.color) + " " + std::to_string(cell.icon) + "; ";
    }
    return all;
  }
  std::string current() const {
    return mainWindow.txtPing.text.get() + " " + std::to_string(mainWindow.txtPing.foreColor.get());
  }
  int echoes() const {
    int count = 0;
    for (const std::string& line : network.log) {
      count += line.find(" echo > .") == std::string::npos ? 0 : 1;
    }
    return count;
  }
  void pass() {
    mainWindow.tmrPing.switchOn();
    loop.wait(11000);
  }

  ServerGrid& grid = mainWindow.grdServers;
};

TEST_F(PingListTest, a_pass_fills_the_column_by_the_scale_once_and_ends_its_timer) {
  int row = 0;
  for (const int trip : {79, 80, 99, 100, 130, 131}) {
    const std::string ip = "192.0.2." + std::to_string(++row);
    icmp.roundTrips[ip] = trip;
    addRow(ip);
  }
  addRow("192.0.2.100");
  addRow("");
  pass();
  const std::string filled =
      "79 ms 65280 0; 80 ms 65535 0; 99 ms 65535 0; 100 ms 33023 0; 130 ms 33023 0; 131 ms 255 0; firewall 255 2; "
      "??? 255 0; ";
  EXPECT_EQ(pings(), filled);
  EXPECT_FALSE(mainWindow.tmrPing.enabled());
  EXPECT_EQ(echoes(), 7);
  icmp.roundTrips.clear();
  pass();
  EXPECT_EQ(pings(), filled);
  EXPECT_EQ(echoes(), 7);
}

TEST_F(PingListTest, a_pass_takes_its_echoes_and_ten_milliseconds_a_row_and_leaves_what_comes_meanwhile) {
  icmp.roundTrips["192.0.2.1"] = 20;
  addRow("192.0.2.1");
  addRow("192.0.2.2");
  loop.startTimer(11005, TimerKind::once, [this] { addRow("192.0.2.1"); });
  const std::uint64_t before = loop.tickCount();
  pass();
  EXPECT_EQ(loop.tickCount() - before, 11000u + 20 + 10 + 250 + 10);
  EXPECT_EQ(pings(), "20 ms 65280 0; firewall 255 2; ... 16777215 0; ");
  loop.wait(11100);
  EXPECT_EQ(pings(), "20 ms 65280 0; firewall 255 2; 20 ms 65280 0; ") << "it gets a pass of its own";
}

TEST_F(PingListTest, a_pass_waits_until_all_addresses_are_asked) {
  icmp.roundTrips["192.0.2.1"] = 20;
  addRow("192.0.2.1");
  progress.walking.set(true);
  pass();
  EXPECT_EQ(echoes(), 0);
  progress.walking.set(false);
  loop.wait(30);
  EXPECT_EQ(pings(), "20 ms 65280 0; ") << "and no longer";
}

TEST_F(PingListTest, a_list_that_is_emptied_in_a_pass_gets_no_row_of_it_and_a_new_one_its_own_pass) {
  icmp.roundTrips["192.0.2.9"] = 30;
  addRow("192.0.2.1");
  addRow("192.0.2.1");
  loop.startTimer(11100, TimerKind::once, [this] { grid.clear(); });
  pass();
  EXPECT_EQ(grid.rowCount(), 0);
  EXPECT_FALSE(mainWindow.tmrPing.enabled());
  addRow("192.0.2.1");
  loop.startTimer(11100, TimerKind::once, [this] {
    grid.clear();
    addRow("192.0.2.9");
  });
  pass();
  EXPECT_EQ(pings(), "... 16777215 0; ");
  loop.wait(11000);
  EXPECT_EQ(pings(), "30 ms 65280 0; ");
}

TEST_F(PingListTest, the_current_server_is_pinged_behind_the_echo_that_is_under_way) {
  icmp.roundTrips = {{"192.0.2.1", 200}, {"192.0.2.2", 131}};
  addRow("192.0.2.1");
  loop.startTimer(11050, TimerKind::once, [this] {
    mainWindow.txtIP.text.set("192.0.2.2");
    ping.PingCurrent();
    EXPECT_EQ(echoes(), 1);
  });
  pass();
  loop.wait(300);
  EXPECT_EQ(current(), "131 ms 255");
  EXPECT_EQ(pings(), "200 ms 255 0; ");
}

TEST_F(PingListTest, a_round_trip_is_shown_for_the_server_that_is_current_when_it_comes_or_not_at_all) {
  icmp.roundTrips = {{"192.0.2.1", 200}, {"192.0.2.2", 20}};
  loop.startTimer(50, TimerKind::once, [this] {
    mainWindow.txtIP.text.set("192.0.2.2");
    ping.PingCurrent();
  });
  mainWindow.txtIP.text.set("192.0.2.1");
  ping.PingCurrent();
  loop.wait(500);
  EXPECT_EQ(current(), "20 ms 65280");
  loop.startTimer(5, TimerKind::once, [this] { commands.clickIt(11); });
  ping.PingCurrent();
  EXPECT_EQ(current(), " 65280") << "cleared meanwhile";
}

TEST_F(PingListTest, the_current_server_shows_its_round_trip_or_a_timeout_and_nothing_sent_is_no_time) {
  icmp.roundTrips["192.0.2.1"] = 99;
  const std::uint64_t before = loop.tickCount();
  mainWindow.txtIP.text.set("192.0.2.1");
  ping.PingCurrent();
  EXPECT_EQ(current(), "99 ms 65535");
  EXPECT_EQ(loop.tickCount() - before, 99u + 10 + 50);
  mainWindow.txtIP.text.set("192.0.2.2");
  ping.PingCurrent();
  EXPECT_EQ(current(), " timeout 255");
  mainWindow.txtIP.text.set("a.b.c.d");
  ping.PingCurrent();
  EXPECT_EQ(current(), "0 ms 65280");
}

TEST_F(PingListTest, a_user_who_may_not_ping_sees_no_answer_and_is_told_why_once_by_the_first_pass) {
  icmp.denied = true;
  mainWindow.txtIP.text.set("192.0.2.1");
  ping.PingCurrent();
  EXPECT_EQ(current(), " timeout 255");
  EXPECT_EQ(notices.told(), "");
  for (const char* told : {"Ping is not permitted.\nAllow it.", ""}) {
    addRow("192.0.2.1");
    addRow("192.0.2.1");
    pass();
    EXPECT_EQ(notices.told(), told);
  }
  EXPECT_EQ(pings(), "firewall 255 2; firewall 255 2; firewall 255 2; firewall 255 2; ");
}

}  // namespace
}  // namespace vantrel
