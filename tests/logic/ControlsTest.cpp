#include <gtest/gtest.h>

#include <memory>

#include "core/modSGrid.h"
#include "platform/FavoritesList.h"
#include "platform/ServerGrid.h"
#include "platform/Timer.h"
#include "support/FilesContract.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

TEST(Timer, ticks_at_its_interval_while_it_is_on_and_switching_on_again_changes_nothing) {
  VirtualLoop loop;
  Timer timer(loop, 100);
  std::string ticks;
  const Connection watch = timer.tick.connect([&] { ticks += std::to_string(loop.tickCount()) + " "; });
  loop.wait(50);
  timer.switchOn();
  loop.at(120, [&] { timer.switchOn(); });
  loop.at(330, [&] { timer.switchOff(); });
  loop.at(400, [&] { timer.switchOn(); });
  loop.wait(500);
  EXPECT_EQ(ticks, "150 250 500 ");
}

TEST(Timer, may_be_switched_off_or_destroyed_in_its_own_tick) {
  VirtualLoop loop;
  int ticks = 0;
  auto timer = std::make_unique<Timer>(loop, 10);
  const Connection watch = timer->tick.connect([&] {
    if (++ticks == 1) {
      timer->switchOff();
      EXPECT_FALSE(timer->enabled());
      timer->switchOn();
    } else {
      timer.reset();
    }
  });
  timer->switchOn();
  loop.wait(1000);
  EXPECT_EQ(ticks, 2);
}

TEST(ListBox, lines_number_from_0_and_a_number_that_is_no_lines_selects_none) {
  ListBox list;
  list.add("one");
  list.add("two");
  list.select(1);
  EXPECT_EQ(list.selected(), 1);
  EXPECT_EQ(list.line(0) + list.line(1) + list.line(2) + list.line(-1), "onetwo");
  list.select(2);
  EXPECT_EQ(list.selected(), -1);
  list.select(0);
  list.clear();
  EXPECT_EQ(list.selected(), -1);
}

struct GridTest : testing::Test {
  GridTest() {
    SetupGrid(grid);
    grid.setCell(2, cName, "second");
  }
  ServerGrid grid;
};

TEST_F(GridTest, a_written_row_comes_to_be_with_the_rows_before_it) {
  std::string told;
  const Connection rows = grid.rowAdded.connect([&](int row) { told += "+" + std::to_string(row); });
  const Connection cells = grid.cellChanged.connect(
      [&](int row, int column) { told += " " + std::to_string(row) + "," + std::to_string(column); });
  grid.setCell(4, cMap, "Bloodgulch");
  EXPECT_EQ(told, "+3+4 4,5");
  EXPECT_EQ(grid.rowCount(), 4);
  EXPECT_EQ(grid.cellText(4, cMap), "Bloodgulch");
  EXPECT_EQ(grid.cellText(2, cName), "second");
  EXPECT_EQ(grid.cellText(3, cName) + grid.cellText(9, 1) + grid.cellText(0, 0) + grid.cellText(1, 9), "");
}

TEST_F(GridTest, a_cell_outside_the_grid_is_failure_9_and_changes_nothing) {
  struct Case {
    int row;
    int column;
  };
  for (const Case& bad : {Case{0, 1}, Case{-1, 1}, Case{1, 0}, Case{1, 9}, Case{32768, 1}}) {
    EXPECT_EQ(failureOf([&] { grid.setCell(bad.row, bad.column, "x"); }), 9);
    EXPECT_EQ(failureOf([&] { grid.setCellColor(bad.row, bad.column, colors::red); }), 9);
    EXPECT_EQ(failureOf([&] { grid.setCellIcon(bad.row, bad.column, 1); }), 9);
  }
  EXPECT_EQ(failureOf([&] { grid.setRowVisible(3, false); }), 9);
  EXPECT_EQ(grid.rowCount(), 2);
}

TEST_F(GridTest, clearing_drops_rows_and_selection_keeps_the_columns_and_tells_it) {
  int notified = 0;
  const Connection watch = grid.notified.connect([&] { ++notified; });
  grid.select(2, 1);
  grid.select(7, 1);
  EXPECT_EQ(grid.currentRow(), 2);
  const std::uint32_t generation = grid.generation();
  grid.clear();
  EXPECT_EQ(grid.rowCount(), 0);
  EXPECT_EQ(grid.currentRow(), 0);
  EXPECT_NE(grid.generation(), generation);
  EXPECT_EQ(grid.columnCount(), 8);
  EXPECT_EQ(notified, 1);
}

struct FavoritesListTest : testing::Test {
  FavoritesListTest() {
    for (const char* name : {"one", "two", "three"}) {
      list.add({"Slayer", "", "192.0.2.1:2302", name});
    }
  }
  FavoritesList list;
};

TEST_F(FavoritesListTest, a_removed_item_lets_the_later_ones_move_up_and_the_selection_follows_its_item) {
  list.makeCurrent(3);
  list.remove(1);
  EXPECT_EQ(list.selected(), 2);
  EXPECT_EQ(list.current().name, "three");
  list.remove(2);
  EXPECT_LE(list.selected(), 0);
  EXPECT_EQ(list.current(), FavoriteItem{});
  EXPECT_EQ(list.count(), 1);
}

TEST_F(FavoritesListTest, an_item_that_is_not_there_is_failure_9_and_selecting_it_selects_nothing) {
  for (const int number : {0, 4, -1}) {
    EXPECT_EQ(failureOf([&] { list.makeCurrent(number); }), 9);
    EXPECT_EQ(failureOf([&] { list.remove(number); }), 9);
    EXPECT_EQ(failureOf([&] { list.setName(number, "x"); }), 9);
    list.select(2);
    list.select(number);
    EXPECT_LE(list.selected(), 0);
  }
  EXPECT_EQ(list.count(), 3);
}

}  // namespace
}  // namespace vantrel
