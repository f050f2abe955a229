// The query of the current server and its reply: what is sent, and what stands where afterwards.

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "query/modHaloFlags.h"
#include "support/World.h"

namespace vantrel {
namespace {

std::string shownRows(const ListView& list) {
  std::string all;
  for (const int row : list.rowsInOrder()) {
    for (int column = 1; column <= static_cast<int>(list.columns().size()); ++column) {
      all += (column > 1 ? "=" : "") + list.cell(row, column);
    }
    all += "; ";
  }
  return all;
}

struct DetailQueryTest : testing::Test, World {
  DetailQueryTest() { mainWindow.txtPort.text.set("2302"); }

  // From a stranger, whose reply is as good as any.
  void receive(const std::string& bytes) {
    wsHaloData.receive(0, {bytes, "198.51.100.1", 9});
    loop.wait(0);
  }
  // A reply as servers send it, with these keys and values in their midst.
  void receiveFull(const std::string& middle, const std::string& players) {
    receive("\\hostname\\Fun\\gamever\\1.10\\hostport\\2999\\maxplayers\\16\\password\\0\\mapname\\Moss Garden" +
            middle + "\\gametype\\CTF\\teamplay\\1\\gamevariant\\Classic\\fraglimit\\0\\player_flags\\0,404" + players);
  }
  std::string score() const {
    return mainWindow.lblText[4].caption.get() + " " + std::to_string(mainWindow.lblText[4].backColor.get());
  }
  std::string summary() const {
    std::string all;
    for (const std::size_t number : {6u, 7u, 8u, 9u, 10u}) {
      all += mainWindow.lblText[number].caption.get() + "|";
    }
    return all + mainWindow.lblData.caption.get() + "|" + mainWindow.title.get();
  }
};

TEST_F(DetailQueryTest, a_query_clears_the_view_opens_the_page_of_the_settings_and_sends_one_byte) {
  commands.clickIt(12);
  EXPECT_EQ(notices.told(), "Please enter a server IP to query.");
  mainWindow.ListView1.addRow("old");
  mainWindow.lblText[4].caption.set("old");
  mainWindow.picTools.visible.set(true);
  mainWindow.cmdMenu[18].enabled.set(false);
  mainWindow.cmbShowTab.text.set("Vehicles");
  mainWindow.txtIP.text.set(" 192.0.2.1 ");
  icmp.roundTrips["192.0.2.1"] = 5;
  mainWindow.txtPort.text.set("49999");
  commands.clickIt(12);
  EXPECT_TRUE(mainWindow.ListView5.visible.get());
  EXPECT_TRUE(mainWindow.cmdMenu[18].enabled.get());
  EXPECT_FALSE(mainWindow.picTools.visible.get());
  EXPECT_EQ(mainWindow.ListView1.rowCount(), 0);
  EXPECT_EQ(summary(), "[...]|[...]|[...]|[...]|[...]|Vantrel CE|Zorbel's Vantrel - Version 1.2.3");
  EXPECT_EQ(mainWindow.lblText[4].caption.get(), "old") << "the summary stands until a reply replaces it";
  EXPECT_EQ(network.log.front(), "0000 192.0.2.1:49999 > \\");
}

TEST_F(DetailQueryTest, what_cannot_be_asked_leaves_a_cleared_view_without_a_word_but_a_port_out_of_range_is_told) {
  for (const auto& [ip, port, told] : std::vector<std::tuple<std::string, std::string, std::string>>{
           {"192.0.2", "2302", ""}, {"192.0.2.1", "x", ""}, {"192.0.2.1", "65536", "Error # 6 Overflow"}}) {
    mainWindow.ListView1.addRow("old");
    mainWindow.txtIP.text.set(ip);
    mainWindow.txtPort.text.set(port);
    commands.clickIt(12);
    EXPECT_EQ(notices.told(), told);
    EXPECT_EQ(mainWindow.ListView1.rowCount(), 0);
    EXPECT_TRUE(network.log.empty());
  }
}

TEST_F(DetailQueryTest, a_whole_reply_fills_every_list_the_summary_and_the_title) {
  receiveFull("\\dedicated\\1\\gamemode\\openplaying\\game_classic\\0\\numplayers\\3",
              "\\player_0\\Ann\\player_1\\0\\player_2\\Cid\\score_0\\9\\score_1\\20\\score_2\\100\\ping_0\\1\\ping_"
              "1\\2\\ping_2\\3"
              "\\team_0\\0\\team_1\\1\\team_2\\x\\score_t0\\1\\score_t1\\4");
  EXPECT_EQ(
      shownRows(mainWindow.ListView1),
      "Game Version=1.10; Server Port=2302; Max. Players=16; Password=False; Map Name=Moss Garden; Dedicated=True; "
      "Game Mode=openplaying; Classic Mode=False; Current Players=3; Game Type=CTF; Team Play=True; "
      "Game Variant=Classic; Frag Limit=False; ");
  EXPECT_EQ(shownRows(mainWindow.ListView2), "Cid=100=Blue; 0=20=Blue; Ann=9=Red; ");
  EXPECT_EQ(shownRows(mainWindow.ListView3), "Red=1; Blue=4; ");
  EXPECT_EQ(shownRows(mainWindow.ListView4),
            "Max. Lives=Infinite Lives; Weapon Set=Regular Map Weapons; Team Killing=Not Allowed; "
            "Team Killing Penalty=None; Max. Respawn Time=Instantaneous; Suicide Penalty=None; Radar=No; "
            "Friendly Indicators=No; Flag Indicators=Motion Tracker; Max. Health=50%; Invisibility=No; "
            "Player Equipment=Custom Equipment; Infinite Grenades=No; Shield=Yes; Max. Respawn Growth=None; "
            "Odd Man Out=No; ");
  EXPECT_EQ(shownRows(mainWindow.ListView5),
            "Vehicle Respawn=2 Minutes; Red Vehicles=Warthogs; Blue Vehicles=Ghosts; ");
  EXPECT_EQ(score(), "Blue is winning: 4 - 1 16711680");
  EXPECT_EQ(summary(),
            "Moss Garden|CTF|Classic|3 / 16 players|Not Allowed|Fun| [ Fun - 3/16 players ] Zorbel's Vantrel - "
            "Version 1.2.3");
  EXPECT_EQ(mirror.lblMap.caption.get(), "Moss Garden");
  EXPECT_EQ(notices.told(), "");
}

TEST_F(DetailQueryTest, the_last_elements_decide_the_score_line_and_the_last_leader_its_colour) {
  mainWindow.lblText[4].backColor.set(7);
  for (const auto& [reply, shown] : std::vector<std::pair<std::string, std::string>>{
           {"\\numplayers\\5", "Teams are Tied at 0 7"},
           {"\\numplayers\\0", "This server is empty. 7"},
           {"\\numplayers\\0\\score_t0\\2", "Red is winning: 2 - 0 255"},
           {"\\numplayers\\4\\score_t1\\-1", "Red is winning: 0 - -1 255"},
           {"\\numplayers\\4\\score_t1\\3\\score_t0\\3", "Teams are Tied at 3 16711680"},
           {"\\numplayers\\4\\score_t0\\3\\score_t1\\3", "Teams are Tied at 3 255"}}) {
    receive("\\hostname\\Fun" + reply);
    EXPECT_EQ(score(), shown);
  }
}

TEST_F(DetailQueryTest, a_fault_ends_a_reply_where_it_stands_and_what_was_shown_stays) {
  struct Case {
    const char* reply;
    const char* misc;
    const char* players;
    const char* name;
  };
  for (const Case& c : {
           Case{"\\hostname\\A\\numplayers\\x\\fraglimit\\5", "", "", "Vantrel CE"},
           Case{"\\hostname\\A\\score_t0\\32768\\fraglimit\\5", "", "", "Vantrel CE"},
           Case{"\\hostname\\A\\numplayers", "", "", "Vantrel CE"},
           Case{"\\hostname\\A\\gamever\\1\\fraglimit", "Game Version=True; Frag Limit=; ", "", "Vantrel CE"},
           Case{"\\hostname\\A\\\\gamever\\2\\own\\x\\fraglimit\\5", "Game Version=2; own=x; Frag Limit=5; ",
                "0 Players==; ", "A"},
           Case{"\\hostname\\B\\score_0\\7\\team_0\\1", "", "0 Players==; ", "B"},
           Case{"\\hostname\\C\\player_0\\Ann\\score_0\\7\\team_0", "", "", "Vantrel CE"},
           Case{"\\hostname\\D\\player_0\\Ann\\score_0\\7\\team_0\\x", "", "Ann=7=; ", "D"},
           Case{"nothing of the kind", "", "0 Players==; ", "nothing of the kind"},
           Case{"", "", "0 Players==; ", ""},
       }) {
    detail.ClearDetail();
    const std::string title = mainWindow.title.get();
    receive(c.reply);
    EXPECT_EQ(shownRows(mainWindow.ListView1), c.misc) << c.reply;
    EXPECT_EQ(shownRows(mainWindow.ListView2), c.players) << c.reply;
    EXPECT_EQ(mainWindow.lblData.caption.get(), c.name) << c.reply;
    EXPECT_EQ(mainWindow.title.get(), title);
    EXPECT_EQ(mainWindow.ListView4.rowCount(), 0);
  }
  EXPECT_EQ(notices.told(), "");
}

TEST_F(DetailQueryTest, a_full_server_says_so_in_the_title_and_a_locked_one_once_in_a_notice) {
  for (const char* count : {"16", "17"}) {
    receiveFull(std::string("\\password\\1\\numplayers\\") + count, "");
    EXPECT_EQ(mainWindow.title.get(),
              std::string(" [ Fun - ") + count + "/16 players - Server is full. ] Zorbel's Vantrel - Version 1.2.3");
    EXPECT_EQ(notices.told(), "Password required on this server.");
  }
  EXPECT_EQ(mainWindow.ListView4.rowCount(), 32) << "nothing pairs a reply with a query";
}

TEST_F(DetailQueryTest, a_reply_of_ten_thousand_elements_is_shown) {
  std::string players;
  for (const char* group : {"player_", "score_", "ping_", "team_"}) {
    for (int i = 0; i < 1250; ++i) {
      players += "\\" + (group + std::to_string(i)) + "\\1";
    }
  }
  receiveFull("\\numplayers\\1", players);
  EXPECT_EQ(mainWindow.ListView2.rowCount(), 1250);
  EXPECT_EQ(shownRows(mainWindow.ListView1).find("Current Players=True"),
            shownRows(mainWindow.ListView1).find("Current"));
}

TEST_F(DetailQueryTest, a_flood_of_replies_fills_the_view_so_far_and_a_query_makes_room_anew) {
  const std::string large = "\\hostname\\A" + std::string(60000, 'x') + "\\gamever\\1\\fraglimit\\5";
  for (int i = 0; i < 20; ++i) {
    receive(large);
  }
  EXPECT_EQ(mainWindow.ListView3.rowCount(), 2 * 4);
  mainWindow.txtIP.text.set("192.0.2.1");
  commands.clickIt(12);
  receive(large);
  EXPECT_EQ(mainWindow.ListView3.rowCount(), 2);
}

TEST_F(DetailQueryTest, a_map_is_looked_for_once_a_reply_also_when_a_fault_ends_it) {
  mainWindow.txtHaloPath.text.set("/game");
  files.changeOutside("/game/maps/two.map", "");
  receive("\\hostname\\A\\mapname\\One\\mapname\\Two\\fraglimit");
  EXPECT_EQ(mainWindow.lblText[6].caption.get(), "Two");
  EXPECT_EQ(mainWindow.lblText2[11].caption.get(), " Map is installed. ");
}

TEST_F(DetailQueryTest, a_refused_query_releases_auto_join_with_a_balloon_and_keeps_the_setting) {
  mainWindow.cmdMenu[10].value.set(1);
  storeSetting("AutoJoin", "1");
  network.servers["192.0.2.1:2302"].refuses = true;
  mainWindow.txtIP.text.set("192.0.2.1");
  commands.clickIt(12);
  loop.wait(100);
  EXPECT_EQ(notices.told(), "Error Querying Server: The connection with the server was reset by remote host.");
  EXPECT_EQ(mainWindow.cmdMenu[10].value.get(), 0);
  EXPECT_EQ(setting("AutoJoin"), "1");
}

TEST_F(DetailQueryTest, a_click_on_a_header_sorts_the_players_by_it_the_other_way_round) {
  ListView& list = mainWindow.ListView2;
  receiveFull("\\numplayers\\2", "\\player_0\\bea\\player_1\\Ann\\score_0\\9\\score_1\\10\\team_0\\0\\team_1\\1");
  EXPECT_EQ(shownRows(list), "Ann=10=Blue; bea=9=Red; ");
  list.columnClicked.fire(2);
  EXPECT_EQ(shownRows(list), "bea=9=Red; Ann=10=Blue; ");
  list.columnClicked.fire(1);
  EXPECT_EQ(shownRows(list), "bea=9=Red; Ann=10=Blue; ");
  list.columnClicked.fire(1);
  EXPECT_EQ(shownRows(list), "Ann=10=Blue; bea=9=Red; ");
}

TEST_F(DetailQueryTest, a_player_goes_into_the_buddy_list_with_the_server_by_the_menu) {
  ListView& list = mainWindow.ListView2;
  list.mouseButton.fire(MouseButton::left);
  EXPECT_TRUE(mainWindow.cmdMenu[42].visible.get());
  EXPECT_TRUE(menu.shown.empty());
  menu.choice = 1;
  list.mouseButton.fire(MouseButton::right);
  EXPECT_EQ(menu.shown, (std::vector<std::vector<std::string>>{{"Add Player to Buddy List"}}));
  for (const char* name : {"10 Players", "Ann", "Ann"}) {
    list.addRow(name);
    list.select(list.rowCount());
    list.mouseButton.fire(MouseButton::right);
    mainWindow.txtIP.text.set("192.0.2.1");
  }
  EXPECT_EQ(notices.told(), "Could Not Add Buddy: Could not add \"10 Players\" players to your list.");
  EXPECT_TRUE(buddies.visible.get());
  ASSERT_EQ(buddies.myFaves1.count(), 2);
  EXPECT_EQ(buddies.myFaves1.at(1), (FavoriteItem{"", "", "192.0.2.1:2302", "Ann"}));
}

TEST_F(DetailQueryTest, a_map_is_looked_for_in_lower_case_and_its_state_is_told) {
  const auto shown = [this] {
    const Label& label = mainWindow.lblText2[11];
    return label.caption.get() + std::to_string(label.backColor.get()) +
           (mainWindow.cmdMenu[41].enabled.get() ? " D " : " ") + mirror.lblMap.caption.get();
  };
  const std::string before = shown();
  mainWindow.txtHaloPath.text.set("Not Found");
  mainWindow.lblText[6].caption.set("x");
  maps.checkMap("Moss.v2.map");
  EXPECT_EQ(shown(), before + "Moss");
  mainWindow.txtHaloPath.text.set("/game");
  files.changeOutside("/game/maps/moss.v2.map", "");
  maps.checkMap("MOSS.V2.map");
  EXPECT_EQ(shown(), " Map is installed. 0 ");
  for (const std::string name : {"Moss", "../maps/moss.v2", "..\\maps\\moss.v2"}) {
    maps.checkMap(name + ".map");
    EXPECT_EQ(shown(), " Map is not installed: 255 D " + name.substr(0, name.find('.')));
  }
  mainWindow.lblText[6].caption.set("[...]");
  maps.checkMap("moss.v2.map");
  EXPECT_EQ(shown(), " Map is not installed: 255 ");
}

TEST(HaloFlags, a_field_is_cut_out_by_division_and_a_value_without_a_word_is_empty) {
  using namespace modHaloFlags;
  const auto words = [](std::span<const FlagField> fields, std::int32_t flags) {
    std::string all;
    for (const FlagField& field : fields) {
      all += field.word(field.value(flags)) + "|";
    }
    return all;
  };
  EXPECT_EQ(words(playerFields(), 0x1FFFFFFF),
            "5 Lives||Explosives Only|15 Seconds|15 Seconds|15 Seconds|Team Only|Yes|||Yes|Default Equipment|Yes|No|"
            "15 Seconds|Yes|");
  EXPECT_EQ(words(playerFields(), -1),
            "5 Lives|Regular Map Weapons|Not Allowed|None|Instantaneous|None|No|No|"
            "Motion Tracker|50%|No|Custom Equipment|No|Yes|None|No|")
      << "of a negative number the division cuts towards zero";
  EXPECT_EQ(
      words(playerFields(), 0x60000000 + (2 << 22) + (12 << 15) + (6 << 2)),
      "Infinite Lives|Heavy Weapons|Not Allowed|None|Instantaneous|None||No|Motion Tracker||No|Custom Equipment|No|"
      "Yes|None|No|");
  EXPECT_EQ(words(vehicleFields(), 7 + (1 << 3) + (9 << 7)), "|||");
  EXPECT_EQ(words(vehicleFields(), 6 + (8 << 3) + (7 << 7) + (1 << 11)), "5 Minutes|Custom|Gun Turrets|");
}

TEST(HaloFlags, flags_are_two_numbers_of_32_bits_and_what_follows_does_not_count) {
  const modHaloFlags::Flags flags = modHaloFlags::readFlags("-2147483648, 404,x");
  EXPECT_EQ(flags.player, std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(flags.vehicle, 404);
  for (const auto& [text, number] : std::vector<std::pair<std::string, int>>{
           {"", 9}, {"1", 9}, {"1,", 13}, {",1", 13}, {"x,1", 13}, {"2147483648,1", 6}}) {
    try {
      modHaloFlags::readFlags(text);
      ADD_FAILURE() << text;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number, number) << text;
    }
  }
}

}  // namespace
}  // namespace vantrel
