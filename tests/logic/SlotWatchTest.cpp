// Waiting for a free slot on a full server.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

struct SlotWatchTest : testing::Test, World {
  SlotWatchTest() {
    mainWindow.txtIP.text.set("192.0.2.1");
    mainWindow.txtPort.text.set("2302");
    prompt.txtWav.text.set("/app/sounds/slot.wav");
    commands.clickIt(12);
  }
  void tellPlayers(int players, const std::string& ip = "192.0.2.1") {
    wsHaloData.receive(
        0,
        {"\\hostname\\Fun\\numplayers\\" + std::to_string(players) + "\\maxplayers\\16\\player_flags\\0,0", ip, 2302});
    loop.wait(0);
  }
  void waitForSlot() {
    tellPlayers(16);
    commands.clickIt(18);
    prompt.yesClicked.fire();
  }
};

TEST_F(SlotWatchTest, a_launch_on_a_full_server_asks_and_the_first_free_slot_launches_once) {
  tellPlayers(16);
  commands.clickIt(18);
  EXPECT_TRUE(prompt.visible.get());
  EXPECT_EQ(wsPass.sent, 0);
  loop.wait(100);
  EXPECT_EQ(sound.played, std::vector<std::string>{"/app/sounds/slot.wav"});
  prompt.yesClicked.fire();
  EXPECT_FALSE(prompt.visible.get());
  EXPECT_EQ(setting("AutoJoin"), "1");
  tellPlayers(16);
  EXPECT_EQ(wsPass.sent, 0);
  notices.told();
  tellPlayers(15);
  EXPECT_EQ(notices.told(), "Fun\r\n has an open spot!");
  EXPECT_EQ(sound.played.size(), 2u);
  EXPECT_EQ(wsPass.sent, 1);
  tellPlayers(15);
  EXPECT_EQ(wsPass.sent, 1);
}

TEST_F(SlotWatchTest, no_launches_at_once_closing_does_not_and_never_is_kept) {
  tellPlayers(16);
  commands.clickIt(18);
  prompt.closed.fire();
  EXPECT_FALSE(prompt.visible.get());
  EXPECT_EQ(wsPass.sent, 0);
  commands.clickIt(18);
  prompt.noClicked.fire();
  EXPECT_FALSE(prompt.visible.get());
  EXPECT_EQ(wsPass.sent, 1);
  prompt.chkMsg.value.set(1);
  EXPECT_EQ(setting("neverautojoin"), "1");
  commands.clickIt(18);
  EXPECT_FALSE(prompt.visible.get());
  EXPECT_EQ(wsPass.sent, 2);
}

TEST_F(SlotWatchTest, what_ends_the_waiting_or_holds_it_up) {
  struct Story {
    const char* what;
    std::function<void(SlotWatchTest&)> happens;
    int launches;
  };
  const Story stories[] = {
      {"nothing", [](SlotWatchTest&) {}, 1},
      {"a launch by hand, which asks again", [](SlotWatchTest& w) { w.commands.clickIt(18); }, 0},
      {"another server",
       [](SlotWatchTest& w) {
         w.mainWindow.txtIP.text.set("192.0.2.9");
         w.mainWindow.txtIP.text.set("192.0.2.1");
       },
       0},
      {"auto join off", [](SlotWatchTest& w) { w.commands.clickIt(0); }, 0},
      {"another page", [](SlotWatchTest& w) { w.commands.clickIt(9); }, 0},
      {"a stranger's word",
       [](SlotWatchTest& w) {
         w.tellPlayers(1, "198.51.100.1");
         w.tellPlayers(16);
         w.wsHaloData.receive(0,
                              {"\\hostname\\Fun\\numplayers\\1\\maxplayers\\16\\player_flags\\0,0", "192.0.2.1", 2303});
         w.loop.wait(0);
         w.commands.clickIt(0);
       },
       0},
      {"a game that runs",
       [](SlotWatchTest& w) {
         w.gameWatch.watch({1, 2, 3, 3});
       },
       0},
      {"the page left while the sound is heard",
       [](SlotWatchTest& w) { w.sound.duringSound = [&w] { w.commands.clickIt(9); }; }, 0},
      {"auto join chosen on its page",
       [](SlotWatchTest& w) {
         for (const int number : {0, 5, 10}) {
           w.commands.clickIt(number);
         }
         w.tellPlayers(15);
         w.tellPlayers(16);
         w.commands.clickIt(2);
       },
       1},
  };
  for (const Story& story : stories) {
    SCOPED_TRACE(story.what);
    struct Fresh : SlotWatchTest {
      void TestBody() override {}
    } world;
    world.waitForSlot();
    story.happens(world);
    world.tellPlayers(15);
    EXPECT_EQ(world.wsPass.sent, story.launches);
  }
}

TEST_F(SlotWatchTest, what_ends_the_waiting_in_the_middle_of_yes_or_of_the_sound_starts_no_game_later) {
  tellPlayers(16);
  commands.clickIt(9);
  commands.clickIt(18);
  loop.startTimer(100, TimerKind::once, [this] { commands.clickIt(0); });
  prompt.yesClicked.fire();
  EXPECT_TRUE(mainWindow.picScore.visible.get());
  tellPlayers(15);
  EXPECT_EQ(wsPass.sent, 0);
  waitForSlot();
  sound.duringSound = [this] { gameWatch.watch({1, 2, 3, 3}); };
  tellPlayers(15);
  gameWatch.watch({});
  EXPECT_EQ(wsPass.sent, 0);
}

}  // namespace
}  // namespace vantrel
