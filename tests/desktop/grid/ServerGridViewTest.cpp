#include <QSignalSpy>

#include "GridWorld.h"

namespace vantrel {

using ServerGridViewTest = GridWorld;

TEST_F(ServerGridViewTest, rows_are_shown_in_batches_and_only_while_drawing_is_released) {
  QSignalSpy batches(&view.model(), &ServerGridModel::shown);
  add("one", "9 ms");
  grid.redraw.set(false);
  add("two", "80 ms");
  EXPECT_FALSE(batches.wait(2 * ServerGridModel::batchInterval));
  grid.updating.set(false);
  grid.redraw.set(true);
  EXPECT_EQ(rowsShown(), 0) << "one of the two switches is still off";
  grid.updating.set(true);
  EXPECT_EQ(rowsShown(), 2) << "what is due is shown at the release";
  for (int i = 0; i < 20; ++i) {
    grid.updating.set(false);
    add("server", "5 ms");
    grid.updating.set(true);
  }
  EXPECT_LE(batches.count(), 2) << "twenty rows within an instant";
  settle();
  EXPECT_EQ(rowsShown(), 22);
}

TEST_F(ServerGridViewTest, a_click_on_a_header_sorts_in_natural_order_and_a_second_one_reverses) {
  for (const char* text : {"80 ms", "9 ms", "...", "9 ms"}) {
    add("\x01server\x9D", text);
  }
  settle();
  clickHeader(ping);
  EXPECT_EQ(entries(), (std::vector<int>{2, 4, 1, 3}));
  clickHeader(ping);
  EXPECT_EQ(entries(), (std::vector<int>{3, 1, 2, 4}));
  grid.setCell(3, ping, "50 ms");
  settle();
  EXPECT_EQ(entries(), (std::vector<int>{1, 3, 2, 4})) << "a row that changes moves to its place";
  EXPECT_EQ(shownText(0), "server") << "control characters are not shown";
}

TEST_F(ServerGridViewTest, rows_that_arrive_or_move_out_of_sight_leave_the_screen_and_the_selection_as_they_are) {
  addMany(100);
  clickHeader(ping);
  view.table().verticalScrollBar()->setValue(40 * 19 + 7);
  press(45);
  ASSERT_EQ(heard(), "select 46,1 left ");
  const QImage before = picture();
  for (int i = 0; i < 5; ++i) {
    add("fast", std::to_string(i) + " ms");
    grid.setCell(100 - i, ping, "1 ms");  // from below the view to above it
    grid.setCell(10 + i, ping, "999 ms");
    settle();
    ASSERT_EQ(picture(), before);
    ASSERT_EQ(selectedRow(), 46);
  }
  EXPECT_EQ(heard(), "") << "only the user selects";
  grid.setCell(41, ping, "1 ms");
  grid.setCell(46, ping, "1 ms");
  settle();
  EXPECT_EQ(entry(view.table().rowAt(12)), 42) << "the top row and the selected one do not take the view along";
}

TEST_F(ServerGridViewTest, a_press_selects_once_and_tells_the_button_after_it) {
  addMany(5);
  press(2, Qt::LeftButton, 180);
  EXPECT_EQ(heard(), "select 3,2 left ");
  press(2, Qt::RightButton);
  EXPECT_EQ(heard(), "right ") << "the row is selected already";
  press(4, Qt::RightButton);
  EXPECT_EQ(heard(), "select 5,1 right ");
  press(9, Qt::RightButton);
  EXPECT_EQ(heard(), "right ") << "below the last row";
  grid.select(4, 1);
  EXPECT_EQ(heard(), "select 4,1 ") << "a program that selects is followed without an echo";
  EXPECT_EQ(selectedRow(), 4);
}

TEST_F(ServerGridViewTest, the_selection_survives_sorting_grouping_folding_and_hiding) {
  addMany(30);
  press(3);
  clickHeader(ping);
  view.groupBy(map);
  EXPECT_EQ(selectedRow(), 4);
  view.model().fold(view.model().order().groupOf(4), Folding::folded);
  EXPECT_EQ(selectedRow(), 0);
  view.groupBy(0);
  EXPECT_EQ(selectedRow(), 4);
  grid.setRowVisible(4, false);
  settle();
  EXPECT_EQ(rowsShown(), 29);
  grid.setRowVisible(4, true);
  settle();
  EXPECT_EQ(selectedRow(), 4);
}

TEST_F(ServerGridViewTest, a_header_groups_or_moves_where_it_is_dragged_to_and_does_not_sort) {
  addMany(6);
  dragHeader(map, view.groupingBar(), {20, 10});
  EXPECT_EQ(shownText(0), "cave  (3)");
  EXPECT_EQ(view.header().visualIndex(map - 1), map - 1);
  dragHeader(ping, view.groupingBar(), {20, 10});
  EXPECT_EQ(rowsShown(), 12) << "another column takes the place of the first";
  dragHeader(name, *view.table().viewport(), {80, 100});
  EXPECT_EQ(rowsShown(), 12) << "let go over the rows";
  dragHeader(map, view.header(), {20, 10});
  EXPECT_EQ(view.header().visualIndex(map - 1), 0);
  EXPECT_EQ(view.header().sortIndicatorSection(), -1);
}

TEST_F(ServerGridViewTest, groups_fold_by_arrow_double_click_and_keys_and_stay_folded) {
  addMany(6);
  view.groupBy(map);
  press(0, Qt::LeftButton, 10);
  EXPECT_EQ(rowsShown(), 5) << "the arrow";
  add("late", "7 ms", "cave");
  settle();
  EXPECT_EQ(shownText(0), "cave  (4)");
  EXPECT_EQ(shownText(1), "hall  (3)") << "still folded";
  QTest::mouseDClick(view.table().viewport(), Qt::LeftButton, {}, rowPoint(0));
  EXPECT_EQ(rowsShown(), 9) << "a double click";
  EXPECT_EQ(heard(), "") << "a group row is no server";
  key(Qt::Key_Down);
  EXPECT_EQ(heard(), "select 2,1 ");
  key(Qt::Key_Left);
  key(Qt::Key_Left);
  EXPECT_EQ(rowsShown(), 5) << "from a row to its group, then the fold";
  key(Qt::Key_Right);
  EXPECT_EQ(rowsShown(), 9);
}

TEST_F(ServerGridViewTest, a_grid_cleared_with_drawing_held_off_has_no_row_to_select) {
  addMany(10);
  grid.redraw.set(false);
  grid.clear();
  add("another", "9 ms");
  press(0);
  key(Qt::Key_Down);
  view.grab();
  EXPECT_EQ(heard(), "left ");
  clickHeader(ping);
  EXPECT_EQ(rowsShown(), 0);
  grid.redraw.set(true);
  settle();
  EXPECT_EQ(entries(), std::vector<int>{1});
}

TEST_F(ServerGridViewTest, a_listener_may_clear_and_refill_the_grid_while_a_row_is_being_selected) {
  addMany(40);
  view.groupBy(map);
  const Connection refilling = grid.rowSelected.connect([this](int, int) {
    grid.clear();
    settle();
    EXPECT_EQ(rowsShown(), 0);
    addMany(3);
  });
  press(1);
  EXPECT_EQ(heard(), "select 2,1 left ");
  EXPECT_EQ(selectedRow(), 0);
  EXPECT_EQ(rowsShown(), 5);
  key(Qt::Key_End);
  EXPECT_EQ(heard(), "select 3,1 ");
}

}  // namespace vantrel
