// Buddies, and the search for a player: what a sweep finds, and what is kept of it.

#include <gtest/gtest.h>

#include <random>

#include "support/World.h"

namespace vantrel {
namespace {

struct BuddiesTest : testing::Test, World {
  BuddiesTest() {
    files.makeFolder("/app");
    commands.add(command::getServerList, [this] { ++sweeps; });
  }
  void keepBuddies(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      stores.AddBuddy(name, "");
    }
    stores.LoadBuddies();
  }
  void see(const std::string& players, const std::string& ip = "192.0.2.1") {
    std::string rest = "numplayers\\1";
    int number = 0;
    for (const std::string& player : split(players, ',')) {
      rest += "\\player_" + std::to_string(number++) + "\\" + player;
    }
    reply(statusReply("Fun", rest), ip);
    loop.wait(0);
  }
  static std::string told(const FavoritesList& list) {
    std::string all;
    for (int number = 1; number <= list.count(); ++number) {
      all += list.at(number).name + "@" + list.at(number).hostname + ";";
    }
    return all;
  }
  // What the next start would load.
  std::string stored() {
    World next;
    next.files.changeOutside("/app/buddies.ini", onDisk("buddies.ini"));
    next.stores.LoadBuddies();
    return told(next.buddies.myFaves1);
  }
  std::string listed() const { return told(buddies.myFaves1); }

