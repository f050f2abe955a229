// What a row of the server list does for the user: it becomes the current server or a favorite, or is hidden.

#include <gtest/gtest.h>

#include "core/modSGrid.h"
#include "support/World.h"

namespace vantrel {
namespace {

struct ServerListTest : testing::Test, World {
  void addRow(const std::string& name, const std::string& ip, const std::string& port,
              const std::string& players = "3/16", const std::string& password = "No") {
    if (grid.columnCount() == 0) {
      SetupGrid(grid);
    }
    const int row = grid.rowCount() + 1;
    grid.setCell(row, cName, name);
    grid.setCell(row, cIP, ip);
    grid.setCell(row, cPort, port);
    grid.setCell(row, cPlayers, players);
    grid.setCell(row, cPassword, password);
  }
  // The rows that are seen, by their names.
  std::string seen() const {
    std::string names;
    for (int row = 1; row <= grid.rowCount(); ++row) {
      names += grid.rowVisible(row) ? grid.cellText(row, cName) : "";
    }
    return names;
  }
  std::string current() const { return mainWindow.txtIP.text.get() + ":" + mainWindow.txtPort.text.get(); }
  std::string count() const { return mainWindow.lblCount.caption.get(); }

  ServerGrid& grid = mainWindow.grdServers;
};

TEST_F(ServerListTest, a_selected_row_is_the_current_server_with_its_cells_as_they_stand) {
  addRow("One", "192.0.2.1", "2302");
  addRow("Two", "192.0.2.2", "");
  grid.select(1, 5);
  EXPECT_EQ(current(), "192.0.2.1:2302");
  grid.select(2, 1);
  EXPECT_EQ(current(), "192.0.2.2:");
  EXPECT_TRUE(grid.drawing());
  EXPECT_TRUE(network.log.empty()) << "nobody asked it";
}

TEST_F(ServerListTest, a_right_click_offers_to_make_the_row_a_favorite_with_the_password_in_the_editor) {
  grid.mouseButton.fire(MouseButton::right);
  EXPECT_TRUE(menu.shown.empty()) << "there is no row";
  addRow(" One", "192.0.2.1", "2302");
  grid.select(1, 1);
  grid.mouseButton.fire(MouseButton::left);
  grid.mouseButton.fire(MouseButton::right);
  EXPECT_EQ(menu.shown, (std::vector<std::vector<std::string>>{{"Add Server to Favorites"}}));
  EXPECT_EQ(mainWindow.myFaves1.count(), 0) << "dismissed";
  menu.choice = 1;
  mainWindow.txtPass.text.set("pw");
  mainWindow.cmbGameType.text.set("CTF");
  const std::uint64_t before = loop.tickCount();
  grid.mouseButton.fire(MouseButton::right);
  ASSERT_EQ(mainWindow.myFaves1.count(), 1);
  EXPECT_EQ(mainWindow.myFaves1.at(1), (FavoriteItem{"Undefined", "pw", "192.0.2.1:2302", " One"}));
  EXPECT_EQ(loop.tickCount() - before, 110u);
  EXPECT_TRUE(mainWindow.picFaves.visible.get());
  EXPECT_EQ(current(), "192.0.2.1:2302");
}

TEST_F(ServerListTest, a_row_without_an_address_or_that_went_while_the_menu_was_open_is_no_favorite) {
  menu.choice = 1;
  addRow("One", "", "2302");
  grid.select(1, 1);
  grid.mouseButton.fire(MouseButton::right);
  EXPECT_EQ(notices.told(), "Could not add server to favorites. There is no IP.");
  addRow("Two", "192.0.2.2", "2302");
  grid.select(2, 1);
  menu.meanwhile = [this] { grid.clear(); };
  grid.mouseButton.fire(MouseButton::right);
  EXPECT_EQ(notices.told(), "Could not add server to favorites. There is no IP.");
  EXPECT_EQ(mainWindow.myFaves1.count(), 0);
}

TEST_F(ServerListTest, the_filter_hides_once_what_is_locked_or_full_or_empty_for_sixteen) {
  CheckBox& hide = mainWindow.chkOptions[4];
  hide.value.set(1);
  EXPECT_EQ(count(), "Server Count: 0");
  hide.value.set(0);
  addRow("A", "192.0.2.1", "1");
  addRow("B", "192.0.2.1", "2", "16/16");
  addRow("C", "192.0.2.1", "3", "0/16", "Yes");
  addRow("D", "192.0.2.1", "4", "3/16", "Yes");
  addRow("E", "192.0.2.1", "5", "8/8");
  addRow("F", "192.0.2.1", "6", "0/8", "yes");
  hide.value.set(1);
  EXPECT_EQ(seen(), "AEF");
  EXPECT_EQ(count(), "Server Count: 3") << "a locked full one counts once";
  addRow("G", "192.0.2.1", "7", "0/16");
  EXPECT_EQ(seen(), "AEFG") << "what comes later shows until the next click";
  hide.value.set(0);
  EXPECT_EQ(seen(), "ABCDEFG");
  EXPECT_EQ(count(), "Server Count: 7");
  EXPECT_TRUE(grid.drawing());
  grid.clear();
  EXPECT_EQ(count(), "Server Count: 0");
}

}  // namespace
}  // namespace vantrel
