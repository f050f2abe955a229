// The settings: what stands in the controls after a start, and what stands in the registry after a click.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

constexpr const char* gameKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Halo";

TEST(Settings, a_machine_with_no_key_gets_none_and_shows_what_is_absent) {
  World world;
  world.settings.LoadSettings();
  const frmMain& window = world.mainWindow;
  EXPECT_EQ(window.mircChan.text.get(), "Not Found");
  EXPECT_FALSE(window.mircChan.enabled.get());
  EXPECT_EQ(window.mircChan.toolTip.get(), "Enable mIRC message to type channel name!");
  EXPECT_EQ(window.cmbVid.text.get(), "");
  EXPECT_EQ(window.cmbVid.items.get(), (std::vector<std::string>{" ", "-use11", "-use14", "-use20", "-useff"}));
  EXPECT_EQ(window.cmbShowTab.text.get(), "Players");
  EXPECT_EQ(window.cmdMenu[31].value.get(), 1);
  EXPECT_EQ(window.cmdMenu[30].value.get(), 0);
  EXPECT_EQ(window.txtHaloPath.text.get(), "Not Found");
  EXPECT_EQ(window.txtHaloPath.foreColor.get(), colors::red);
  EXPECT_EQ(window.lblExeStatus.caption.get(), "Please locate Halo CE");
  EXPECT_FALSE(window.cmdMenu[18].enabled.get());
  EXPECT_TRUE(window.picSettings.visible.get());
  EXPECT_TRUE(world.registry.log.empty()) << world.registry.log.front();
}

TEST(Settings, what_is_stored_comes_back_into_the_controls) {
  World world;
  world.storeGamePath("/games/halo");
  for (const auto& [name, value] : std::vector<std::pair<std::string, std::string>>{{"mIRCchannel", "#halo"},
                                                                                    {"mIRCDDE", "1"},
                                                                                    {"console", "1"},
                                                                                    {"screenshot", "1"},
                                                                                    {"nojoystick", "1"},
                                                                                    {"novideo", "1"},
                                                                                    {"pixelshader", "-use14 -x"},
                                                                                    {"splash", "1"},
                                                                                    {"AutoJoin", "1"},
                                                                                    {"AutoRefresh", "1"},
                                                                                    {"querytab", "Misc."}}) {
    world.storeSetting(name, value);
  }
  world.settings.LoadSettings();
  const frmMain& window = world.mainWindow;
  for (const std::size_t option : {0u, 1u, 2u, 3u, 5u}) {
    EXPECT_TRUE(window.chkOptions[option].isChecked()) << option;
  }
  EXPECT_EQ(window.mircChan.text.get(), "#halo");
  EXPECT_TRUE(window.mircChan.enabled.get());
  EXPECT_EQ(window.mircChan.toolTip.get(), "");
  EXPECT_EQ(window.cmbVid.text.get(), "-use14 -x") << "a text that the list does not hold";
  EXPECT_TRUE(window.chkSplash.isChecked());
  EXPECT_EQ(window.picJoin.image.get() + window.picRefresh.image.get(), "onon");
  EXPECT_EQ(window.cmdMenu[10].value.get() + window.cmdMenu[30].value.get(), 2);
  EXPECT_FALSE(window.tmrRefresh.enabled()) << "a start begins no refresh";
  EXPECT_EQ(window.cmbShowTab.text.get(), "Misc.");
  EXPECT_EQ(window.lblExeStatus.caption.get() + window.picExeStatus.image.get(), "Set.on");
  EXPECT_TRUE(window.cmdMenu[18].enabled.get());
  EXPECT_TRUE(window.grdServers.visible.get());
}

TEST(Settings, a_value_that_no_control_can_hold_counts_as_absent) {
  for (const char* const value : {"", "yes", "1e1", "99999", "-1", "7", "0x1"}) {
    World world;
    world.storeSetting("console", value);
    world.settings.LoadSettings();
    EXPECT_EQ(world.mainWindow.chkOptions[1].value.get(), 0) << value;
  }
  World world;
  world.storeSetting("AutoJoin", "2");
  world.storeSetting("AutoRefresh", "on");
  world.settings.LoadSettings();
  EXPECT_EQ(world.mainWindow.cmdMenu[10].value.get(), 2);
  EXPECT_EQ(world.mainWindow.picJoin.image.get(), "off") << "any number but 0 and 1 leaves the picture";
  EXPECT_EQ(world.mainWindow.cmdMenu[31].value.get(), 1);
}

