// The commands of the favorites: what each leaves in the list, in the file, in the editor and with the user.

#include <gtest/gtest.h>

#include "support/World.h"

namespace vantrel {
namespace {

const std::string head = "[VANTREL FAVORITES]\r\n[FAVECOUNT]\r\nFavorites=";

std::string section(int number, const std::string& name, const std::string& hostname, const std::string& gametype,
                    const std::string& password) {
  return "[" + std::to_string(number) + "]\r\nname=" + name + "\r\nhostname=" + hostname + "\r\ngametype=" + gametype +
         "\r\npassword=" + password + "\r\n";
}

struct FavoritesTest : testing::Test, World {
  FavoritesTest() { stores.NewFaves(path("favorites.ini")); }

  void fillEditor(const std::string& name, const std::string& ip, const std::string& port, const std::string& gametype,
                  const std::string& password) {
    mainWindow.txtServerName.text.set(name);
    mainWindow.txtIP2.text.set(ip);
    mainWindow.txtPort2.text.set(port);
    mainWindow.cmbGameType.text.set(gametype);
    mainWindow.txtPass.text.set(password);
  }
  void add(const std::string& name, const std::string& ip, const std::string& gametype = "CTF") {
    fillEditor(name, ip, "2302", gametype, "pw");
    commands.clickIt(24);
  }
  void click(int number) {
    list.select(number);
    list.itemClicked.fire(number);
  }
  // Number, name, address, port, game type and password in the editor, and which of Update and Clear can be pressed.
  std::string editor() const {
    const frmMain& w = mainWindow;
    return w.txtID.text.get() + "|" + w.txtServerName.text.get() + "|" + w.txtIP2.text.get() + "|" +
           w.txtPort2.text.get() + "|" + w.cmbGameType.text.get() + "|" + w.txtPass.text.get() + "|" +
           (w.cmdMenu[25].enabled.get() ? "U" : "") + (w.cmdMenu[26].enabled.get() ? "C" : "");
  }
  std::string lines() const {
    std::string all;
    for (int i = 0; i < mainWindow.List1.count(); ++i) {
      all += mainWindow.List1.line(i) + "\n";
    }
    return all;
  }
  std::string current() const { return mainWindow.txtIP.text.get() + ":" + mainWindow.txtPort.text.get(); }
  std::string file() {
    loop.wait(0);
    return onDisk("favorites.ini");
  }

