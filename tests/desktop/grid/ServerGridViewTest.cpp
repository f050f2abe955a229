#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>
#include <utility>

#include "GridWorld.h"

namespace vantrel {

namespace {

struct Heard {
  explicit Heard(ServerGrid& grid) {
    connections.push_back(grid.rowSelected.connect(
        [this](int row, int column) { log += "select " + std::to_string(row) + "," + std::to_string(column) + " "; }));
    connections.push_back(grid.mouseButton.connect(
        [this](MouseButton button) { log += button == MouseButton::right ? "right " : "left "; }));
  }
  std::string take() { return std::exchange(log, {}); }

  std::string log;
  std::vector<Connection> connections;
};

}  // namespace

using ServerGridViewTest = GridWorld;

TEST_F(ServerGridViewTest, nothing_is_shown_while_drawing_is_held_off_and_what_is_due_at_the_release) {
  QSignalSpy batches(&view.model(), &ServerGridModel::shown);
  add("one", "9 ms");
  grid.redraw.set(false);
  add("two", "80 ms");
  EXPECT_FALSE(batches.wait(2 * ServerGridModel::batchInterval));
  grid.updating.set(false);
  EXPECT_EQ(rowsShown(), 0);
  grid.redraw.set(true);
  EXPECT_EQ(rowsShown(), 0) << "one of the two switches is still off";
  grid.updating.set(true);
  EXPECT_EQ(rowsShown(), 2);
  EXPECT_EQ(batches.count(), 1);
}

TEST_F(ServerGridViewTest, releases_in_quick_succession_share_one_batch) {
  add("first", "1 ms");
  settle();
  QSignalSpy batches(&view.model(), &ServerGridModel::shown);
  for (int i = 0; i < 20; ++i) {
    grid.updating.set(false);
    add("server", "5 ms");
    grid.updating.set(true);
  }
  EXPECT_LE(batches.count(), 1) << "twenty rows within an instant";
  settle();
  EXPECT_EQ(rowsShown(), 21);
}

TEST_F(ServerGridViewTest, a_click_on_a_header_sorts_in_natural_order_and_a_second_one_reverses) {
  add("a", "80 ms");
  add("b", "9 ms");
  add("c", "...");
  add("d", "9 ms");
  settle();
  EXPECT_EQ(entries(), (std::vector<int>{1, 2, 3, 4}));
  clickHeader(ping);
  EXPECT_EQ(entries(), (std::vector<int>{2, 4, 1, 3}));
  EXPECT_TRUE(view.header().isSortIndicatorShown());
  EXPECT_EQ(view.header().sortIndicatorSection(), ping - 1);
  clickHeader(ping);
  EXPECT_EQ(entries(), (std::vector<int>{3, 1, 2, 4}));
  EXPECT_EQ(view.rowsInOrder(), entries());
  grid.setCell(3, ping, "50 ms");
  settle();
  EXPECT_EQ(entries(), (std::vector<int>{1, 3, 2, 4})) << "a row that changes moves to its place";
}

TEST_F(ServerGridViewTest, rows_that_arrive_above_leave_the_top_row_and_the_selection_where_they_are) {
  addMany(100);
  clickHeader(ping);
  view.table().verticalScrollBar()->setValue(40 * 19 + 7);
  press(view.table().rowAt(50));
  const int selected = selectedRow();
  const int top = entry(view.table().rowAt(0));
  const int y = view.table().rowViewportPosition(view.model().positionOf(top));
  ASSERT_EQ(y, -7);
  Heard heard(grid);
  for (int i = 0; i < 6; ++i) {
    add("fast", std::to_string(i) + " ms");
    grid.setCell(100 - i, ping, "1 ms");  // rows from below move above
    settle();
    ASSERT_EQ(entry(view.table().rowAt(0)), top);
    ASSERT_EQ(view.table().rowViewportPosition(view.model().positionOf(top)), y);
    ASSERT_EQ(selectedRow(), selected);
  }
  EXPECT_EQ(heard.take(), "") << "only the user selects";
}

TEST_F(ServerGridViewTest, a_top_row_that_moves_away_does_not_take_the_view_along) {
  addMany(100);
  clickHeader(ping);
  view.table().verticalScrollBar()->setValue(40 * 19);
  const int second = entry(41);
  grid.setCell(entry(40), ping, "1 ms");
  settle();
  EXPECT_EQ(entry(41), second);
  EXPECT_EQ(view.table().rowViewportPosition(41), 19);
}

TEST_F(ServerGridViewTest, a_press_selects_once_and_tells_the_button_after_it) {
  addMany(5);
  Heard heard(grid);
  press(2, Qt::LeftButton, 180);
  EXPECT_EQ(heard.take(), "select 3,2 left ");
  press(2, Qt::RightButton);
  EXPECT_EQ(heard.take(), "right ") << "the row is selected already";
  press(4, Qt::RightButton);
  EXPECT_EQ(heard.take(), "select 5,1 right ");
  EXPECT_EQ(grid.currentRow(), 5);
  QTest::mouseClick(view.table().viewport(), Qt::RightButton, {}, QPoint(50, 200));
  EXPECT_EQ(heard.take(), "right ") << "below the last row";
  EXPECT_EQ(selectedRow(), 5);
}

TEST_F(ServerGridViewTest, keys_walk_the_rows_and_select_each_once) {
  addMany(60);
  Heard heard(grid);
  struct Case {
    Qt::Key key;
    const char* heard;
  };
  for (const Case& step :
       {Case{Qt::Key_Down, "select 1,1 "}, Case{Qt::Key_Down, "select 2,1 "}, Case{Qt::Key_Up, "select 1,1 "},
        Case{Qt::Key_Up, ""}, Case{Qt::Key_End, "select 60,1 "}, Case{Qt::Key_Down, ""},
        Case{Qt::Key_Home, "select 1,1 "}, Case{Qt::Key_Left, ""}, Case{Qt::Key_Return, ""}}) {
    key(step.key);
    EXPECT_EQ(heard.take(), step.heard) << "key " << step.key;
  }
  key(Qt::Key_PageDown);
  EXPECT_GT(grid.currentRow(), 5);
  EXPECT_TRUE(view.table().viewport()->rect().contains(rowPoint(grid.currentRow() - 1)));
}

TEST_F(ServerGridViewTest, the_selection_survives_sorting_grouping_folding_and_hiding) {
  addMany(30);
  press(3);
  clickHeader(ping);
  clickHeader(ping);
  EXPECT_EQ(selectedRow(), 4);
  view.groupBy(map);
  EXPECT_EQ(selectedRow(), 4);
  view.model().fold(view.model().order().groupOf(4), Folding::folded);
  EXPECT_EQ(selectedRow(), 0);
  EXPECT_EQ(grid.currentRow(), 4);
  view.groupBy(0);
  EXPECT_EQ(selectedRow(), 4);
  grid.setRowVisible(4, false);
  settle();
  EXPECT_EQ(rowsShown(), 29);
  EXPECT_EQ(selectedRow(), 0);
  grid.setRowVisible(4, true);
  settle();
  EXPECT_EQ(selectedRow(), 4);
  grid.clear();
  addMany(30);
  EXPECT_EQ(selectedRow(), 0);
}

TEST_F(ServerGridViewTest, a_header_dragged_onto_the_bar_groups_and_does_not_sort) {
  addMany(6);
  dragHeaderToBar(map);
  EXPECT_EQ(rowsShown(), 8);
  EXPECT_EQ(shownText(0).toStdString(), "cave  (3)");
  EXPECT_EQ(shownText(4).toStdString(), "hall  (3)");
  EXPECT_EQ(view.header().sortIndicatorSection(), -1);
  EXPECT_EQ(view.header().visualIndex(map - 1), map - 1);
  EXPECT_EQ(view.header().visualIndex(name - 1), name - 1);
  dragHeaderToBar(ping);
  EXPECT_EQ(rowsShown(), 12) << "another column takes the place of the first";
  EXPECT_EQ(view.groupingBar().accessibleDescription().toStdString(), "Grouped by Ping");
}

TEST_F(ServerGridViewTest, a_header_dragged_along_the_header_moves_and_does_not_sort) {
  addMany(6);
  drag(*view.header().viewport(), headerPoint(map), headerPoint(name) - QPoint(40, 0));
  EXPECT_EQ(view.header().visualIndex(map - 1), 0);
  EXPECT_EQ(view.header().sortIndicatorSection(), -1);
  drag(*view.header().viewport(), headerPoint(name), headerPoint(name) + QPoint(0, 200));
  EXPECT_EQ(rowsShown(), 6) << "let go over the rows";
  EXPECT_EQ(view.header().sortIndicatorSection(), -1);
}

TEST_F(ServerGridViewTest, grouping_ends_when_the_chip_is_dragged_back_double_clicked_or_closed) {
  addMany(6);
  GroupingBar& bar = view.groupingBar();
  const auto grouped = [&] {
    view.groupBy(map);
    return rowsShown() == 8;
  };
  const QPoint chip = (grouped(), bar.chipRect().topLeft() + QPoint(8, 8));
  drag(bar, chip, chip + QPoint(200, 0));
  EXPECT_EQ(rowsShown(), 8) << "still inside the bar";
  drag(bar, chip, bar.mapFromGlobal(view.header().mapToGlobal(QPoint(60, 5))));
  EXPECT_EQ(rowsShown(), 6);
  ASSERT_TRUE(grouped());
  QTest::mouseDClick(&bar, Qt::LeftButton, {}, chip);
  EXPECT_EQ(rowsShown(), 6);
  ASSERT_TRUE(grouped());
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.closeRect().center());
  EXPECT_EQ(rowsShown(), 6);
  EXPECT_TRUE(bar.chipRect().isEmpty());
}

