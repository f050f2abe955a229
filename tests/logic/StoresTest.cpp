#include <gtest/gtest.h>

#include "support/FilesContract.h"
#include "support/World.h"

namespace vantrel {
namespace {

const std::string favoritesFile = World::path("favorites.ini");
const std::string buddiesFile = World::path("buddies.ini");
const std::string mirrorsFile = World::path("mirrors.ini");
const std::string fun =
    "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=Fun\r\nhostname=192.0.2.1:2302\r\ngametype=Slayer\r\npassword=\r\n";
const std::string header = "[VANTREL FAVORITES]\r\n";
const std::string defaultMirrors =
    "[VANTREL MAP MIRRORS]\r\n[MIRRORCOUNT]\r\nMirrors=1\r\n[1]\r\nmirror=http://maps.example.test/maps/\r\n"
    "mirrorurl=http://maps.example.test/\r\n";

struct StoresTest : testing::Test, World {
  void addFun() { mainWindow.myFaves1.add({"Slayer", "", "192.0.2.1:2302", "Fun"}); }
  // The bytes of a store file once all is written.
  std::string written(const std::string& name) {
    loop.wait(0);
    return onDisk(name);
  }
};

TEST_F(StoresTest, new_buddies_mirrors_and_settings_have_these_bytes) {
  stores.NewBuddies(buddiesFile);
  stores.AddBuddy("Player", "");
  EXPECT_EQ(written("buddies.ini"),
            "[VANTREL MOFOS]\r\n[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=Player\r\nlastserver=\r\n");
  stores.NewMirrors(mirrorsFile);
  EXPECT_EQ(written("mirrors.ini"), defaultMirrors);
  stores.NewSettings(path("settings.ini"));
  EXPECT_EQ(written("settings.ini"), "[SETTINGS]\r\n[FAVESPIC]\r\npicture=\r\n");
}

TEST_F(StoresTest, mirrors_are_loaded_with_a_slash_and_short_ones_are_left_out_while_the_count_stays) {
  const std::string bytes =
      "[MIRRORCOUNT]\r\nMirrors=6\r\n[1]\r\nMirror=http://a.example.test\r\n[2]\r\nmirror=http://b.example.test/\r\n"
      "[3]\r\nMirror=x\r\n[4]\r\nMirror=/\r\n[5]\r\nMirror=xy\r\n";
  files.changeOutside(mirrorsFile, bytes);
  stores.LoadMirrors();
  std::string loaded;
  for (int i = 0; i < mirror.lstMirrors.count(); ++i) {
    loaded += mirror.lstMirrors.line(i) + " ";
  }
  EXPECT_EQ(loaded, "http://a.example.test/ http://b.example.test/ / xy/ ");
  EXPECT_EQ(written("mirrors.ini"), bytes);
}

TEST_F(StoresTest, a_count_above_the_items_gives_empty_ones_and_buddies_are_loaded_only_into_an_empty_list) {
  files.changeOutside(favoritesFile, header + "[FAVECOUNT]\r\nFavorites=2\r\n[1]\r\nNAME=Fun\r\npassword= x \r\n");
  files.changeOutside(buddiesFile, "[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=Player\r\nlastserver=x:1\r\n");
  stores.LoadFaves();
  ASSERT_EQ(mainWindow.myFaves1.count(), 2);
  mainWindow.myFaves1.makeCurrent(1);
  EXPECT_EQ(mainWindow.myFaves1.current(), (FavoriteItem{"", " x ", "", "Fun"}));
  mainWindow.myFaves1.makeCurrent(2);
  EXPECT_EQ(mainWindow.myFaves1.current(), FavoriteItem{});
  stores.LoadBuddies();
  stores.LoadBuddies();
  ASSERT_EQ(buddies.myFaves1.count(), 1);
  buddies.myFaves1.makeCurrent(1);
  EXPECT_EQ(buddies.myFaves1.current(), (FavoriteItem{"", "", "x:1", "Player"}));
}

TEST_F(StoresTest, adding_to_a_count_of_32767_fails_changes_nothing_and_is_reported_for_a_buddy) {
  files.changeOutside(buddiesFile, "[MOFOCOUNT]\r\nBuddies=32767\r\n");
  files.changeOutside(favoritesFile, "[FAVECOUNT]\r\nFavorites=32767\r\n");
  files.changeOutside(mirrorsFile, "[MIRRORCOUNT]\r\nMirrors=none\r\n");
  EXPECT_EQ(failureOf([&] { stores.AddFaveCurrent(favoritesFile); }), 6);
  EXPECT_EQ(failureOf([&] { stores.AddMirrorEntry(mirrorsFile, "http://a.example.test/"); }), 13);
  stores.AddBuddy("Player", "");
  EXPECT_EQ(notices.log, std::vector<std::string>{"Problem Adding Buddy: Error 6 - Description: Overflow.\r\n"
                                                  "Try deleting your favorites.ini in the Vantrel folder."});
  loop.wait(0);
  EXPECT_EQ(files.replacements, 0);
}

TEST_F(StoresTest, an_item_that_a_wrong_count_hides_is_copied_beside_the_store_before_a_new_one_takes_its_place) {
  files.changeOutside(favoritesFile, "[FAVECOUNT]\r\nFavorites=0\r\n[1]\r\nname=hidden\r\n");
  stores.AddFave(favoritesFile, "Fun", "", "192.0.2.1:2302", "Slayer");
  EXPECT_EQ(written("favorites.ini"), fun);
  EXPECT_EQ(onDisk("favorites.ini.bak"), "[FAVECOUNT]\r\nFavorites=0\r\n[1]\r\nname=hidden\r\n");
}

struct RewriteTest : StoresTest {
  RewriteTest() {
    files.changeOutside(favoritesFile, old);
    stores.LoadFaves();
    mainWindow.myFaves1.clear();
    addFun();
  }
  const std::string old = header + "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\nname=Old\r\n";
  const std::string fresh = header + fun;
};

TEST_F(RewriteTest, the_old_store_lives_until_the_new_one_takes_its_place_in_one_step) {
  std::string seen;
  for (const int tick : {1, 101, 151, 299}) {
    loop.at(static_cast<std::uint64_t>(tick), [&] {
      EXPECT_EQ(onDisk("favorites.ini"), old) << loop.tickCount();
      seen += profiles.ReadIniValue(favoritesFile, "1", "name") + " ";
    });
  }
  rewrites.saveFaves(favoritesFile);
  EXPECT_EQ(loop.tickCount(), 300u);
  EXPECT_EQ(onDisk("favorites.ini"), fresh);
  EXPECT_EQ(seen, "Old Old Old Old ");
  EXPECT_EQ(files.replacements, 1);
}

TEST_F(RewriteTest, each_store_takes_its_own_pauses_and_a_missing_one_the_last_pause_only) {
  const auto timeOf = [&](const auto& rewrite) {
    const std::uint64_t before = loop.tickCount();
    rewrite();
    return loop.tickCount() - before;
  };
  files.changeOutside(buddiesFile, "");
  files.changeOutside(mirrorsFile, "");
  EXPECT_EQ(timeOf([&] { rewrites.saveBuddies(buddiesFile); }), 300u);
  EXPECT_EQ(timeOf([&] { rewrites.saveMirrors(mirrorsFile); }), 400u);
  EXPECT_EQ(timeOf([&] { rewrites.saveFaves(path("none.ini")); }), 150u);
  EXPECT_EQ(onDisk("none.ini"),
            "[1]\r\nname=Fun\r\nhostname=192.0.2.1:2302\r\ngametype=Slayer\r\npassword=\r\n"
            "[FAVECOUNT]\r\nFavorites=1\r\n");
  EXPECT_EQ(onDisk("buddies.ini"), "[VANTREL MOFOS]\r\n[MOFOCOUNT]\r\nBuddies=0\r\n");
  mainWindow.myFaves1.clear();
  rewrites.saveFaves(path("empty.ini"));
  EXPECT_EQ(files.stamp(path("empty.ini")), std::nullopt) << "of nothing, no file is made";
}

TEST_F(RewriteTest, more_rewrites_asked_for_meanwhile_run_once_behind_the_first_with_the_list_as_it_is_then) {
  for (const int tick : {120, 130}) {
    loop.at(static_cast<std::uint64_t>(tick), [&] { rewrites.saveFaves(favoritesFile); });
  }
  loop.at(400, [&] { mainWindow.myFaves1.setName(1, "Renamed"); });
  rewrites.saveFaves(favoritesFile);
  EXPECT_EQ(loop.tickCount(), 600u);
  EXPECT_NE(onDisk("favorites.ini").find("Favorites=1\r\n[1]\r\nname=Renamed\r\n"), std::string::npos);
  loop.wait(10000);
  EXPECT_EQ(files.replacements, 2);
}

TEST_F(RewriteTest, a_favorite_added_in_the_middle_goes_to_the_living_old_store) {
  loop.at(120, [&] { stores.AddFaveCurrent(favoritesFile); });
  loop.at(200, [&] {
    EXPECT_TRUE(onDisk("favorites.ini").starts_with(header + "[FAVECOUNT]\r\nFavorites=2\r\n[1]\r\nname=Old\r\n"));
  });
  rewrites.saveFaves(favoritesFile);
  loop.wait(10000);
  EXPECT_EQ(onDisk("favorites.ini"), fresh);
}

TEST_F(RewriteTest, a_program_that_ends_in_the_middle_leaves_a_whole_store) {
  loop.at(120, [&] { loop.ends = true; });
  rewrites.saveFaves(favoritesFile);
  EXPECT_EQ(loop.tickCount(), 120u);
  EXPECT_EQ(onDisk("favorites.ini"), fresh);
}

TEST_F(RewriteTest, a_list_too_long_for_a_store_is_failure_6_and_the_old_store_stays) {
  for (int i = 0; i < 32767; ++i) {
    addFun();
  }
  EXPECT_EQ(failureOf([&] { rewrites.saveFaves(favoritesFile); }), 6);
  EXPECT_EQ(written("favorites.ini"), old);
  mainWindow.myFaves1.remove(1);
  rewrites.saveFaves(favoritesFile);
  EXPECT_NE(onDisk("favorites.ini").find("Favorites=32767\r\n"), std::string::npos) << "short enough, it is saved";
}

TEST_F(RewriteTest, a_store_that_holds_more_than_is_read_is_copied_beside_it_first) {
  const std::string longValue = "[FAVECOUNT]\r\nFavorites=1\r\n[1]\r\npassword=" + std::string(300, 'p') + "\r\n";
  const std::string bytes[] = {old + "[2]\r\nname=hidden\r\n",
                               old + "[3]\r\nname=behind a gap\r\n",
                               longValue,
                               "[FAVECOUNT]\r\nFavorites=none\r\n[1]\r\nname=hidden\r\n",
                               old + "[1]\r\nname=of the same number\r\n",
                               "[1]\rname=no line ends\r"};
  for (const std::string& each : bytes) {
    World world;
    world.files.changeOutside(favoritesFile, each);
    failureOf([&] { world.stores.LoadFaves(); });
    world.mainWindow.myFaves1.clear();
    world.rewrites.saveFaves(favoritesFile);
    EXPECT_EQ(world.onDisk("favorites.ini.bak"), each);
    EXPECT_EQ(world.onDisk("favorites.ini"), header + "[FAVECOUNT]\r\nFavorites=0\r\n");
  }
  rewrites.saveFaves(favoritesFile);
  EXPECT_EQ(files.stamp(favoritesFile + ".bak"), std::nullopt) << "a true count needs no copy";
}

TEST_F(RewriteTest, a_disk_that_has_no_room_for_the_copy_lets_nothing_be_lost_when_it_has_room_again) {
  files.changeOutside(favoritesFile, old + "[2]\r\nname=hidden\r\n");
  files.full = true;
  rewrites.saveFaves(favoritesFile);
  files.full = false;
  loop.wait(20000);
  EXPECT_NE((onDisk("favorites.ini") + onDisk("favorites.ini.bak")).find("name=hidden"), std::string::npos);
}

TEST_F(RewriteTest, what_came_into_a_store_after_it_was_loaded_is_copied_beside_it_too) {
  files.changeOutside(favoritesFile, old + "[2]\r\nname=of another program\r\n[FAVECOUNT]\r\nFavorites=2\r\n");
  rewrites.saveFaves(favoritesFile);
  EXPECT_NE(onDisk("favorites.ini.bak").find("of another program"), std::string::npos);
}

TEST_F(StoresTest, a_store_that_cannot_be_read_takes_no_item_and_loses_none) {
  const std::string held = "[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=A\r\nlastserver=\r\n";
  files.changeOutside(buddiesFile, held);
  files.unreadable.insert(buddiesFile);
  stores.AddBuddy("New", "");
  ASSERT_EQ(notices.log.size(), 1U);
  EXPECT_TRUE(notices.log[0].starts_with("Problem Adding Buddy: Error 75 - ")) << notices.log[0];
  files.unreadable.clear();
  loop.wait(20000);
  EXPECT_EQ(onDisk("buddies.ini"), held);
}

TEST_F(StoresTest, an_item_that_waits_to_be_written_replaces_none_of_another_program_without_a_copy) {
  files.full = true;
  stores.AddBuddy("Mine", "");
  loop.wait(100);
  files.full = false;
  const std::string theirs = "[MOFOCOUNT]\r\nBuddies=1\r\n[1]\r\nbuddyname=Theirs\r\n";
  files.changeOutside(buddiesFile, theirs);
  loop.wait(20000);
  EXPECT_NE(onDisk("buddies.ini").find("buddyname=Mine"), std::string::npos);
  EXPECT_EQ(onDisk("buddies.ini.bak"), theirs);
}

TEST_F(StoresTest, a_mirrors_web_site_survives_a_rewrite_also_of_one_that_has_no_slash_in_the_file) {
  stores.NewMirrors(mirrorsFile);
  stores.AddMirrorEntry(mirrorsFile, "http://b.example.test");
  profiles.WriteIniValue(mirrorsFile, "2", "mirrorurl", "site");
  stores.LoadMirrors();
  rewrites.saveMirrors(mirrorsFile);
  EXPECT_EQ(onDisk("mirrors.ini"),
            "[VANTREL MAP MIRRORS]\r\n[MIRRORCOUNT]\r\nMirrors=2\r\n[1]\r\nMirror=http://maps.example.test/maps/\r\n"
            "mirrorurl=http://maps.example.test/\r\n[2]\r\nMirror=http://b.example.test/\r\nmirrorurl=site\r\n");
}

TEST_F(StoresTest, removing_the_last_mirror_gives_a_file_with_the_default_one) {
  files.changeOutside(mirrorsFile, "[MIRRORCOUNT]\r\nMirrors=1\r\n[1]\r\nMirror=http://b.example.test/\r\n");
  rewrites.saveMirrors(mirrorsFile);
  EXPECT_EQ(onDisk("mirrors.ini"), defaultMirrors);
}

}  // namespace
}  // namespace vantrel
