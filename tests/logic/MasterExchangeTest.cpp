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
  void getList(const std::vector<Arrival>& list, const std::vector<Arrival>& start = {{greeting}}) {
    master().greeting = start;
    master().answers = list;
    commands.cmdMenu_Click(32);
    loop.runUntilIdle();
  }
};

TEST_F(MasterExchangeTest, one_conversation_reads_so_on_the_wire_also_behind_a_query_that_cannot_be_sent) {
  getList({{.bytes = listOf(1, 1) + listRecord("192.0.2.2", 0) + listOf(3, 3) + mark, .delay = 5}});
  const std::vector<std::string> log = {
      "0000 master.example.test:28900 connect",
      "0002 master.example.test:28900 > " + answerWith("umzkXZZf"),
      "0007 192.0.2.1:2302 > \\status",
      "0027 192.0.2.3:2302 > \\status",
  };
  EXPECT_EQ(network.log, log);
  EXPECT_EQ(ws1.state(), SocketState::connected) << "the next exchange closes it";
  EXPECT_EQ(progress.listed.get(), 3);
  EXPECT_EQ(progress.asked.get(), 2);
  EXPECT_FALSE(progress.walking.get());
}

TEST_F(MasterExchangeTest, a_new_exchange_empties_the_list_the_totals_and_the_search) {
  reply(statusReply("Fun", "numplayers\\3\\gametype\\CTF"));
  loop.wait(20);
  players.lstPlayers.add("Somebody");
  mainWindow.txtPlayer.text.set("Sought");
  mainWindow.txtOther.text.set("7");
  mainWindow.txtSlayer.text.set("7");
  commands.cmdMenu_Click(32);
  EXPECT_EQ(rows(), std::vector<std::string>{});
  EXPECT_TRUE(mainWindow.grdServers.drawing());
  EXPECT_EQ(totals(), "0 0 0 0");
  EXPECT_EQ(players.lstPlayers.count(), 0);
  EXPECT_EQ(players.lblSearchfor.caption.get(), "Sought");
}

TEST_F(MasterExchangeTest, the_challenge_is_the_last_field_and_one_too_short_leaves_the_validation_empty) {
  struct Case {
    std::vector<Arrival> greeting;
    const char* validation;
  };
  const Case cases[] = {
      {{{"\\basic\\ABCDEF"}}, "umzkXZZf"},
      {{{"\\basic\\\\secure\\QWERTYGH"}}, "gzzmv3Hi"},
      {{{"\\basic\\\\secure\\ABCDEF\\"}}, ""},
      {{{"\\basic"}}, ""},
      {{{"\\"}, {"ba"}, {"sic\\\\secure\\ABCDEF"}}, "umzkXZZf"},
      {{{"\\basi"}, {"c\\\\secure\\ABCDEF"}}, "umzkXZZf"},
  };
  for (const Case& each : cases) {
    master().received.clear();
    getList({}, each.greeting);
    EXPECT_EQ(master().received, std::vector<std::string>{answerWith(each.validation)});
  }
  getList({{listOf(1, 1)}});
  ws1.receive({{"\\basic\\\\secure\\QWERTY"}});
  loop.runUntilIdle();
  EXPECT_EQ(master().received.back(), answerWith("gzzmv3Hi")) << "whatever came before";
}

TEST_F(MasterExchangeTest, every_address_of_the_list_is_asked_once_however_it_arrives_and_a_fault_shows_nothing) {
  struct Case {
    std::vector<Arrival> list;
    const char* asked;
    std::vector<Arrival> greeting = {{vantrel::greeting}};
  };
  const std::string one = listOf(1, 1);
  const Case cases[] = {
      {{{mark}}, ""},
      {{{one + one.substr(0, 4)}, {one.substr(4) + mark}}, "192.0.2.1:2302 192.0.2.1:2302 "},
      {{{one + "\\fin"}, {"al\\" + listOf(2, 2)}}, "192.0.2.1:2302 192.0.2.2:2302 "},
      {{{listRecord("192.0.2.1", 92)}, {.bytes = "", .delay = 50, .ends = true}}, "192.0.2.1:92 "},
      {{{listRecord("92.98.1.1", 7).substr(0, 2)}, {listRecord("92.98.1.1", 7).substr(2) + mark}}, "92.98.1.1:7 "},
      {{{.bytes = one.substr(0, 5), .ends = true}}, ""},
      {{{one}}, "", {}},
      {{{one}}, "", {{.bytes = "", .ends = true}}},
      {{{one}}, "", {{"HTTP "}}},
      {{{one}}, "", {{"\\ba"}}},
      {{{one + mark}}, "192.0.2.1:2302 "},
  };
  for (const Case& each : cases) {
    network.log.clear();
    getList(each.list, each.greeting);
    EXPECT_EQ(asked(), each.asked);
  }
  network.log.clear();
  master().refuses = true;
  getList({{one + mark}});
  EXPECT_EQ(asked(), "");
  master().refuses = false;
  getList({{one + mark}});
  EXPECT_EQ(asked(), "192.0.2.1:2302 ");
  EXPECT_TRUE(notices.log.empty());
}

TEST_F(MasterExchangeTest, an_arrival_in_a_pause_is_walked_at_once_before_the_outer_walk_goes_on) {
  loop.at(40, [&] { EXPECT_TRUE(progress.walking.get()) << "only the inner walk has ended"; });
  getList({{.bytes = listOf(1, 3), .delay = 1}, {.bytes = listOf(4, 5) + mark, .delay = 15}});
  EXPECT_EQ(asked(), "192.0.2.1:2302 192.0.2.2:2302 192.0.2.4:2302 192.0.2.5:2302 192.0.2.3:2302 ");
}

TEST_F(MasterExchangeTest, a_list_in_a_thousand_arrivals_is_asked_for_completely) {
  std::vector<Arrival> list;
  for (int i = 0; i < 1000; ++i) {
    list.push_back({listOf(i % 250 + 1, i % 250 + 1), 1 + i / 20});
  }
  getList(list);
  EXPECT_EQ(progress.asked.get(), 1000);
}

TEST_F(MasterExchangeTest, a_click_in_the_middle_of_a_walk_ends_it_and_starts_over_without_the_old_lists_rest) {
  loop.at(50, [&] {
    master() = {.greeting = {{"\\ba"}, {"sic\\ABCDEF"}}, .answers = {{listOf(201, 202) + mark}}};
    commands.cmdMenu_Click(32);
  });
  getList({{listOf(1, 100) + listOf(9, 9).substr(0, 3)}, {.bytes = listOf(107, 109), .delay = 80}});
  EXPECT_EQ(asked(),
            "192.0.2.1:2302 192.0.2.2:2302 192.0.2.3:2302 192.0.2.4:2302 192.0.2.5:2302 "
            "192.0.2.201:2302 192.0.2.202:2302 ");
  EXPECT_EQ(progress.listed.get(), 2);
}

TEST_F(MasterExchangeTest, a_program_that_ends_in_the_middle_of_a_walk_asks_nobody_else) {
  loop.at(35, [&] { loop.ends = true; });
  getList({{listOf(1, 100) + mark}});
  EXPECT_EQ(progress.asked.get(), 4);
  EXPECT_EQ(loop.tickCount(), 35u);
}

}  // namespace
}  // namespace vantrel
