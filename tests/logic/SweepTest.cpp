#include "query/Sweep.h"

#include <gtest/gtest.h>

#include <set>

#include "core/modSGrid.h"
#include "support/World.h"

namespace vantrel {
namespace {

constexpr const char* full = "mapname\\bloodgulch\\maxplayers\\16\\numplayers\\5\\gametype\\CTF\\password\\0";
const std::string fullCells = "|2302|Bloodgulch|5/16|Ctf|No";
const std::string fun = "Fun|...|192.0.2.1" + fullCells;

struct SweepTest : testing::Test, World {
  void replyAndWait(const std::string& bytes) {
    reply(bytes);
    loop.wait(20);
  }
};

TEST_F(SweepTest, a_reply_makes_this_row_and_these_totals_with_its_players_in_red_exactly_when_sixteen_play) {
  struct Case {
    const char* rest;   // of the reply, behind its name
    const char* cells;  // map, players, game type, password
    const char* totals;
  };
  const Case cases[] = {
      {full, "Bloodgulch|5/16|Ctf|No", "5 1 0 0"},
      {"numplayers\\5\\maxplayers\\16", "|5/||No", "5 0 0 0"},
      {"maxplayers\\8\\numplayers\\2\\maxplayers\\16\\numplayers\\3", "|3/16||No", "5 0 0 0"},
      {"maxplayers\\20\\numplayers\\16\\gametype\\ctf", "|16/20|Ctf|No", "16 1 0 0"},
      {"maxplayers\\16\\numplayers\\17\\gametype\\Slayer", "|17/16|Slayer|No", "17 0 1 0"},
      {"maxplayers\\16\\numplayers\\016\\gametype\\slayer", "|016/16|Slayer|No", "16 0 0 1"},
      {"gametype\\KING OF\\x", "||King Of|No", "0 0 0 1"},
      {"gametype\\CTF\\gametype\\", "|||No", "0 1 0 1"},
      {"password\\", "|||Yes", "0 0 0 0"},
      {"password\\00", "|||Yes", "0 0 0 0"},
      {"mapname\\\xE9tat MAJOR", "\xC9tat Major|||No", "0 0 0 0"},
      {"MAPNAME\\dune\\GameType\\CTF", "|||No", "0 0 0 0"},
      // A step that fails is passed over and the next one runs.
      {"maxplayers\\16\\numplayers\\some\\mapname\\dune", "Dune|some/16||No", "0 0 0 0"},
      {"maxplayers\\16\\numplayers\\40000\\gametype\\CTF", "|40000/16|Ctf|No", "0 1 0 0"},
      {"numplayers\\ 7 \\x", "| 7 /||No", "7 0 0 0"},
      {"mapname\\dune\\maxplayers\\16\\numplayers", "Dune|||No", "0 0 0 0"},
      {"mapname\\dune\\gametype", "Dune|||No", "0 0 0 0"},
      {"gametype\\CTF\\password", "||Ctf|No", "0 1 0 0"},
      // Every element may be a key, in the place of a value too.
      {"mapname\\password\\1", "Password|||Yes", "0 0 0 0"},
  };
  for (const Case& each : cases) {
    World world;
    world.reply(statusReply("Fun", each.rest));
    world.loop.wait(20);
    EXPECT_EQ(world.rows(), std::vector<std::string>{"Fun|...|192.0.2.1|2302|" + std::string(each.cells)}) << each.rest;
    EXPECT_EQ(world.totals(), each.totals) << each.rest;
    const bool sixteen = std::string(each.cells).starts_with("|16/");
    EXPECT_EQ(world.mainWindow.grdServers.cell(1, cPlayers).color, sixteen ? colors::red : colors::white) << each.rest;
    EXPECT_TRUE(world.mainWindow.txtPlayer.enabled.get() && world.mainWindow.grdServers.drawing());
  }
  replyAndWait("");
  replyAndWait("hello world");
  EXPECT_EQ(rows(), (std::vector<std::string>{"|...|192.0.2.1|2302||||No", "hello world|...|192.0.2.1|2302||||No"}));
}

TEST_F(SweepTest, the_row_is_there_before_the_pause_and_complete_behind_it_also_when_the_program_ends_there) {
  reply(statusReply("Fun", full));
  loop.at(9, [&] {
    EXPECT_EQ(row(1), "Fun|...|192.0.2.1|||||");
    EXPECT_EQ(totals(), "5 1 0 0");
    EXPECT_FALSE(mainWindow.txtPlayer.enabled.get() || mainWindow.grdServers.drawing());
  });
  loop.wait(10);
  EXPECT_EQ(row(1), fun);
  reply(statusReply("Last", full));
  loop.at(15, [&] { loop.ends = true; });
  loop.wait(100);
  EXPECT_EQ(loop.tickCount(), 15u);
  EXPECT_EQ(row(2), "Last|...|192.0.2.1" + fullCells);
}

TEST_F(SweepTest, replies_in_each_others_pauses_keep_their_rows_apart_however_many_come) {
  for (int i = 0; i < 300; ++i) {
    ws2.receive(i / 100, {statusReply("Server " + std::to_string(i), full), "192.0.2.1", 2302});
  }
  loop.wait(3000);
  std::set<std::string> different;
  for (const std::string& each : rows()) {
    different.insert(each);
    EXPECT_TRUE(each.ends_with(fullCells)) << each;
  }
  EXPECT_EQ(different.size(), 300u);
  EXPECT_EQ(mainWindow.grdServers.rowCount(), 300);
  EXPECT_EQ(totals(), "1500 300 0 0");
  EXPECT_EQ(mainWindow.lblCount.caption.get(), "Server Count: 300");
  EXPECT_NE(onDisk("servers.ini").find("\r\n[300]\r\n"), std::string::npos);
}

TEST_F(SweepTest, each_reply_goes_to_the_server_cache_as_it_is_shown_and_older_sections_behind_the_last_row_stay) {
  files.changeOutside(path("servers.ini"), "[2]\r\nname=Older\r\npassword=x\r\n[3]\r\nname=Third\r\n");
  replyAndWait(statusReply("Fun", full));
  reply(statusReply("Second", "gametype\\slayer\\password\\1"), "198.51.100.2", 2310);
  loop.wait(2000);
  EXPECT_EQ(onDisk("servers.ini"),
            "[2]\r\nname=Second\r\npassword=Yes\r\nip=198.51.100.2\r\nport=2310\r\nmapname=\r\nplayers=\r\n"
            "gametype=Slayer\r\n[3]\r\nname=Third\r\n"
            "[1]\r\nname=Fun\r\nip=192.0.2.1\r\nport=2302\r\nmapname=Bloodgulch\r\nplayers=5/16\r\ngametype=Ctf\r\n"
            "password=No\r\n[SERVERCOUNT]\r\nServers=2\r\nTime=11/22/26-21:00:00\r\n");
}

TEST_F(SweepTest, pings_come_eleven_seconds_after_the_first_reply_and_an_open_search_window_is_told_the_number) {
  replyAndWait(statusReply("Fun"));
  EXPECT_EQ(players.lblStatus.caption.get(), "Not querying servers.");
  players.visible.set(true);
  loop.wait(5000);
  replyAndWait(statusReply("Second"));
  EXPECT_EQ(players.lblStatus.caption.get(), "2 servers queried.");
  loop.wait(8000);
  EXPECT_EQ(players.lblStatus.caption.get(), "Not querying servers.");
  EXPECT_EQ(network.log.front(), "11010 icmp open");
}

TEST_F(SweepTest, each_player_is_told_with_his_server) {
  std::string seen;
  const Connection watch = sweep.playerSeen.connect([&](const SeenPlayer& player) {
    seen += player.name + "@" + player.ip + ":" + std::to_string(player.port) + " ";
  });
  replyAndWait(statusReply("Fun", "player_flags\\17,2\\player_0\\One\\player_1\\\\xplayer_9\\Nine\\Player_2\\Two"));
  replyAndWait(statusReply("Fun", "player_0"));
  EXPECT_EQ(seen, "One@192.0.2.1:2302 @192.0.2.1:2302 Nine@192.0.2.1:2302 ");
}

TEST_F(SweepTest, a_reply_loads_the_buddies_into_an_empty_list_and_a_broken_store_does_no_harm) {
  files.changeOutside(path("buddies.ini"), "[MOFOCOUNT]\r\nBuddies=many\r\n");
  replyAndWait(statusReply("Fun", full));
  EXPECT_EQ(row(1), fun);
  files.changeOutside(path("buddies.ini"), "[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=Player\r\n");
  replyAndWait(statusReply("Fun", full));
  EXPECT_EQ(buddies.myFaves1.count(), 1);
}

TEST_F(SweepTest, a_total_past_32767_stays_and_a_list_of_32767_rows_takes_no_more_and_lives_on) {
  mainWindow.txtPlayers.text.set("32765");
  mainWindow.txtCTF.text.set("32767");
  replyAndWait(statusReply("Fun", full));
  EXPECT_EQ(totals(), "32765 32767 0 0");
  EXPECT_EQ(rows(), std::vector<std::string>{fun});
  mainWindow.grdServers.setCell(32767, cName, "last");
  replyAndWait(statusReply("Fun", full));
  EXPECT_EQ(mainWindow.grdServers.rowCount(), 32767);
  EXPECT_EQ(row(32767), "last|||||||");
  EXPECT_TRUE(mainWindow.txtPlayer.enabled.get() && mainWindow.grdServers.drawing());
  EXPECT_EQ(profiles.ReadIniValue(path("servers.ini"), "SERVERCOUNT", "Servers"), "1");
}

TEST_F(SweepTest, a_list_emptied_in_the_pause_of_a_reply_shows_and_announces_no_half_row) {
  std::string announced;
  const Connection watch = sweep.rowAdded.connect([&](int row) { announced += std::to_string(row) + " "; });
  reply(statusReply("Old", full));
  loop.at(5, [&] { commands.cmdMenu_Click(32); });
  loop.wait(15);
  EXPECT_EQ(announced, "");
  EXPECT_EQ(profiles.ReadIniValue(path("servers.ini"), "1", "name"), "");
  reply(statusReply("Two", full));
  loop.at(20, [&] { commands.cmdMenu_Click(32); });
  ws2.receive(7, {statusReply("New", full), "192.0.2.2", 2302});
  loop.wait(100);
  EXPECT_EQ(rows(), std::vector<std::string>{"New|...|192.0.2.2" + fullCells});
  EXPECT_EQ(totals(), "5 1 0 0");
  EXPECT_EQ(announced, "1 ");
  EXPECT_EQ(profiles.ReadIniValue(path("servers.ini"), "1", "name"), "New");
  EXPECT_TRUE(mainWindow.grdServers.drawing());
}

// A listener may wait, as for a notice that a buddy is on-line, and other replies come meanwhile.
TEST_F(SweepTest, two_replies_share_no_row_and_lose_no_count_and_a_list_emptied_meanwhile_gets_no_nameless_rows) {
  const Connection wait = sweep.playerSeen.connect([this](const SeenPlayer&) { loop.wait(100); });
  const Datagram buddy{statusReply("Buddy", std::string("player_0\\Player\\") + full), "192.0.2.3", 2302};
  replyAndWait(statusReply("Fun", full));
  ws2.receive(0, buddy);
  ws2.receive(50, {statusReply("Between", full), "192.0.2.4", 2302});
  loop.wait(300);
  const std::string last = "Buddy|...|192.0.2.3" + fullCells;
  EXPECT_EQ(rows(), (std::vector<std::string>{fun, "Between|...|192.0.2.4" + fullCells, last}));
  EXPECT_EQ(totals(), "15 3 0 0");
  EXPECT_EQ(mainWindow.lblCount.caption.get(), "Server Count: 3");
  ws2.receive(0, buddy);
  loop.at(loop.tickCount() + 50, [&] { commands.cmdMenu_Click(32); });
  loop.wait(300);
  EXPECT_EQ(rows(), std::vector<std::string>{last});
  EXPECT_EQ(mainWindow.lblCount.caption.get(), "Server Count: 1");
}

TEST_F(SweepTest, a_list_takes_eight_megabytes_of_oversized_replies_whole_and_cuts_those_behind_until_it_is_emptied) {
  const std::string name(60'000, 'x');
  const auto lastName = [this, &name] {
    replyAndWait(statusReply(name));
    return mainWindow.grdServers.cellText(mainWindow.grdServers.rowCount(), cName).size();
  };
  for (int i = 0; i < 139; ++i) {
    ASSERT_EQ(lastName(), name.size());
  }
  EXPECT_LT(lastName(), 2048U);
  replyAndWait(statusReply("Fun", full));
  EXPECT_EQ(rows().back(), fun);
  mainWindow.grdServers.clear();
  EXPECT_EQ(lastName(), name.size());
}

}  // namespace
}  // namespace vantrel