TEST(Settings, the_games_own_key_is_asked_for_one_user_first_and_only_when_no_folder_was_set) {
  World world;
  world.registry.write(RegistryRoot::localMachine, gameKey, "EXE Path", RegistryType::text, "/all");
  world.settings.LoadSettings();
  EXPECT_EQ(world.mainWindow.txtHaloPath.text.get(), "/all");
  World both;
  both.mainWindow.picJoin.image.set("on");
  both.storeSetting("AutoJoin", "0");
  both.registry.write(RegistryRoot::localMachine, gameKey, "EXE Path", RegistryType::text, "/all");
  both.registry.write(RegistryRoot::currentUser, gameKey, "EXE Path", RegistryType::text, "/mine");
  both.settings.LoadSettings();
  EXPECT_EQ(both.mainWindow.txtHaloPath.text.get() + both.mainWindow.picJoin.image.get(), "/mineoff");
  both.storeGamePath("");
  both.settings.LoadSettings();
  EXPECT_EQ(both.mainWindow.txtHaloPath.text.get(), "") << "an empty text is not an absent one";
  EXPECT_EQ(both.mainWindow.lblExeStatus.caption.get(), "Please locate Halo CE");
  EXPECT_TRUE(both.mainWindow.cmdMenu[18].enabled.get());
}

TEST(Settings, each_control_writes_its_value_the_moment_it_changes) {
  World world;
  world.settings.LoadSettings();
  frmMain& window = world.mainWindow;
  const auto click = [](CheckBox& box) { box.value.set(1 - box.value.get()); };
  const auto toggles = std::to_array<std::pair<CheckBox*, const char*>>({{&window.chkOptions[0], "screenshot"},
                                                                         {&window.chkOptions[1], "console"},
                                                                         {&window.chkOptions[2], "nojoystick"},
                                                                         {&window.chkOptions[3], "novideo"},
                                                                         {&window.chkOptions[5], "mIRCDDE"},
                                                                         {&window.chkSplash, "splash"},
                                                                         {&window.chkOldSplash, "oldsplash"}});
  for (const auto& [box, name] : toggles) {
    click(*box);
    EXPECT_EQ(world.setting(name), "1") << name;
    click(*box);
    EXPECT_EQ(world.setting(name), "0") << name;
  }
  click(window.chkOptions[4]);
  click(window.chkOptions[6]);
  EXPECT_EQ(world.notices.log.back(), "This feature has not been implemented.");
  window.mircChan.text.set("#a");
  window.cmbVid.text.set(" ");
  window.cmbShowTab.text.set("Vehicles");
  EXPECT_EQ(world.setting("mIRCchannel") + world.setting("pixelshader") + world.setting("querytab"), "#a Vehicles");
  world.registry.writable = false;
  click(window.chkSplash);
  EXPECT_TRUE(window.chkSplash.isChecked()) << "a value that could not be kept is no failure";
  EXPECT_EQ(world.setting("splash"), "0");
}

TEST(Settings, the_four_switches_set_their_pair_the_registry_the_picture_and_the_timer) {
  World world;
  frmMain& window = world.mainWindow;
  const auto state = [&] {
    std::string pressed;
    for (const std::size_t number : {10u, 0u, 30u, 31u}) {
      pressed += std::to_string(window.cmdMenu[number].value.get());
    }
    return pressed + (window.tmrRefresh.enabled() ? " running " : " at rest ") + window.picJoin.image.get() +
           world.setting("AutoJoin") + " " + window.picRefresh.image.get() + world.setting("AutoRefresh");
  };
  world.commands.clickIt(10);
  EXPECT_EQ(state(), "1001 running on1 offNot Found");
  world.commands.clickIt(30);
  EXPECT_EQ(state(), "1010 running on1 on1");
  world.commands.clickIt(0);
  EXPECT_EQ(state(), "0110 running off0 on1") << "to disable auto join leaves auto refresh alone";
  world.commands.clickIt(9);
  EXPECT_EQ(state(), "0101 at rest off0 off0") << "the server page ends auto refresh";
}

TEST(Settings, locating_the_game_keeps_its_folder_and_a_cancelled_dialog_changes_nothing) {
  World world;
  world.settings.LoadSettings();
  world.dialogs.answers = {std::nullopt, "/games/haloce.exe/Halo CE/HaloCE.exe"};
  world.commands.clickIt(15);
  EXPECT_EQ(world.mainWindow.txtHaloPath.text.get(), "Not Found");
  EXPECT_FALSE(world.mainWindow.cmdMenu[18].enabled.get());
  world.commands.clickIt(15);
  EXPECT_EQ(world.mainWindow.txtHaloPath.text.get(), "/games/Halo CE");
  EXPECT_EQ(world.mainWindow.txtHaloPath.foreColor.get(), colors::systemText);
  EXPECT_EQ(world.reg.GetRegValue(RegistryRoot::currentUser, settingsKey, "InitDir"), "/games/Halo CE");
  EXPECT_TRUE(world.mainWindow.cmdMenu[18].enabled.get());
  EXPECT_EQ(world.mainWindow.lblExeStatus.caption.get() + world.mainWindow.picExeStatus.image.get(), "Set.on");
  EXPECT_EQ(world.dialogs.asked.back(), "Gearbox Halo CE (haloce.exe)|haloce.exe");
}

}  // namespace
}  // namespace vantrel
