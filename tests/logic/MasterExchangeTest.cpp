#include "query/MasterExchange.h"

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

const std::string greeting = "\\basic\\\\secure\\ABCDEF";
const std::string mark = "\\final\\";

std::string answerWith(const std::string& validation) {
  return "\\basic\\gamename\\halom\\location\\0\\validate\\" + validation +
         "\\final\\queryid\\1.1\\\\list\\cmp\\gamename\\halom\\final\\";
}

// The list of servers 192.0.2.`first` to 192.0.2.`last`, without an end mark.
std::string listOf(int first, int last) {
  std::string list;
  for (int i = first; i <= last; ++i) {
    list += listRecord("192.0.2." + std::to_string(i), 2302);
  }
  return list;
}

struct MasterExchangeTest : testing::Test, World {
  MasterExchangeTest() { master().greeting = {{greeting}}; }
  void getList() {
    commands.cmdMenu_Click(32);
    loop.runUntilIdle();
  }
};

TEST_F(MasterExchangeTest, one_conversation_reads_so_on_the_wire) {
  master().answers = {{.bytes = listOf(1, 2) + mark, .delay = 5}};
  getList();
  const std::vector<std::string> log = {
      "0000 master.example.test:28900 connect",
      "0002 master.example.test:28900 > " + answerWith("umzkXZZf"),
      "0007 192.0.2.1:2302 > \\status",
      "0017 192.0.2.2:2302 > \\status",
  };
  EXPECT_EQ(network.log, log);
  EXPECT_EQ(ws1.state(), SocketState::connected) << "the next exchange closes it";
}

TEST_F(MasterExchangeTest, a_new_exchange_empties_the_list_the_totals_and_the_search) {
  reply(statusReply("Fun", "numplayers\\3\\gametype\\CTF"));
  loop.wait(20);
  players.lstPlayers.add("Somebody");
  mainWindow.txtPlayer.text.set("Sought");
  mainWindow.txtOther.text.set("7");
  commands.cmdMenu_Click(32);
  EXPECT_EQ(mainWindow.grdServers.rowCount(), 0);
  EXPECT_TRUE(mainWindow.grdServers.drawing());
  EXPECT_EQ(totals(), "0 0 0 0");
  EXPECT_EQ(players.lstPlayers.count(), 0);
  EXPECT_EQ(players.lblSearchfor.caption.get(), "Sought");
  EXPECT_EQ(network.log, std::vector<std::string>{"0020 master.example.test:28900 connect"});
}

TEST_F(MasterExchangeTest, the_challenge_is_the_last_field_and_one_too_short_leaves_the_validation_empty) {
  struct Case {
    std::vector<Arrival> greeting;
    const char* validation;
  };
  const Case cases[] = {
      {{{"\\basic\\ABCDEF"}}, "umzkXZZf"},
      {{{"\\basic\\\\secure\\ABCDEFGH"}}, "umzkXZZf"},
      {{{"\\basic\\\\secure\\QWERTY"}}, "gzzmv3Hi"},
      {{{"\\basic\\\\secure\\ABCDE"}}, ""},
      {{{"\\basic\\\\secure\\ABCDEF\\"}}, ""},
      {{{"\\basic"}}, ""},
      {{{"\\"}, {"ba"}, {"sic\\\\secure\\ABCDEF"}}, "umzkXZZf"},
      {{{"\\basi"}, {"c\\\\secure\\ABCDEF"}}, "umzkXZZf"},
  };
  for (const Case& each : cases) {
    World world;
    world.master().greeting = each.greeting;
    world.commands.cmdMenu_Click(32);
    world.loop.runUntilIdle();
    EXPECT_EQ(world.master().received, std::vector<std::string>{answerWith(each.validation)});
    EXPECT_EQ(world.asked(), "");
  }
}

TEST_F(MasterExchangeTest, a_greeting_in_the_middle_of_a_list_is_answered_whatever_came_before) {
  master().answers = {{listOf(1, 1)}};
  getList();
  ws1.receive({{"\\basic\\\\secure\\QWERTY"}});
  loop.runUntilIdle();
  EXPECT_EQ(master().received.back(), answerWith("gzzmv3Hi"));
}

TEST_F(MasterExchangeTest, every_address_of_the_list_is_asked_once_however_it_arrives) {
  struct Case {
    std::vector<Arrival> list;
    const char* asked;
  };
  const std::string one = listOf(1, 1);
  const Case cases[] = {
      {{{mark}}, ""},
      {{}, ""},
      {{{one + one.substr(0, 4)}, {one.substr(4) + mark}}, "192.0.2.1:2302 192.0.2.1:2302 "},
      {{{one + "\\fin"}, {"al\\" + listOf(2, 2)}}, "192.0.2.1:2302 192.0.2.2:2302 "},
      {{{one + "\\fin"}, {"al\\"}}, "192.0.2.1:2302 "},
      {{{listRecord("0.0.0.0", 1) + listRecord("10.0.0.1", 65535) + listRecord("255.255.255.255", 256) + mark}},
       "0.0.0.0:1 10.0.0.1:65535 255.255.255.255:256 "},
      {{{listRecord("192.0.2.1", 0) + listOf(2, 2)}}, "192.0.2.2:2302 "},
      {{{listRecord("192.0.2.1", 92)}, {.bytes = "", .delay = 50, .ends = true}}, "192.0.2.1:92 "},
      {{{listRecord("92.98.1.1", 7).substr(0, 2)}, {listRecord("92.98.1.1", 7).substr(2) + mark}}, "92.98.1.1:7 "},
  };
  for (const Case& each : cases) {
    World world;
    world.master().greeting = {{greeting}};
    world.master().answers = each.list;
    world.commands.cmdMenu_Click(32);
    world.loop.runUntilIdle();
    EXPECT_EQ(world.asked(), each.asked);
  }
}

