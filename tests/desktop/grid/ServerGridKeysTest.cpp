// What keys and double clicks do with the selected server, beside walking to another one.
#include <QApplication>
#include <QClipboard>
#include <memory>

#include "GridWorld.h"
#include "core/modSGrid.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/pages/ServerPage.h"

namespace vantrel {

struct ServerGridKeysTest : GridWorld {
  ServerGridKeysTest() {
    QObject::connect(&view.table(), &ServerGridTable::rowActivated, [this] { told += "activated "; });
  }
  ~ServerGridKeysTest() override { QApplication::setKeyboardInputInterval(interval); }

  // Behind a pause, and then without any.
  void type(const QString& letters) {
    QApplication::setKeyboardInputInterval(0);
    QTest::keyClicks(&view.table(), letters.left(1));
    QApplication::setKeyboardInputInterval(60000);
    QTest::keyClicks(&view.table(), letters.mid(1));
  }
  void doubleClick(int position, Qt::MouseButton button = Qt::LeftButton) {
    press(position, button);
    QTest::mouseDClick(view.table().viewport(), button, {}, rowPoint(position));
  }

  const int interval = QApplication::keyboardInputInterval();
};

TEST_F(ServerGridKeysTest, letters_lead_to_the_next_name_that_begins_with_them_else_to_one_that_contains_them) {
  for (const char* text : {"alpha", " \x01 beach", "Bravo 2", "BR\xC9 party", "zulu team", "team br", "\x03"}) {
    add(text, "9 ms", "beach");
  }
  settle();
  press(4, Qt::LeftButton, 180);
  const std::pair<const char*, int> searches[] = {{"b", 2},    {"b", 3},     {"br", 4}, {"bbb", 4},  {"bra", 3},
                                                  {"TEAM", 6}, {"l u", 1},   {" ", 1},  {"lu t", 5}, {"x", 5},
                                                  {"%", 5},    {"party", 4}, {"a", 1}};
  for (const auto& [letters, row] : searches) {
    type(letters);
    EXPECT_EQ(selectedRow(), row) << letters;
  }
  heard();
  type("bb");
  EXPECT_EQ(heard(), "select 2,2 select 3,2 ") << "each once, in the column that was clicked";
  QTest::keyClick(&view.table(), 'a', Qt::AltModifier);
  EXPECT_EQ(heard(), "") << "no letter of a name";
}

TEST_F(ServerGridKeysTest, copy_takes_the_address_of_the_selected_server) {
  const char* const addresses[][3] = {{"", "", "before"},
                                      {"127.0.0.1", "2302", "127.0.0.1:2302"},
                                      {"127.0.0.2", "", "127.0.0.2"},
                                      {"", "2302", "before"}};
  QApplication::clipboard()->setText("before");
  QTest::keySequence(&view.table(), QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "before") << "no row is selected";
  for (const auto& [address, number, expected] : addresses) {
    add("server", "9 ms");
    grid.setCell(grid.rowCount(), ip, address);
    grid.setCell(grid.rowCount(), port, number);
    settle();
    press(grid.rowCount() - 1);
    QApplication::clipboard()->setText("before");
    QTest::keySequence(&view.table(), QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), expected);
  }
}

TEST_F(ServerGridKeysTest, enter_and_a_double_click_activate_the_server_and_fold_a_group) {
  addMany(6);
  key(Qt::Key_Return);
  EXPECT_EQ(heard(), "") << "no row is selected";
  view.groupBy(map);
  doubleClick(2);
  EXPECT_EQ(heard(), "select 4,1 left select 4,1 left activated ");
  doubleClick(2, Qt::RightButton);
  EXPECT_EQ(heard(), "right right ");
  key(Qt::Key_Return);
  key(Qt::Key_Enter);
  EXPECT_EQ(heard(), "activated activated ");
  doubleClick(0);
  EXPECT_EQ(rowsShown(), 5);
  key(Qt::Key_Return);
  EXPECT_EQ(rowsShown(), 8);
  doubleClick(9);
  EXPECT_EQ(heard(), "left left ") << "below the last row, and the group told nothing";
}

TEST_F(ServerGridKeysTest, the_list_may_end_at_the_second_press_of_a_double_click_or_when_it_tells_of_it) {
  addMany(3);
  std::unique_ptr<ServerGridView> list;
  const auto doubleClickOnNew = [this, &list] {
    list = std::make_unique<ServerGridView>(grid);
    QObject::connect(&list->table(), &ServerGridTable::rowActivated, [&list] { list.reset(); });
    QMouseEvent second(QEvent::MouseButtonDblClick, {30, 25}, {30, 25}, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list->table().viewport(), &second);
    EXPECT_EQ(list, nullptr);
  };
  doubleClickOnNew();
  const Connection ending = grid.mouseButton.connect([&list](MouseButton) { list.reset(); });
  doubleClickOnNew();
}

TEST(ServerPage, an_activated_server_is_queried_as_long_as_its_button_is_on) {
  struct : Notices {
    void ShowPopMsg(const std::string&) override {}
    void popUpBalloon(const std::string&, const std::string&) override {}
  } notices;
  QtLoop loop;
  frmMain window(loop);
  Commands commands(window, notices);
  SweepProgress progress;
  int queries = 0;
  commands.add(command::queryServer, [&] {
    ++queries;
    window.grdServers.clear();
  });
  SetupGrid(window.grdServers);
  ServerPage page(window, commands, progress, nullptr);
  for (const bool on : {true, false}) {
    window.cmdMenu[command::queryServer].enabled.set(on);
    window.grdServers.setCell(1, cName, "server");
    ASSERT_TRUE(QTest::qWaitFor([&] { return page.grid().model().rowCount() == 1; }));
    window.grdServers.select(1, cName);
    QTest::keyClick(&page.grid().table(), Qt::Key_Return);
    EXPECT_EQ(queries, 1);
  }
}

}  // namespace vantrel