TEST_F(ServerGridViewTest, groups_fold_by_arrow_double_click_and_keys_and_stay_folded) {
  addMany(6);
  view.groupBy(map);
  Heard heard(grid);
  press(0, Qt::LeftButton, 10);
  EXPECT_EQ(rowsShown(), 5) << "the arrow";
  add("late", "7 ms", "cave");
  settle();
  EXPECT_EQ(rowsShown(), 5);
  EXPECT_EQ(shownText(0).toStdString(), "cave  (4)");
  QTest::mouseDClick(view.table().viewport(), Qt::LeftButton, {}, rowPoint(0));
  EXPECT_EQ(rowsShown(), 9) << "a double click";
  key(Qt::Key_Left);
  EXPECT_EQ(rowsShown(), 5);
  key(Qt::Key_Right);
  EXPECT_EQ(rowsShown(), 9);
  EXPECT_EQ(heard.take(), "") << "a group row is no server";
  key(Qt::Key_Down);
  EXPECT_EQ(heard.take(), "select 2,1 ");
  key(Qt::Key_Left);
  key(Qt::Key_Left);
  EXPECT_EQ(rowsShown(), 5) << "from a row to its group, then the fold";
}

TEST_F(ServerGridViewTest, a_grid_cleared_with_drawing_held_off_has_no_row_to_select) {
  addMany(10);
  Heard heard(grid);
  grid.redraw.set(false);
  grid.clear();
  add("another", "9 ms");
  press(0);
  key(Qt::Key_Down);
  view.grab();
  EXPECT_EQ(heard.take(), "left ");
  clickHeader(ping);
  EXPECT_EQ(rowsShown(), 0);
  grid.redraw.set(true);
  settle();
  EXPECT_EQ(entries(), std::vector<int>{1});
}

