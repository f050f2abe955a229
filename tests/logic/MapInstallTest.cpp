// A map that is missing: from the mirror's index to the game's folder, with everything that a user may do on the way.

#include <gtest/gtest.h>

#include "maps/cUnzip.h"
#include "support/World.h"

namespace vantrel {
namespace {

const std::string mirrorOne = "http://maps.example.test/maps/";
const std::string mirrorTwo = "http://other.example.test/";

struct MapInstallTest : testing::Test, World {
  MapInstallTest() {
    files.makeFolder("/app/temp");
    files.makeFolder("/game");
    files.makeFolder("/game/maps");
    mainWindow.txtHaloPath.text.set("/game");
    put(mirrorOne, "lake.zip");
    web.pages[mirrorOne + "lake.zip"].body = "lake.map=" + std::string(5000, 'm');
    stores.AddMirrorEntry("/app/mirrors.ini", mirrorOne);
    infos = mirror.lblInfo.caption.changed.connect([this] {
      if (!mirror.lblInfo.caption.get().empty()) {
        notices.log.push_back("i " + mirror.lblInfo.caption.get());
      }
    });
    onShow("lake");
  }
  void put(const std::string& at, const std::string& names) {
    web.pages[at].body = "<title>Index</title><body>of " + names + " .  ";
  }
  void onShow(const std::string& map) {
    mainWindow.lblText[6].caption.set(map);
    maps.checkMap(map + ".map");
  }
  void open() { commands.clickIt(41); }
  void press(MirrorCommand command) { mirror.pressed.fire(command); }
  // What the user sees of the map: the label, and whether "Download" can be pressed.
  std::string state() const {
    return mainWindow.lblText2[11].caption.get() + (mainWindow.cmdMenu[41].enabled.get() ? "+" : "-");
  }
  std::string buttons() const {
    std::string all;
    for (const Button* const button : {&mirror.cmdDL, &mirror.cmdPause, &mirror.cmdResume, &mirror.cmdCancel,
                                       &mirror.cmdAdd, &mirror.cmdRemove, &mirror.cmdURL}) {
      all += button->enabled.get() ? '1' : '0';
    }
    return all;
  }