TEST_F(MasterExchangeTest, queries_go_out_ten_milliseconds_apart_also_behind_one_that_cannot_be_sent) {
  network.servers["192.0.2.2:2302"].unreachable = true;
  master().answers = {{.bytes = listOf(1, 3) + mark, .delay = 98}};
  getList();
  network.log.erase(network.log.begin(), network.log.begin() + 2);
  EXPECT_EQ(network.log,
            (std::vector<std::string>{"0100 192.0.2.1:2302 > \\status", "0120 192.0.2.3:2302 > \\status"}));
  EXPECT_EQ(progress.listed.get(), 3);
  EXPECT_EQ(progress.asked.get(), 2);
  EXPECT_FALSE(progress.walking.get());
}

TEST_F(MasterExchangeTest, rows_appear_while_the_list_is_being_walked) {
  network.servers["192.0.2.1:2302"].answers = {{statusReply("Early", "mapname\\dune")}};
  master().answers = {{listOf(1, 50) + mark}};
  loop.at(100, [&] {
    EXPECT_EQ(rows(), std::vector<std::string>{"Early|...|192.0.2.1|2302|Dune|||No"});
    EXPECT_TRUE(progress.walking.get());
  });
  getList();
  EXPECT_EQ(progress.asked.get(), 50);
}

TEST_F(MasterExchangeTest, an_arrival_in_a_pause_is_walked_at_once_before_the_outer_walk_goes_on) {
  master().answers = {{.bytes = listOf(1, 3), .delay = 1}, {.bytes = listOf(4, 5) + mark, .delay = 15}};
  getList();
  EXPECT_EQ(asked(), "192.0.2.1:2302 192.0.2.2:2302 192.0.2.4:2302 192.0.2.5:2302 192.0.2.3:2302 ");
}

TEST_F(MasterExchangeTest, a_list_in_a_thousand_arrivals_is_asked_for_completely) {
  for (int i = 0; i < 1000; ++i) {
    master().answers.push_back({listOf(i % 250 + 1, i % 250 + 1).substr(0, 6), 1 + i / 20});
  }
  getList();
  EXPECT_EQ(progress.asked.get(), 1000);
}

TEST_F(MasterExchangeTest, a_click_in_the_middle_of_a_walk_ends_it_and_starts_over) {
  master().answers = {{listOf(1, 100) + mark}};
  loop.at(50, [&] {
    master().answers = {{listOf(201, 202) + mark}};
    commands.cmdMenu_Click(32);
  });
  getList();
  EXPECT_EQ(asked(),
            "192.0.2.1:2302 192.0.2.2:2302 192.0.2.3:2302 192.0.2.4:2302 192.0.2.5:2302 "
            "192.0.2.201:2302 192.0.2.202:2302 ");
  EXPECT_EQ(progress.listed.get(), 2);
}

TEST_F(MasterExchangeTest, the_rest_of_an_old_list_is_no_part_of_the_new_one) {
  master().answers = {{listOf(1, 1).substr(0, 3)}, {.bytes = listOf(7, 9), .delay = 40}};
  loop.at(20, [&] {
    master() = {.greeting = {{"\\ba"}, {"sic\\ABCDEF"}}, .answers = {{listOf(2, 2) + mark}}};
    commands.cmdMenu_Click(32);
  });
  getList();
  EXPECT_EQ(asked(), "192.0.2.2:2302 ");
}

TEST_F(MasterExchangeTest, a_program_that_ends_in_the_middle_of_a_walk_asks_nobody_else) {
  master().answers = {{listOf(1, 100) + mark}};
  loop.at(35, [&] { loop.ends = true; });
  getList();
  EXPECT_EQ(progress.asked.get(), 4);
  EXPECT_EQ(loop.tickCount(), 35u);
}

TEST_F(MasterExchangeTest, a_fault_shows_nothing_and_the_command_can_be_run_again) {
  const std::function<void()> faults[] = {
      [&] { master().refuses = true; },
      [&] { network.down = true; },
      [&] { master().greeting.clear(); },
      [&] { master().greeting = {{.bytes = "", .ends = true}}; },
      [&] { master().answers = {{.bytes = listOf(1, 1).substr(0, 5), .ends = true}}; },
      [&] { master().greeting = {{std::string("HTTP ")}}; },
      [&] { master().greeting = {{std::string("\\ba")}}; },
  };
  for (const auto& fault : faults) {
    master() = {.greeting = {{greeting}}, .answers = {{listOf(1, 1) + mark}}};
    network.down = false;
    network.log.clear();
    fault();
    getList();
    EXPECT_EQ(asked(), "");
    EXPECT_EQ(mainWindow.grdServers.rowCount(), 0);
    master() = {.greeting = {{greeting}}, .answers = {{listOf(1, 1) + mark}}};
    network.down = false;
    getList();
    EXPECT_EQ(asked(), "192.0.2.1:2302 ");
  }
  EXPECT_TRUE(notices.log.empty());
}

}  // namespace
}  // namespace vantrel
