// The columns of the server list under a user's hands: shown, hidden, moved and made wider.
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>

#include "GridWorld.h"

namespace vantrel {

struct ServerGridColumnsTest : GridWorld {
  static constexpr int longEnough = 2 * ServerGridColumns::changeDelay;

  QMenu* openMenu() {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {30, 5}, view.header().mapToGlobal(QPoint(30, 5)));
    QCoreApplication::sendEvent(view.header().viewport(), &event);
    return view.header().findChild<QMenu*>("columnMenu");
  }
  static void close(QMenu* menu) {
    menu->close();
    QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
  }
  std::string menuTexts() {
    QMenu* const menu = openMenu();
    std::string texts;
    for (const QAction* entry : menu->actions()) {
      texts += (entry->isEnabled() ? "" : "!") + std::string(entry->isChecked() ? "+" : "");
      texts += (entry->isSeparator() ? "---" : entry->text().toStdString()) + "|";
    }
    close(menu);
    return texts;
  }
  void choose(int place) {
    QMenu* const menu = openMenu();
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(place)).center());
    close(menu);
  }
  QPoint edge(int column) { return headerPoint(column) + QPoint(view.header().sectionSize(column - 1) / 2 - 1, 0); }

  QSignalSpy changes{&view, &ServerGridView::columnLayoutChanged};
};

TEST_F(ServerGridColumnsTest, the_menu_of_the_header_shows_and_hides_columns_but_never_the_last_one) {
  EXPECT_EQ(menuTexts(), "+Server Name|+Ping|+IP|+Port|+Map|---|Reset Columns|");
  const std::pair<int, const char*> choices[] = {{1, "cName:165 -cPing:50 cIP:70 cPort:50 cMap:100"},
                                                 {4, "cName:165 -cPing:50 cIP:70 cPort:50 -cMap:100"},
                                                 {3, "cName:165 -cPing:50 cIP:70 -cPort:50 -cMap:100"},
                                                 {0, "-cName:165 -cPing:50 cIP:70 -cPort:50 -cMap:100"},
                                                 {2, "-cName:165 -cPing:50 cIP:70 -cPort:50 -cMap:100"}};
  for (const auto& [place, expected] : choices) {
    choose(place);
    EXPECT_EQ(view.columnLayout(), expected);
  }
  EXPECT_EQ(menuTexts(), "Server Name|Ping|!+IP|Port|Map|---|Reset Columns|");
  view.resize(3000, 300);
  EXPECT_EQ(view.header().sectionSize(ip - 1), 3000) << "the only one has all the room";
  choose(3);
  EXPECT_EQ(view.header().sectionSize(ip - 1), 70) << "and gives it back";
  choose(6);
  EXPECT_EQ(view.columnLayout(), "cName:165 cPing:50 cIP:70 cPort:50 cMap:100");
  EXPECT_FALSE(view.table().isColumnHidden(name - 1));
}

TEST_F(ServerGridColumnsTest, a_drag_moves_or_widens_a_column_and_tells_of_it_once) {
  ASSERT_GT(view.header().sectionSize(map - 1), 200) << "the last one is stretched";
  drag(*view.header().viewport(), edge(name), edge(name) + QPoint(40, 0));
  EXPECT_EQ(view.columnLayout(), "cName:205 cPing:50 cIP:70 cPort:50 cMap:100");
  EXPECT_TRUE(changes.wait());
  drag(*view.header().viewport(), edge(map), edge(map) - QPoint(80, 0));
  clickHeader(ip);
  EXPECT_FALSE(changes.wait(longEnough)) << "the last one fills what is left, whoever pulls at it";
  EXPECT_EQ(changes.count(), 1);
  dragHeader(map, view.header(), {20, 10});
  EXPECT_EQ(view.header().sectionSize(map - 1), 100) << "its own width, now that another one is the last";
  choose(3);
  EXPECT_EQ(view.columnLayout(), "cMap:100 cName:205 cPing:50 cIP:70 -cPort:50");
  EXPECT_TRUE(changes.wait());
  EXPECT_EQ(changes.count(), 2);
  QTest::mouseDClick(view.header().viewport(), Qt::LeftButton, {}, edge(name));
  EXPECT_LT(view.header().sectionSize(name - 1), 205) << "fitted to its texts";
  EXPECT_NE(view.columnLayout().find("cName:" + std::to_string(view.header().sectionSize(name - 1))),
            std::string::npos);
}

TEST_F(ServerGridColumnsTest, a_layout_that_the_program_sets_is_applied_when_the_columns_come_and_is_no_change) {
  ServerGrid later;
  ServerGridView list(later);
  QSignalSpy heardOf(&list, &ServerGridView::columnLayoutChanged);
  list.setColumnLayout("cMap:90 -cPing:60");
  EXPECT_EQ(list.columnLayout(), "cMap:90 -cPing:60");
  later.addColumn({"cName", "Name", Alignment::left, 0, 165, 0});
  later.addColumn({"cPing", "", Alignment::left, 4, 50, 0});
  ASSERT_TRUE(QTest::qWaitFor([&] { return list.model().columnCount() == 2; }));
  EXPECT_EQ(list.columnLayout(), "cName:165 -cPing:60");
  later.addColumn({"cMap", "Map", Alignment::left, 0, 100, 0});
  ASSERT_TRUE(QTest::qWaitFor([&] { return list.model().columnCount() == 3; }));
  EXPECT_EQ(list.columnLayout(), "cName:165 cMap:90 -cPing:60");
  EXPECT_EQ(list.header().logicalIndex(1), 2);
  EXPECT_TRUE(list.table().isColumnHidden(1));
  list.setColumnLayout("cMap:90 cPing:60 cName:70");
  EXPECT_EQ(list.columnLayout(), "cMap:90 cPing:60 cName:70");
  EXPECT_EQ(list.header().logicalIndex(2), 0);
  list.setColumnLayout("");
  EXPECT_EQ(list.columnLayout(), "cName:165 cPing:50 cMap:100");
  EXPECT_FALSE(heardOf.wait(longEnough));
}

}  // namespace vantrel