TEST_F(ServerGridViewTest, a_listener_may_clear_and_refill_the_grid_while_a_row_is_being_selected) {
  addMany(40);
  view.groupBy(map);
  std::string seen;
  const Connection selecting = grid.rowSelected.connect([&](int row, int) {
    seen += std::to_string(row) + " ";
    grid.clear();
    settle();
    EXPECT_EQ(rowsShown(), 0);
    addMany(3);
    QEventLoop nested;
    QTimer::singleShot(0, &nested, &QEventLoop::quit);
    nested.exec();
  });
  press(3);
  EXPECT_EQ(seen, "6 ");
  EXPECT_EQ(selectedRow(), 0);
  EXPECT_EQ(rowsShown(), 5);
  key(Qt::Key_End);
  EXPECT_EQ(seen, "6 3 ");
}

TEST_F(ServerGridViewTest, a_program_that_selects_is_followed_without_an_echo) {
  addMany(5);
  Heard heard(grid);
  grid.select(4, 1);
  EXPECT_EQ(heard.take(), "select 4,1 ");
  EXPECT_EQ(selectedRow(), 4);
}

TEST_F(ServerGridViewTest, the_list_holds_as_many_rows_as_the_grid_can) {
  grid.redraw.set(false);
  grid.setCell(ServerGrid::maximumRows, ping, "9 ms");
  grid.redraw.set(true);
  settle();
  EXPECT_EQ(rowsShown(), ServerGrid::maximumRows);
  clickHeader(ping);
  EXPECT_EQ(entry(0), ServerGrid::maximumRows);
  key(Qt::Key_End);
  EXPECT_EQ(grid.currentRow(), ServerGrid::maximumRows - 1);
}

}  // namespace vantrel
