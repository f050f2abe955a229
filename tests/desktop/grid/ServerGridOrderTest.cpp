#include "desktop/ServerGridOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "desktop/NaturalOrder.h"

namespace vantrel {

namespace {

class ServerGridOrderTest : public testing::Test {
 protected:
  ServerGridOrderTest() {
    grid.addColumn({"cName", "Server Name"});
    grid.addColumn({"cMap", "Map"});
  }

  int add(const std::string& name, const std::string& map) {
    const int row = grid.rowCount() + 1;
    grid.setCell(row, 1, name);
    grid.setCell(row, 2, map);
    return row;
  }

  std::vector<int> entries() const {
    std::vector<int> all;
    for (int position = 0; position < order.size(); ++position) {
      all.push_back(order.at(position));
      EXPECT_EQ(order.find(order.at(position)), position);
    }
    return all;
  }

  // What a reader of the screen would say: group texts in brackets, rows by number.
  std::string screen() const {
    std::string text;
    for (const int entry : entries()) {
      text += entry > 0 ? std::to_string(entry) + " " : "[" + order.group(entry).text + "] ";
    }
    return text;
  }

  // The same from scratch, without any state but the folds.
  std::string screenFromScratch(int sortColumn, SortDirection direction, bool grouped,
                                const std::set<std::string>& folded) const {
    std::map<std::pair<std::string, std::string>, std::vector<int>> groups;
    for (int row = 1; row <= grid.rowCount(); ++row) {
      const std::string& map = grouped ? grid.cellText(row, 2) : std::string();
      if (grid.rowVisible(row)) {
        groups[{naturalKey(map), map}].push_back(row);
      }
    }
    std::string text;
    for (auto& [key, rows] : groups) {
      std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        const std::string left = naturalKey(grid.cellText(a, sortColumn));
        const std::string right = naturalKey(grid.cellText(b, sortColumn));
        return direction == SortDirection::ascending ? left < right : right < left;
      });
      text += grouped ? "[" + key.second + "] " : "";
      for (const int row : rows) {
        text += folded.contains(key.second) && grouped ? "" : std::to_string(row) + " ";
      }
    }
    return text;
  }

  ServerGrid grid;
  ServerGridOrder order{grid};
};

}  // namespace

TEST_F(ServerGridOrderTest, rows_of_equal_text_stay_in_the_order_of_arrival_both_ways) {
  order.update({add("b", ""), add("A", ""), add("a", ""), add("B", "")});
  order.sort(1, SortDirection::ascending);
  EXPECT_EQ(screen(), "2 3 1 4 ");
  order.sort(1, SortDirection::descending);
  EXPECT_EQ(screen(), "1 4 2 3 ");
  order.sort(0, SortDirection::ascending);
  EXPECT_EQ(screen(), "1 2 3 4 ");
}

TEST_F(ServerGridOrderTest, a_fold_survives_arriving_rows_and_a_new_list) {
  order.update({add("a", "hall"), add("b", "cave"), add("c", "hall")});
  order.groupBy(2);
  order.fold(order.groupOf(1), Folding::folded);
  order.update({add("d", "hall")});
  EXPECT_EQ(screen(), "[cave] 2 [hall] ");
  EXPECT_EQ(order.group(order.groupOf(1)).count, 3);
  grid.clear();
  order.clear();
  EXPECT_EQ(order.size(), 0);
  order.update({add("a", "hall"), add("b", "cave")});
  EXPECT_EQ(screen(), "[cave] 2 [hall] ");
  order.fold(order.groupOf(1), Folding::open);
  EXPECT_EQ(screen(), "[cave] 2 [hall] 1 ");
}

TEST_F(ServerGridOrderTest, a_list_of_all_rows_has_the_hidden_and_the_folded_ones_too) {
  order.update({add("10", "hall"), add("9", "cave"), add("8", "hall")});
  order.sort(1, SortDirection::ascending);
  grid.setRowVisible(3, false);
  order.update({3});
  EXPECT_EQ(screen(), "2 1 ");
  EXPECT_EQ(order.allRows(), (std::vector<int>{3, 2, 1}));
  order.groupBy(2);
  order.fold(order.groupOf(2), Folding::folded);
  EXPECT_EQ(order.allRows(), (std::vector<int>{2, 3, 1}));
}

TEST_F(ServerGridOrderTest, whatever_happens_the_rows_stand_as_if_sorted_from_scratch) {
  std::mt19937 random(20240);
  const auto below = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  const std::vector<std::string> maps = {"hall", "Hall", "cave", "", "map 9", "map 10"};
  std::set<std::string> folded;
  int sortColumn = 0;
  bool grouped = false;
  SortDirection direction = SortDirection::ascending;
  for (int step = 0; step < 600; ++step) {
    std::vector<int> changed;
    for (int i = below(10) == 0 ? 120 : below(6); i > 0; --i) {  // a few changes, or more than pay off one by one
      const int row = below(3) == 0 || grid.rowCount() == 0 ? add("", "") : 1 + below(grid.rowCount());
      grid.setCell(row, 1, std::to_string(below(40)));
      grid.setCell(row, 2, maps[static_cast<std::size_t>(below(6))]);
      grid.setRowVisible(row, below(5) != 0);
      changed.push_back(row);
    }
    order.update(changed);
    const int act = below(12);
    if (act == 0) {
      sortColumn = below(3);
      direction = below(2) == 0 ? SortDirection::ascending : SortDirection::descending;
      order.sort(sortColumn, direction);
    } else if (act == 1) {
      grouped = !grouped;
      folded.clear();
      order.groupBy(grouped ? 2 : 0);
    } else if (act < 5 && grouped && order.groupOf(1 + below(5)) != 0) {
      const int group = order.groupOf(1 + below(5));
      if (group != 0) {
        const bool fold = folded.insert(order.group(group).text).second;
        if (!fold) {
          folded.erase(order.group(group).text);
        }
        order.fold(group, fold ? Folding::folded : Folding::open);
      }
    } else if (act == 5 && below(20) == 0) {
      grid.clear();
      order.clear();
    }
    ASSERT_EQ(screen(), screenFromScratch(sortColumn, direction, grouped, folded)) << "step " << step;
  }
}

}  // namespace vantrel