  Connection infos;
};

TEST_F(MapInstallTest, the_first_mirror_has_the_map_and_it_is_installed) {
  EXPECT_EQ(state(), " Map is not installed: +");
  std::string statuses;
  const Connection watch =
      mirror.lblStatus.caption.changed.connect([&] { statuses += mirror.lblStatus.caption.get() + "\n"; });
  loop.at(loop.tickCount() + 100, [this] { EXPECT_EQ(mirror.lblMap.caption.get(), "lake"); });
  open();
  EXPECT_EQ(notices.told(),
            "i Querying mirror for map: LAKE\n"
            "i Map was found on this mirror! Downloading map: LAKE\n"
            "Unzipping Map: UNZIPPING MAP TO MAP FOLDER...Please Wait...\n"
            "Map installed successfully!");
  EXPECT_EQ(files.bytes("/game/maps/lake.map"), std::string(5000, 'm'));
  EXPECT_EQ(statuses, "Download Status: Complete!\nDownload Status:\nUnzip Status: x\\lake.map\nDownload Status:\n");
  EXPECT_EQ(state(), " Map is installed. -");
  EXPECT_FALSE(mirror.visible.get());
  EXPECT_EQ(unzipLibrary.asked.zipFile, "/app/temp/lake.zip");
  EXPECT_EQ(web.asked, mirrorOne + "\n" + mirrorOne + "lake.zip\n");
  open();
  EXPECT_EQ(mirror.lblMap.caption.get(), "");
}

TEST_F(MapInstallTest, progress_is_shown_and_can_be_held_and_ended) {
  loop.at(8200, [this] {
    EXPECT_EQ(buttons(), "0111111");
    press(MirrorCommand::pause);
  });
  web.pages[mirrorOne + "lake.zip"].chunkTime = 100;
  loop.at(8500, [this] {
    EXPECT_EQ(mirror.lblStatus.caption.get(), "Download Status: Paused");
    EXPECT_EQ(mirror.lblPercent.caption.get(), std::to_string(mirror.pb1.get()) + " %");
    EXPECT_GT(mirror.pb1.get(), 0);
    EXPECT_NE(mirror.lblTime.caption.get(), "Unknown");
    open();
    EXPECT_TRUE(mirror.visible.get()) << "no second download";
    press(MirrorCommand::download);
  });
  loop.at(9500, [this] {
    notices.told();
    press(MirrorCommand::cancel);
    EXPECT_FALSE(mirror.visible.get());
  });
  open();
  EXPECT_EQ(notices.told(), "Download Cancelled!");
  EXPECT_EQ(state(), " Map is not installed: +");
  EXPECT_FALSE(dl1.InDL());
  EXPECT_GT(files.bytes("/app/temp/lake.zip").size(), 0U) << "what arrived stays";
  open();
  EXPECT_EQ(state(), " Map is installed. -") << "and the next try begins anew";
}

TEST_F(MapInstallTest, the_window_may_be_closed_at_any_moment) {
  for (const int when : {20, 60, 1000, 4080, 5000, 8145, 8170, 8200, 8230, 9000}) {
    struct Fresh : MapInstallTest {
      void TestBody() override {}
    } fresh;
    fresh.web.pages[mirrorOne + "lake.zip"].chunkTime = 50;
    fresh.web.pages[mirrorOne + "lake.zip"].headTime = 50;
    fresh.web.pages[mirrorOne].headTime = 30;
    fresh.loop.at(static_cast<std::uint64_t>(when), [&fresh] { fresh.mirror.closed.fire(); });
    fresh.open();
    EXPECT_FALSE(fresh.mirror.visible.get()) << when;
    EXPECT_FALSE(fresh.dl1.InDL()) << when;
    EXPECT_EQ(fresh.mirror.lstMirrors.count(), 0) << when;
    const bool isThere = fresh.files.stamp("/game/maps/lake.map").has_value();
    EXPECT_EQ(isThere, when == 9000) << when;
    EXPECT_EQ(fresh.state(), isThere ? " Map is installed. -" : " Map is not installed: +") << when;
    fresh.open();
    EXPECT_TRUE(fresh.files.stamp("/game/maps/lake.map")) << when;
  }
}

TEST_F(MapInstallTest, a_map_that_the_mirror_lacks_is_looked_for_on_the_next) {
  put(mirrorOne, "Lake.zip lake.ZIP river.zip");
  stores.AddMirrorEntry("/app/mirrors.ini", mirrorTwo);
  put(mirrorTwo, "lake.zip");
  web.pages[mirrorTwo + "lake.zip"] = web.pages[mirrorOne + "lake.zip"];
  open();
  EXPECT_EQ(notices.told(),
            "i Querying mirror for map: LAKE\n"
            "i Map was not found on this mirror!\r\nClick Map List to see maps on this mirror!");
  EXPECT_EQ(buttons(), "1000111");
  EXPECT_EQ(mirror.lblMap.caption.get(), "lake");
  mirror.lstMirrors.select(1);
  mirror.mirrorClicked.fire();
  EXPECT_EQ(state(), " Map is installed. -");
}

TEST_F(MapInstallTest, a_second_mirror_in_the_middle_takes_the_place_of_the_first) {
  stores.AddMirrorEntry("/app/mirrors.ini", mirrorTwo);
  put(mirrorTwo, "lake.zip");
  web.pages[mirrorTwo + "lake.zip"].body = "lake.map=two";
  for (const int when : {1000, 4090, 6000}) {
    loop.at(loop.tickCount() + static_cast<std::uint64_t>(when), [this] {
      mirror.lstMirrors.select(1);
      mirror.mirrorClicked.fire();
    });
    open();
    EXPECT_EQ(files.bytes("/game/maps/lake.map"), "two") << when;
    files.remove("/game/maps/lake.map");
    onShow("lake");
  }
}

TEST_F(MapInstallTest, what_goes_wrong_is_told_as_it_is) {
  const std::string found = "i Querying mirror for map: LAKE\ni Map was found on this mirror! Downloading map: LAKE\n";
  const std::string unpacking = found + "Unzipping Map: UNZIPPING MAP TO MAP FOLDER...Please Wait...\n";
  const std::string notThere = found + "i File was not found on selected mirror. Please choose another.";
  FakePage& zip = web.pages[mirrorOne + "lake.zip"];
  const FakePage good = zip;
  struct {
    std::function<void()> trouble;
    std::string told;
  } const cases[] = {
      {[&] { zip.status = "HTTP/1.1 403 Forbidden"; }, notThere},
      {[&] { zip.length = ""; }, notThere},
      {[&] { zip.length = "0"; }, notThere},
      {[&] { zip.hasHead = false; }, notThere},
      {[&] { zip.body = "no archive"; },
       unpacking + "The map could not be installed, and nothing that was there has changed.\r\nIt is no archive."},
      {[&] { zip.body = "pond.map=m"; },
       unpacking + "The archive holds no \"lake.map\". What it holds is in the maps folder now."},
      {[&] { zip.breaksAfter = 2048; }, found + "i The download broke off. Press Cancel, then try again."},
  };
  for (const auto& c : cases) {
    zip = good;
    c.trouble();
    open();
    EXPECT_EQ(notices.told(), c.told);
    EXPECT_FALSE(files.stamp("/game/maps/lake.map"));
    mirror.closed.fire();
    notices.told();
  }
  zip = good;
  zip.status = "HTTP/1.1 404 No";
  open();
  notices.told();
  EXPECT_EQ(buttons(), "1000111");
  press(MirrorCommand::download);
  EXPECT_EQ(notices.told(), "Map download was aborted previously. Closing window.");
  EXPECT_FALSE(mirror.visible.get());
  zip = good;
  open();
  EXPECT_EQ(state(), " Map is installed. -");
}

TEST_F(MapInstallTest, a_mirror_that_says_nothing_is_waited_for_and_given_up) {
  web.pages[mirrorOne].hasHead = false;
  open();
  EXPECT_EQ(loop.tickCount(), 50U + 4000 + 20 + 5500 + 4000);
  EXPECT_EQ(web.asked, mirrorOne + "\n") << "it is asked once";
  EXPECT_EQ(buttons(), "1000111");
}

TEST_F(MapInstallTest, a_name_from_a_server_leads_nowhere_else) {
  onShow("..\\..\\a/b");
  EXPECT_EQ(mirror.lblMap.caption.get(), "");
  mirror.lblMap.caption.set("..\\a/b:c");
  open();
  mirror.lblMap.caption.set("..\\a/b:c");
  web.pages[mirrorOne + "..\\a/b:c.zip"].body = "b:c.map=x";
  press(MirrorCommand::download);
  EXPECT_EQ(unzipLibrary.asked.zipFile, "/app/temp/.._a_b_c.zip");
}

TEST_F(MapInstallTest, another_server_that_is_shown_meanwhile_changes_nothing_of_the_download) {
  web.pages[mirrorOne + "lake.zip"].chunkTime = 200;
  files.changeOutside("/game/maps/hill.map", "h");
  loop.at(8500, [this] {
    onShow("hill");
    EXPECT_EQ(buttons(), "0111111") << "the download can still be ended";
    onShow("pond");
    press(MirrorCommand::download);
  });
  open();
  EXPECT_TRUE(files.stamp("/game/maps/lake.map"));
  EXPECT_TRUE(notices.told().ends_with("Map installed successfully!"));
  EXPECT_EQ(state(), " Map is not installed: +") << "for the pond";
}

TEST_F(MapInstallTest, a_map_is_picked_from_the_list_of_a_mirror) {
  put(mirrorOne, "x.zip TinRoof.zip x.zip");
  web.pages[mirrorOne + "tinroof.zip"].body = "tinroof.map=t";
  open();
  notices.told();
  files.changeOutside("/game/maps/x.map", "x");
  loop.at(loop.tickCount() + 500, [this] {
    EXPECT_TRUE(picker.visible.get());
    EXPECT_EQ(picker.cmbMaps.items.get(), (std::vector<std::string>{"x", "TinRoof", "x"}));
    EXPECT_EQ(picker.cmbMaps.text.get(), "x");
    EXPECT_EQ(picker.lblCount.caption.get(), "3 Maps Listed in Index:");
    EXPECT_EQ(picker.lblMirror.caption.get(), mirrorOne);
    picker.downloadPressed.fire();
  });
  press(MirrorCommand::mapList);
  EXPECT_EQ(notices.told(), "x.map: The selected map  is already installed!");
  EXPECT_EQ(buttons(), "1000111");
  loop.at(loop.tickCount() + 500, [this] {
    picker.cmbMaps.text.set("TinRoof");
    picker.downloadPressed.fire();
  });
  press(MirrorCommand::mapList);
  EXPECT_EQ(files.bytes("/game/maps/tinroof.map"), "t");
  open();
  web.pages[mirrorOne].hasHead = false;
  loop.at(loop.tickCount() + 4000, [this] {
    EXPECT_EQ(picker.txtNew.text.get(), "Map server timed out.");
    EXPECT_EQ(picker.lblCount.caption.get(), "0 Maps Listed in Index:");
    EXPECT_FALSE(picker.cmdDL.enabled.get());
    picker.closed.fire();
  });
  press(MirrorCommand::mapList);
  EXPECT_FALSE(picker.visible.get());
}

TEST_F(MapInstallTest, the_list_of_mirrors_is_the_users) {
  web.pages[mirrorOne].hasHead = false;
  stores.AddMirrorEntry("/app/mirrors.ini", mirrorTwo);
  profiles.WriteIniValue("/app/mirrors.ini", "2", "Mirrorurl", "http://site.test/");
  open();
  notices.told();
  const auto add = [this](const std::optional<std::string>& answer) {
    dialogs.answers = {answer};
    press(MirrorCommand::add);
    return notices.told();
  };
  EXPECT_EQ(add({}), "");
  EXPECT_EQ(dialogs.asked.back(), "Add Mirror|What is the mirror URL?\r\nEXAMPLE: http://maps.example.test/maps/");
  EXPECT_EQ(add("http://"), "Invalid URL: Invalid URL. Please try again!");
  EXPECT_EQ(add("HTTP://a.test"), "Invalid Mirror URL: http:// required before URL");
  EXPECT_EQ(add("a.http://b"), "");
  EXPECT_EQ(add("http://c"), "");
  EXPECT_EQ(mirror.lstMirrors.line(2) + " " + mirror.lstMirrors.line(3), "a.http://b/ http://c/");
  mirror.lstMirrors.select(1);
  mirrorList.showSite();
  EXPECT_TRUE(mirror.lblURL.visible.get() && mirror.picMirror.get());
  press(MirrorCommand::visitSite);
  EXPECT_EQ(shell.opened, std::vector<std::string>{"http://site.test/"});
  press(MirrorCommand::up);
  press(MirrorCommand::up);
  loop.wait(1000);
  EXPECT_EQ(mirror.lstMirrors.line(0) + " " + std::to_string(mirror.lstMirrors.selected()), mirrorTwo + " 0");
  mirrorList.showSite();
  EXPECT_EQ(mirror.lblURL.caption.get(), "http://site.test/") << "the site goes with its mirror";
  press(MirrorCommand::remove);
  press(MirrorCommand::remove);
  EXPECT_EQ(notices.told(), "No Mirror Selected!: Select mirror to remove!");
  for (int left = 3; left > 0; --left) {
    mirror.lstMirrors.select(0);
    press(MirrorCommand::remove);
  }
  EXPECT_FALSE(mirror.cmdRemove.enabled.get());
  press(MirrorCommand::mapList);
  EXPECT_EQ(notices.told(), "Please select a mirror to obtain map list!");
  EXPECT_EQ(buttons(), "0000000");
  mirror.lblMap.caption.set("lake");
  press(MirrorCommand::download);
  EXPECT_EQ(notices.told(), "Please select a mirror!");
  mirror.closed.fire();
  open();
  EXPECT_EQ(mirror.lstMirrors.line(0), site.mirror) << "the last one is back at the next start";
}

TEST_F(MapInstallTest, members_of_an_archive_are_listed_and_selected) {
  files.changeOutside("/app/a.zip", "a.map=1\nb.map=2");
  cUnzip zip(unzipLibrary);
  EXPECT_FALSE(zip.Unzip()) << "there is nothing to unpack";
  zip.setZipFile("/app/a.zip");
  EXPECT_EQ(zip.Directory(), 0);
  EXPECT_EQ(zip.FileCount(), 2);
  EXPECT_EQ(zip.Filename(2), "b.map");
  EXPECT_EQ(zip.FilePackedSize(1), 600U);
  EXPECT_TRUE(zip.FileEncrypted(1));
  zip.setFileSelected(1, false);
  zip.UnzipFolder = "/game/maps";
  EXPECT_FALSE(zip.Unzip());
  EXPECT_EQ(unzipLibrary.included, std::vector<std::string>{"b.map"});
  EXPECT_THROW(zip.Filename(3), Failure);
  zip.setZipFile("/app/none.zip");
  EXPECT_EQ(zip.FileCount(), 0);
  EXPECT_TRUE(zip.Unzip()) << "true is for trouble";
  EXPECT_EQ(zip.problem(), "There is no archive.");
}

}  // namespace
}  // namespace vantrel
