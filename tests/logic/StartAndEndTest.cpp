// How the program comes up and goes down, on a machine with nothing, with everything and with damaged files.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

struct Start : ::testing::Test {
  Start() {
    ended = program.ended.connect([this] { log.push_back("ended"); });
    second = program.secondCopy.connect([this] { log.push_back("second copy"); });
    shown = world.mainWindow.visible.changed.connect(
        [this] { log.push_back(world.mainWindow.visible.get() ? "shown" : "hidden"); });
  }

  // One of the loading steps, which notes how far the others are.
  std::function<void()> step(const std::string& name) {
    return [this, name] {
      const frmMain& window = world.mainWindow;
      log.push_back(
          name + (window.title.get() == "Marrowind - Vantrel CE" ? " titled" : "") +
          (window.cmbTab.items.get().empty() ? "" : " set") + (window.grdServers.columnCount() == 8 ? " columns" : "") +
          (world.profiles.exists(World::path("favorites.ini")) ? " stores" : "") + (world.lock.held ? " alone" : ""));
    };
  }
  void wantNoSplash() { world.storeSetting("splash", "1"); }
  bool onDisk(const std::string& name) const { return world.files.stamp(World::path(name)).has_value(); }

  World world;
  std::vector<std::string> log;
  StartAndEnd program{world.startContext,
                      {.layoutPanels = step("layout"),
                       .loadColors = step("colors"),
                       .LoadTools = step("tools"),
                       .prepareFavorites = step("favorites"),
                       .handOverLink = step("link")}};
  Connection ended, second, shown;
};

TEST_F(Start, the_parts_come_up_in_their_order_before_the_window_is_shown) {
  wantNoSplash();
  world.storeGamePath("/games/halo");
  program.start();
  EXPECT_EQ(
      log, (std::vector<std::string>{"layout titled", "colors titled", "tools titled set",
                                     "favorites titled set columns", "link titled set columns stores alone", "shown"}));
  EXPECT_EQ(world.loop.tickCount(), 0u) << "nothing waits when no splash is wanted and the game is known";
  EXPECT_FALSE(world.splash.visible.get());
  EXPECT_TRUE(world.mainWindow.chkSplash.isChecked());
  EXPECT_TRUE(world.mainWindow.cmdMenu[18].enabled.get());
  EXPECT_EQ(world.mainWindow.lblVer.caption.get(), "Vantrel CE 1.2");
}

