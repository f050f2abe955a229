// The icon in the tray, and the main window's way there and back.

#include <gtest/gtest.h>

#include "appearance/modTray.h"
#include "support/FakeTray.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct TrayTest : testing::Test, World {
  TrayTest() {
    mainWindow.visible.set(true);
    icon.load();
  }
  void minimize() { mainWindow.windowState.set(WindowState::minimized); }
  // "seen", "minimized" as windows are, or "tray".
  std::string where() const {
    return icon.isInTray()                                          ? "tray"
           : !mainWindow.visible.get()                              ? "lost"
           : mainWindow.windowState.get() == WindowState::minimized ? "minimized"
                                                                    : "seen";
  }

  FakeTray tray;
  std::string did;
  modTray icon{{tray, mainWindow, notices, [this] { did += "about "; }, [this] { did += "exit "; }}};
};

TEST_F(TrayTest, the_icon_comes_up_with_its_menu_and_its_text_when_the_window_has_loaded) {
  EXPECT_TRUE(tray.shown && tray.persistent);
  EXPECT_EQ(tray.plan.toolTip, "Vantrel\r\n");
  EXPECT_EQ(tray.plan.menuButton, TrayButton::right);
  EXPECT_EQ(tray.plan.popupMenu, (std::vector<std::string>{"Restore", "About Vantrel CE", "Exit"}));
}

TEST_F(TrayTest, a_minimised_window_goes_into_the_tray_and_comes_back_as_it_was_by_every_way_there_is) {
  const struct {
    const char* way;
    std::function<void()> act;
  } ways[] = {
      {"a click", [this] { tray.Click.fire(TrayButton::left); }},
      {"the menu", [this] { tray.menuChosen.fire(modTray::mnuRestore); }},
      {"the menu, for what the program is", [this] { tray.menuChosen.fire(modTray::mnuAbout); }},
      {"the end of the game", [this] { mainWindow.windowState.set(WindowState::maximized); }},
      {"a link", [this] { mainWindow.focusWanted.fire(); }},
  };
  mainWindow.windowState.set(WindowState::maximized);
  for (const auto& [way, act] : ways) {
    minimize();
    EXPECT_EQ(where(), "tray") << way;
    EXPECT_FALSE(mainWindow.visible.get()) << way;
    act();
    EXPECT_EQ(where(), "seen") << way;
    EXPECT_EQ(mainWindow.windowState.get(), WindowState::maximized) << way;
    EXPECT_TRUE(mainWindow.visible.get()) << way;
  }
  EXPECT_EQ(did, "about ");
}

TEST_F(TrayTest, the_window_is_minimised_as_windows_are_where_no_icon_would_bring_it_back) {
  const struct {
    const char* why;
    std::function<void()> act;
  } reasons[] = {
      {"no tray", [this] { tray.standing = false; }},
      {"no icon", [this] { icon.chkTray.value.set(0); }},
      {"not wanted", [this] { icon.chkMin.value.set(0); }},
  };
  for (const auto& [why, act] : reasons) {
    tray.standing = true;
    icon.chkTray.value.set(1);
    icon.chkMin.value.set(1);
    act();
    minimize();
    EXPECT_EQ(where(), "minimized") << why;
    tray.Click.fire(TrayButton::left);
    EXPECT_EQ(where(), "seen") << why;
    minimize();
    mainWindow.windowState.set(WindowState::normal);
    EXPECT_EQ(where(), "seen") << why;
  }
}

TEST_F(TrayTest, a_window_in_the_tray_comes_back_when_that_goes_away_or_is_wanted_no_more) {
  minimize();
  tray.crash();
  EXPECT_EQ(where(), "minimized");
  tray.comeAgain();
  EXPECT_EQ(where(), "minimized");
  EXPECT_EQ(notices.told(), "Explorer has been restarted.");
  tray.Click.fire(TrayButton::left);
  EXPECT_EQ(where(), "seen");
  for (CheckBox* const box : {&icon.chkTray, &icon.chkMin}) {
    icon.chkTray.value.set(1);
    icon.chkMin.value.set(1);
    mainWindow.windowState.set(WindowState::normal);
    minimize();
    EXPECT_EQ(where(), "tray");
    box->value.set(0);
    EXPECT_EQ(where(), "minimized");
  }
}

TEST_F(TrayTest, an_icon_that_does_not_persist_is_not_taken_for_one_that_is_there) {
  icon.chkPersistent.value.set(0);
  tray.crash();
  tray.comeAgain();
  EXPECT_EQ(icon.chkTray.value.get(), 0);
  minimize();
  EXPECT_EQ(where(), "minimized");
}

TEST_F(TrayTest, a_window_that_comes_up_minimised_by_a_link_goes_into_the_tray) {
  mainWindow.visible.set(false);
  minimize();
  EXPECT_EQ(where(), "lost") << "it has not come up yet, and nothing brings it up before its time";
  tray.Click.fire(TrayButton::left);
  EXPECT_FALSE(mainWindow.visible.get());
  mainWindow.visible.set(true);
  EXPECT_EQ(where(), "tray");
}

TEST_F(TrayTest, exit_ends_the_program_and_a_closing_window_is_not_brought_back) {
  minimize();
  tray.menuChosen.fire(modTray::mnuExit);
  EXPECT_EQ(did, "exit ");
  icon.release();
  EXPECT_FALSE(tray.shown);
  for (const auto& act : {std::function<void()>([this] { tray.Click.fire(TrayButton::left); }),
                          std::function<void()>([this] { tray.lost.fire(); }),
                          std::function<void()>([this] { mainWindow.windowState.set(WindowState::normal); })}) {
    act();
    EXPECT_FALSE(mainWindow.visible.get());
  }
}

TEST_F(TrayTest, what_the_mouse_does_with_the_icon_is_noted_in_a_list) {
  tray.Click.fire(TrayButton::left);
  tray.DblClick.fire(TrayButton::right);
  tray.MouseDown.fire(TrayButton::middle);
  EXPECT_EQ(icon.lstTray.line(0) + "|" + icon.lstTray.line(1) + "|" + icon.lstTray.line(2),
            "Left Click|Right Double-Click|Middle Mouse Down");
  EXPECT_EQ(icon.lstTray.count(), 3);
  EXPECT_EQ(icon.lstTray.selected(), -1);
  icon.clickList();
  EXPECT_EQ(icon.lstTray.selected(), 2);
}

}  // namespace
}  // namespace vantrel