  int sweeps = 0;
};

TEST_F(BuddiesTest, a_search_lists_each_player_whose_name_holds_the_text_whatever_the_capitals) {
  commands.clickIt(23);
  EXPECT_EQ(sweeps, 0);
  mainWindow.txtPlayer.text.set("rIn");
  commands.clickIt(23);
  EXPECT_EQ(sweeps, 1);
  EXPECT_TRUE(players.visible.get());
  EXPECT_EQ(players.lblSearchfor.caption.get(), "rIn");
  players.visible.set(false);
  see("Prince,Carl,marIN");
  see("prince", "192.0.2.7");
  EXPECT_TRUE(players.visible.get());
  ASSERT_EQ(players.lstPlayers.count(), 3);
  EXPECT_EQ(players.lstPlayers.line(1), "marIN\t192.0.2.1:2302");
  EXPECT_EQ(players.lstPlayers.line(2), "prince\t192.0.2.7:2302");
  EXPECT_EQ(players.caption.get(), "  Vantrel CE - Player Found! ");
}

TEST_F(BuddiesTest, a_hit_that_is_clicked_is_queried_and_shown) {
  dialogs.answers = {"seen"};
  players.showPressed.fire();
  EXPECT_EQ(notices.told(), "No players were found.");
  EXPECT_EQ(dialogs.asked.back(), "|Select the server to join first. Multiple players were found!");
  mainWindow.txtPlayer.text.set("a");
  see("Carl,T\tab");
  players.lstPlayers.select(0);
  players.lineClicked.fire();
  EXPECT_EQ(mainWindow.txtIP.text.get() + " " + mainWindow.txtPort.text.get(), "192.0.2.1 2302");
  EXPECT_EQ(wsHaloData.sent, 1);
  players.showPressed.fire();
  EXPECT_EQ(wsHaloData.sent, 2);
  EXPECT_FALSE(players.visible.get());
  see("Bart", "192.0.2.50");
  players.lstPlayers.select(2);
  players.showPressed.fire();
  EXPECT_EQ(mainWindow.txtIP.text.get(), "192.0.2.50") << "the one who is selected, however he came to be";
  players.lstPlayers.select(1);
  players.lineClicked.fire();
  EXPECT_EQ(mainWindow.txtIP.text.get(), "ab");
}

TEST_F(BuddiesTest, a_buddy_is_announced_by_his_whole_name_and_his_last_server_is_kept) {
  keepBuddies({"carl", "", "Mia", "CARL"});
  see("Carl,Carlo,");
  EXPECT_EQ(notices.told(), "Carl is online.\r\nCheck your buddy list.\nCarl is online.\r\nCheck your buddy list.");
  see("Carl", "192.0.2.9");
  EXPECT_EQ(listed(), "carl@192.0.2.9:2302;@;Mia@;CARL@192.0.2.9:2302;");
  loop.wait(20000);
  EXPECT_EQ(stored(), listed());
}

TEST_F(BuddiesTest, many_buddies_in_one_sweep_are_a_handful_of_rewrites) {
  std::vector<std::string> names;
  for (int number = 0; number < 50; ++number) {
    names.push_back("buddy" + std::to_string(number));
  }
  keepBuddies(names);
  loop.wait(0);
  const int before = files.replacements;
  for (const std::string& name : names) {
    see(name);
    loop.wait(1200);
  }
  buddyList.saveNow();
  EXPECT_EQ(stored(), listed());
  EXPECT_LE(files.replacements - before - 50, 5);  // each reply is written to servers.ini too
}

TEST_F(BuddiesTest, the_buttons_add_delete_and_look_for_a_name) {
  buddies.txtBuddy.text.set("Mia");
  buddies.pressed.fire(frmBuddies::add);
  EXPECT_EQ(buddies.txtBuddy.text.get(), "");
  buddies.txtBuddy.text.set("Mia");
  buddyList.clickBuddy();
  loop.wait(0);
  EXPECT_EQ(listed(), "Mia@;Mia@;");
  EXPECT_EQ(stored(), listed());
  buddies.pressed.fire(frmBuddies::remove);
  EXPECT_EQ(listed(), "Mia@;Mia@;");
  buddies.myFaves1.select(1);
  buddies.pressed.fire(frmBuddies::remove);
  EXPECT_EQ(stored(), "Mia@;");
  commands.clickIt(8);
  EXPECT_TRUE(buddies.visible.get());
  buddies.txtBuddy.text.set("mi");
  buddies.pressed.fire(frmBuddies::find);
  EXPECT_EQ(mainWindow.txtPlayer.text.get(), "mi");
  EXPECT_EQ(sweeps, 1);
  EXPECT_FALSE(buddies.visible.get());
}

TEST_F(BuddiesTest, a_file_that_fails_takes_no_buddy_from_the_list_and_is_made_whole_again) {
  for (const char* const trouble : {"[MOFOCOUNT]\r\nBuddies=x\r\n", ""}) {
    files.changeOutside(path("buddies.ini"), "");
    files.remove(path("buddies.ini"));
    buddies.myFaves1.clear();
    keepBuddies({"a", "b"});
    loop.wait(0);
    if (*trouble != '\0') {
      files.changeOutside(path("buddies.ini"), trouble);
    } else {
      files.remove(path("buddies.ini"));
    }
    loop.wait(10);
    notices.duringBalloon = [this] { buddies.txtBuddy.text.set("typed on"); };
    buddyList.addPlayer("c", "192.0.2.1:2302");
    buddies.txtBuddy.text.set("d");
    buddies.pressed.fire(frmBuddies::add);
    notices.duringBalloon = {};
    EXPECT_EQ(buddies.txtBuddy.text.get(), *trouble != '\0' ? "typed on" : "");
    EXPECT_EQ(listed(), "a@;b@;c@192.0.2.1:2302;d@;");
    loop.wait(60000);
    EXPECT_EQ(stored(), listed()) << trouble;
  }
}

TEST_F(BuddiesTest, the_last_buddy_stays_deleted_though_a_reply_comes_in_the_middle_of_the_rewrite) {
  keepBuddies({"Mia"});
  buddies.myFaves1.select(1);
  loop.startTimer(120, TimerKind::once, [this] { see("Mia"); });
  buddies.pressed.fire(frmBuddies::remove);
  EXPECT_EQ(listed() + stored(), "");
}

TEST_F(BuddiesTest, a_click_on_a_buddy_offers_to_find_him_and_to_query_his_server_if_he_has_one) {
  keepBuddies({"Mia"});
  menu.choice = 1;
  buddies.myFaves1.itemClicked.fire(1);
  EXPECT_EQ(menu.shown.back(), std::vector<std::string>{"Find Buddy Online"});
  EXPECT_EQ(mainWindow.txtPlayer.text.get(), "Mia");
  see("Mia");
  buddies.visible.set(true);
  menu.choice = 2;
  menu.meanwhile = [this] { buddies.myFaves1.clear(); };
  buddies.myFaves1.itemClicked.fire(1);
  EXPECT_EQ(menu.shown.back(), (std::vector<std::string>{"Find Buddy Online", "Query This Server"}));
  EXPECT_EQ(mainWindow.txtIP.text.get() + " " + mainWindow.txtPort.text.get(), "192.0.2.1 2302");
  EXPECT_EQ(wsHaloData.sent, 1);
  EXPECT_TRUE(mainWindow.ListView2.visible.get());
  EXPECT_FALSE(buddies.visible.get());
}

TEST(BuddiesAtRandomTest, whatever_interleaves_list_and_file_are_equal_at_the_end) {
  struct Fresh : BuddiesTest {
    void TestBody() override {}
  };
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE(seed);
    Fresh world;
    std::mt19937 random(seed);
    const auto below = [&](unsigned limit) { return random() % limit; };
    world.keepBuddies({"a", "b"});
    for (int step = 0; step < 12; ++step) {
      world.loop.startTimer(static_cast<int>(below(900)), TimerKind::once, [&] {
        const std::string name(1, static_cast<char>('a' + below(5)));
        switch (below(4)) {
          case 0:
            return world.see(name, "192.0.2." + std::to_string(1 + below(9)));
          case 1:
            world.buddies.txtBuddy.text.set(name);
            return world.buddies.pressed.fire(frmBuddies::add);
          case 2:
            return world.buddyList.addPlayer(name, "192.0.2.99:1");
          default:
            world.buddies.myFaves1.select(static_cast<int>(below(4)));
            return world.buddies.pressed.fire(frmBuddies::remove);
        }
      });
    }
    world.loop.wait(30000);
    ASSERT_EQ(world.stored(), world.listed());
  }
}

}  // namespace
}  // namespace vantrel