TEST_F(Start, the_splash_is_on_show_for_five_seconds_and_nothing_is_loaded_until_then) {
  world.storeGamePath("/games/halo");
  program.start();
  EXPECT_EQ(world.splash.lblVer.caption.get(), "Vantrel CE 1.2");
  EXPECT_EQ(world.splash.title.get(), "Zorbel's Vantrel  CE- Version 1.2.3");
  EXPECT_EQ(world.splash.lblVersion.caption.get(), "Version 1.2.3");
  EXPECT_TRUE(world.splash.picNewSplash.get());
  EXPECT_EQ(world.splash.Label1.caption.get(), "Loading Vantrel... Please Wait ....");
  world.loop.wait(4999);
  EXPECT_TRUE(world.splash.visible.get());
  EXPECT_TRUE(log.empty());
  world.loop.wait(1);
  EXPECT_FALSE(world.splash.visible.get());
  EXPECT_EQ(log.back(), "shown");
  const std::size_t before = log.size();
  world.loop.wait(20'000);
  EXPECT_EQ(log.size(), before) << "the timer fires once";
}

TEST_F(Start, a_first_start_makes_four_stores_and_asks_for_the_game_a_second_later) {
  wantNoSplash();
  program.start();
  EXPECT_EQ(world.loop.tickCount(), 1000u);
  EXPECT_EQ(world.notices.log, std::vector<std::string>{"Please locate the Halo CE executable."});
  EXPECT_FALSE(world.mainWindow.cmdMenu[18].enabled.get());
  EXPECT_TRUE(world.mainWindow.picSettings.visible.get());
  EXPECT_EQ(log.back(), "shown");
  for (const char* const store : {"favorites.ini", "buddies.ini", "mirrors.ini", "settings.ini"}) {
    EXPECT_TRUE(onDisk(store)) << store;
  }
  EXPECT_FALSE(onDisk("servers.ini"));
}

TEST_F(Start, a_start_with_everything_shows_what_the_stores_and_the_registry_hold) {
  wantNoSplash();
  world.storeGamePath("/games/halo");
  const auto store = [this](const char* name, const char* bytes) {
    world.files.changeOutside(World::path(name), bytes);
  };
  store("favorites.ini", "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=Mine\r\nhostname=192.0.2.1:2302\r\n");
  store("buddies.ini", "[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=Bob\r\nlastserver=\r\n");
  store("mirrors.ini", "[MIRRORCOUNT]\r\nMirrors=1\r\n[1]\r\nMirror=http://maps.example.test/\r\n");
  store("settings.ini", "[FAVESPIC]\r\npicture=/home/me/back.png\r\n");
  bool drawn = false;
  const Connection columns = world.mainWindow.grdServers.columnsChanged.connect(
      [&] { drawn = drawn || world.mainWindow.grdServers.drawing(); });
  world.mainWindow.cmdMenu[18].enabled.set(false);
  program.start();
  EXPECT_FALSE(drawn) << "the list is set up with its updates held off";
  EXPECT_EQ(world.mainWindow.myFaves1.count(), 1);
  EXPECT_EQ(world.buddies.myFaves1.count(), 1);
  EXPECT_EQ(world.mirror.lstMirrors.line(0), "http://maps.example.test/");
  EXPECT_EQ(world.mainWindow.myFaves1.picture.get(), "/home/me/back.png");
  EXPECT_TRUE(world.mainWindow.cmdMenu[18].enabled.get());
  EXPECT_TRUE(world.mainWindow.cmdMenu[26].enabled.get() && world.mainWindow.cmdMenu[41].enabled.get());
}

TEST_F(Start, a_second_copy_says_so_and_ends_before_it_looks_at_a_link_or_writes_a_store) {
  wantNoSplash();
  world.lock.takenByOther = true;
  world.storeGamePath("/games/halo");
  program.start();
  EXPECT_EQ(world.notices.log, std::vector<std::string>{"Vantrel CE is already running"});
  EXPECT_EQ(log.back(), "second copy");
  EXPECT_FALSE(world.mainWindow.visible.get());
  world.loop.wait(0);
  world.files.changeOutside(World::path("favorites.ini"), "[FAVECOUNT]\r\nFavorites=0\r\n; of the first copy\r\n");
  program.close();
  world.loop.wait(1000);
  EXPECT_EQ(world.onDisk("favorites.ini"), "[FAVECOUNT]\r\nFavorites=0\r\n; of the first copy\r\n");
}

TEST_F(Start, a_second_copy_that_ends_before_it_knows_leaves_the_favorites_of_the_first) {
  wantNoSplash();
  world.lock.takenByOther = true;
  const char* const ofTheFirst = "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=Mine\r\n";
  world.loop.at(500, [&] {
    world.files.changeOutside(World::path("favorites.ini"), ofTheFirst);
    program.close();
  });
  program.start();
  world.loop.wait(2000);
  EXPECT_EQ(world.onDisk("favorites.ini"), ofTheFirst);
}

TEST_F(Start, the_end_unloads_the_windows_twice_and_writes_the_favorites_in_between) {
  wantNoSplash();
  world.storeGamePath("/games/halo");
  program.start();
  log.clear();
  program.addWindow([this] { throw failures::fileAccess(); });
  program.addWindow([this] {
    log.push_back("unloaded");
    program.addWindow([] {});
  });
  world.mainWindow.myFaves1.add({"CTF", "secret", "192.0.2.1:2302", "Mine"});
  program.close();
  program.close();
  EXPECT_EQ(log, (std::vector<std::string>{"unloaded", "hidden", "unloaded", "ended"}));
  world.loop.wait(0);
  EXPECT_NE(world.onDisk("favorites.ini").find("secret"), std::string::npos);
}

TEST_F(Start, an_end_before_the_main_window_has_loaded_writes_nothing) {
  world.files.changeOutside(World::path("favorites.ini"), "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=x\r\n");
  program.start();
  world.loop.wait(2000);
  program.close();
  EXPECT_FALSE(world.splash.Timer1.enabled());
  program.start();
  world.loop.wait(10'000);
  EXPECT_EQ(log, std::vector<std::string>{"ended"});
  EXPECT_FALSE(world.splash.visible.get()) << "nor does a start behind the end show it again";
  EXPECT_EQ(world.onDisk("favorites.ini"), "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=x\r\n");
}

TEST_F(Start, an_unreadable_store_or_registry_is_no_obstacle_and_stays_as_it_is) {
  wantNoSplash();
  world.registry.readable = false;
  world.files.changeOutside(World::path("favorites.ini"), "precious");
  world.files.unreadable.insert(World::path("favorites.ini"));
  program.start();
  world.loop.wait(6000);
  EXPECT_TRUE(world.mainWindow.visible.get());
  EXPECT_EQ(world.mainWindow.txtHaloPath.text.get(), "Not Found");
  program.close();
  world.loop.wait(0);
  EXPECT_EQ(world.onDisk("favorites.ini"), "precious");
}

}  // namespace
}  // namespace vantrel