  FavoritesList& list = mainWindow.myFaves1;
};

constexpr const char* cleared = "||||Undefined||U";

TEST_F(FavoritesTest, add_takes_the_editor_into_list_and_file_and_a_double_press_adds_once) {
  fillEditor("", "192.0.2.1", "2302", "", "");
  loop.startTimer(0, TimerKind::once, [this] { EXPECT_FALSE(mainWindow.cmdMenu[24].enabled.get()); });
  const std::uint64_t before = loop.tickCount();
  commands.clickIt(24);
  EXPECT_EQ(loop.tickCount() - before, 100u);
  EXPECT_TRUE(mainWindow.cmdMenu[24].enabled.get());
  EXPECT_EQ(editor(), cleared);
  fillEditor(" Mine ", "192.0.2.1", "2302", "My Mod", " =secret ");
  commands.clickIt(24);
  EXPECT_EQ(file(), head + "2\r\n" + section(1, "192.0.2.1:2302", "192.0.2.1:2302", "Undefined", "") +
                        section(2, " Mine ", "192.0.2.1:2302", "My Mod", " =secret "));
  ASSERT_EQ(list.count(), 2) << "the editor may add a favorite twice";
  EXPECT_EQ(list.at(2), (FavoriteItem{"My Mod", " =secret ", "192.0.2.1:2302", " Mine "}));
  EXPECT_EQ(notices.told(), "");
}

TEST_F(FavoritesTest, what_cannot_be_added_says_why_and_changes_nothing) {
  struct Case {
    int command;
    const char* ip;
    const char* port;
    const char* told;
  };
  add("Mine", "192.0.2.1");
  for (const Case& c : {Case{24, "192.0.2", "2302", "Valid IP required to add a favorite!"},
                        Case{24, "192.0.2.2", "", "Valid port required to add a favorite!"},
                        Case{39, "192.0.2", "x", "Problem Adding Favorite: Invalid IP"},
                        Case{39, "192.0.2.2", "x", "Problem Adding Favorite: Invalid Port"},
                        Case{39, "192.0.2.1", "2302", "It's in your faves already. Favorite # 1"}}) {
    mainWindow.txtIP.text.set(c.ip);
    mainWindow.txtPort.text.set(c.port);
    fillEditor("Other", c.ip, c.port, "CTF", "");
    commands.clickIt(c.command);
    EXPECT_EQ(notices.told(), c.told);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(mainWindow.txtServerName.text.get(), "Other");
  }
  EXPECT_EQ(file(), head + "1\r\n" + section(1, "Mine", "192.0.2.1:2302", "CTF", "pw"));
}

TEST_F(FavoritesTest, the_current_server_becomes_a_favorite_but_never_the_first_one) {
  mainWindow.txtIP.text.set("a.b.c.d:2303");
  commands.clickIt(39);
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(notices.told(), "");
  add("Mine", "a.b.c.d");
  commands.clickIt(39);
  EXPECT_EQ(notices.told(), "Server was added as Favorite # 2");
  EXPECT_EQ(list.at(2), (FavoriteItem{"Undefined", "", "a.b.c.d:2303", "Vantrel CE"}));
  EXPECT_EQ(list.selected(), 1) << "the search for it has walked the list";
  EXPECT_EQ(file(), head + "2\r\n" + section(1, "Mine", "a.b.c.d:2302", "CTF", "pw") +
                        section(2, "a.b.c.d:2303", "a.b.c.d:2303", "Undefined", ""));
  rewrites.saveFaves(path("favorites.ini"));
  EXPECT_NE(file().find("[2]\r\nname=Vantrel CE\r\n"), std::string::npos);
}

TEST_F(FavoritesTest, a_click_shows_the_favorite_and_makes_it_the_current_server_but_leaves_the_editor_empty) {
  add("Mine", "192.0.2.1");
  fillEditor("Typed", "192.0.2.7", "1", "Race", "x");
  EXPECT_EQ(editor(), "|Typed|192.0.2.7|1|Race|x|UC");
  click(1);
  EXPECT_EQ(editor(), "1||||Undefined||UC");
  EXPECT_EQ(lines(), "Mine\nhalo://192.0.2.1:2302/\nGameType: CTF\nStored Password: pw\n");
  EXPECT_EQ(current(), "192.0.2.1:2302");
}

TEST_F(FavoritesTest, edit_fills_the_editor_and_update_changes_the_favorite_of_the_number_in_it) {
  commands.clickIt(28);
  EXPECT_EQ(notices.told(),
            "Double Click The Server To Edit: Server must be selected to ensure the right one is edited.");
  commands.clickIt(25);
  EXPECT_EQ(notices.told(), "Error: To update, you must first select a favorite!");
  add("First", "192.0.2.1");
  list.add({"", "secret", "192.0.2.2:1", "Second"});
  stores.AddFave(path("favorites.ini"), "Second", "secret", "192.0.2.2:1", "");
  click(2);
  commands.clickIt(28);
  EXPECT_EQ(editor(), "2|Second|192.0.2.2|1|Undefined|secret|UC");
  EXPECT_EQ(lines(), "Editing: Favorite # 2\n");
  EXPECT_EQ(current(), "192.0.2.2:1");
  list.select(1);
  mainWindow.txtServerName.text.set("Two");
  mainWindow.txtIP2.text.set("192.0.2.3:9");
  commands.clickIt(25);
  EXPECT_EQ(notices.told(), "Success: 192.0.2.3:9 was updated");
  EXPECT_EQ(list.selected(), 2);
  EXPECT_EQ(list.at(2), (FavoriteItem{"Undefined", "secret", "192.0.2.3:9", "Two"}));
  EXPECT_EQ(current(), "192.0.2.3:9");
  EXPECT_EQ(editor(), cleared);
  EXPECT_EQ(lines(), "");
  EXPECT_EQ(file(), head + "2\r\n" + section(1, "First", "192.0.2.1:2302", "CTF", "pw") +
                        section(2, "Two", "192.0.2.3:9", "Undefined", "secret"));
}

TEST_F(FavoritesTest, a_number_in_the_editor_that_is_no_favorites_fails_with_nothing_changed) {
  add("Mine", "192.0.2.1");
  const std::string before = file();
  for (const auto& [number, told] :
       std::vector<std::pair<std::string, std::string>>{{"", "Error # 13 Type mismatch"},
                                                        {"x", "Error # 13 Type mismatch"},
                                                        {"2", "Error # 9 Subscript out of range"},
                                                        {"0", "Error # 9 Subscript out of range"},
                                                        {"99999", "Error # 6 Overflow"}}) {
    list.select(1);
    commands.clickIt(28);
    mainWindow.txtServerName.text.set("Other");
    mainWindow.txtID.text.set(number);
    commands.clickIt(25);
    EXPECT_EQ(notices.told(), told) << number;
  }
  EXPECT_EQ(list.at(1).name, "Mine");
  EXPECT_EQ(file(), before);
}

TEST_F(FavoritesTest, an_update_with_an_editor_that_was_never_filled_keeps_a_copy_of_what_it_takes_away) {
  add("Mine", "192.0.2.1");
  const std::string before = file();
  click(1);
  commands.clickIt(25);
  EXPECT_EQ(file(), head + "1\r\n" + section(1, "", ":", "Undefined", ""));
  EXPECT_EQ(onDisk("favorites.ini.bak"), before);
}

TEST_F(FavoritesTest, what_the_user_begins_while_a_notice_is_up_stays_in_the_editor) {
  add("First", "192.0.2.1");
  add("Second", "192.0.2.2");
  list.select(1);
  commands.clickIt(28);
  notices.duringBalloon = [this] {
    list.select(2);
    commands.clickIt(28);
  };
  commands.clickIt(25);
  EXPECT_EQ(editor(), "2|Second|192.0.2.2|2302|CTF|pw|UC");
}

TEST_F(FavoritesTest, delete_moves_the_later_ones_up_in_list_and_file_and_clears_the_editor) {
  add("First", "192.0.2.1");
  add("Second", "192.0.2.2");
  add("Third", "192.0.2.3");
  click(2);
  commands.clickIt(34);
  EXPECT_EQ(editor(), cleared);
  EXPECT_EQ(list.selected(), 0);
  EXPECT_EQ(file(), head + "2\r\n" + section(1, "First", "192.0.2.1:2302", "CTF", "pw") +
                        section(2, "Third", "192.0.2.3:2302", "CTF", "pw"));
  const std::string before = file();
  commands.clickIt(34);
  EXPECT_EQ(notices.told(), "Error # 9 No favorite is selected.");
  EXPECT_EQ(file(), before);
}

TEST_F(FavoritesTest, a_change_in_the_middle_of_a_deletion_hits_no_other_favorite_on_the_disk) {
  add("First", "192.0.2.1");
  add("Second", "192.0.2.2");
  add("Third", "192.0.2.3");
  const std::string before = file();
  loop.startTimer(10, TimerKind::once, [this] {
    list.select(2);
    commands.clickIt(28);
    mainWindow.txtServerName.text.set("3rd");
    commands.clickIt(25);
  });
  loop.startTimer(20, TimerKind::once, [&] { EXPECT_EQ(onDisk("favorites.ini"), before); });
  list.select(1);
  commands.clickIt(34);
  EXPECT_EQ(file(), head + "2\r\n" + section(1, "Second", "192.0.2.2:2302", "CTF", "pw") +
                        section(2, "3rd", "192.0.2.3:2302", "CTF", "pw"));
}

TEST_F(FavoritesTest, what_is_typed_in_the_middle_of_a_deletion_stays_with_the_favorite_that_it_belongs_to) {
  for (const int edited : {1, 2, 3}) {
    for (const char* name : {"First", "Second", "Third"}) {
      add(name, "192.0.2.1");
    }
    list.select(edited);
    commands.clickIt(28);
    loop.startTimer(10, TimerKind::once, [this] { mainWindow.txtServerName.text.set("Typed"); });
    list.select(2);
    commands.clickIt(34);
    EXPECT_EQ(mainWindow.txtServerName.text.get(), "Typed");
    EXPECT_EQ(mainWindow.txtID.text.get(), edited == 1 ? "1" : edited == 2 ? "" : "2");
    list.clear();
    rewrites.saveFaves(path("favorites.ini"));
  }
}

TEST_F(FavoritesTest, a_favorite_without_a_port_does_not_get_that_of_another_server) {
  list.add({"", "", "192.0.2.9", ""});
  for (const int command : {0, 28}) {
    mainWindow.txtIP.text.set("192.0.2.1:2302");
    command == 0 ? click(1) : commands.clickIt(command);
    EXPECT_EQ(current(), "192.0.2.9:");
  }
  EXPECT_EQ(editor(), "1||192.0.2.9||Undefined||UC");
}

TEST_F(FavoritesTest, a_picture_is_shown_and_kept_until_it_is_taken_away) {
  const auto stored = [this] {
    loop.wait(0);
    return onDisk("settings.ini");
  };
  const std::string settingsHead = "[SETTINGS]\r\n[FAVESPIC]\r\npicture=";
  dialogs.answers = {"/pictures/one.jpg", "/pictures/two.gif", std::nullopt};
  commands.clickIt(27);
  EXPECT_EQ(list.picture.get(), "/pictures/one.jpg");
  EXPECT_EQ(stored(), "") << "only a file that is there keeps it";
  stores.NewSettings(path("settings.ini"));
  loop.wait(0);
  commands.clickIt(27);
  EXPECT_EQ(stored(), settingsHead + "/pictures/two.gif\r\n");
  commands.clickIt(27);
  EXPECT_EQ(stored(), settingsHead + "/pictures/two.gif\r\n") << "cancelled";
  EXPECT_EQ(dialogs.asked.back(), "All Suported Types|*.bmp; *.jpg; *.jpeg; *.gif");
  int loads = 0;
  const Connection watch = list.picture.changed.connect([&loads] { ++loads; });
  dialogs.answers = {"/pictures/two.gif"};
  commands.clickIt(27);
  EXPECT_EQ(loads, 1) << "the file may hold another picture now";
  commands.clickIt(36);
  EXPECT_EQ(list.picture.get(), "");
  EXPECT_EQ(stored(), settingsHead + "\r\n");
}

}  // namespace
}  // namespace vantrel
