#include <gtest/gtest.h>

#include <memory>

#include "core/modSGrid.h"
#include "platform/FavoritesList.h"
#include "platform/Timer.h"
#include "support/FilesContract.h"
#include "support/VirtualLoop.h"

namespace vantrel {
namespace {

TEST(Timer, ticks_while_it_is_on_keeps_its_beat_when_switched_on_again_and_may_be_destroyed_in_its_tick) {
  VirtualLoop loop;
  auto timer = std::make_unique<Timer>(loop, 100);
  std::string ticks;
  const Connection watch = timer->tick.connect([&] {
    ticks += std::to_string(loop.tickCount()) + " ";
    if (loop.tickCount() == 500) {
      timer.reset();
    }
  });
  loop.at(50, [&] { timer->switchOn(); });
  loop.at(120, [&] { timer->switchOn(); });
  loop.at(330, [&] { timer->switchOff(); });
  loop.at(400, [&] { timer->switchOn(); });
  loop.wait(1000);
  EXPECT_EQ(ticks, "150 250 500 ");
}

TEST(ServerGrid, a_written_row_comes_with_those_before_it_and_a_cell_outside_is_failure_9_and_changes_nothing) {
  ServerGrid grid;
  SetupGrid(grid);
  grid.setCell(3, cMap, "x");
  for (const auto& [row, column] : {std::pair(0, 1), std::pair(1, 0), std::pair(1, 9), std::pair(32768, 1)}) {
    EXPECT_EQ(failureOf([&, at = std::pair(row, column)] { grid.setCell(at.first, at.second, "x"); }), 9);
  }
  EXPECT_EQ(grid.rowCount(), 3);
}

TEST(FavoritesList, a_removed_item_lets_the_selection_follow_its_item_and_one_that_is_not_there_is_failure_9) {
  FavoritesList list;
  for (const char* name : {"one", "two", "three"}) {
    list.add({"Slayer", "", "192.0.2.1:2302", name});
  }
  list.makeCurrent(3);
  list.remove(1);
  EXPECT_EQ(list.selected(), 2);
  EXPECT_EQ(list.current().name, "three");
  for (const int number : {0, 3, -1}) {
    EXPECT_EQ(failureOf([&] { list.makeCurrent(number); }), 9);
    EXPECT_EQ(failureOf([&] { list.remove(number); }), 9);
  }
  list.remove(2);
  EXPECT_LE(list.selected(), 0);
  EXPECT_EQ(list.current(), FavoriteItem{});
}

}  // namespace
}  // namespace vantrel
