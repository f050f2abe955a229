#include "desktop/grid/ServerGridOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "desktop/grid/NaturalOrder.h"

namespace vantrel {

struct ServerGridOrderTest : testing::Test {
  ServerGridOrderTest() {
    grid.addColumn({"cName", "Server Name"});
    grid.addColumn({"cMap", "Map"});
  }

  // What a reader of the screen would say: group texts in brackets, rows by number.
  std::string screen() const {
    std::string text;
    for (int position = 0; position < order.size(); ++position) {
      const int entry = order.at(position);
      EXPECT_EQ(order.find(entry), position);
      text += entry > 0 ? std::to_string(entry) + " " : "[" + order.group(entry).text + "] ";
    }
    return text;
  }

  // The same from scratch, without any state but the folds. A list of all rows has the hidden and the folded ones too.
  std::string screenFromScratch(SortDirection direction, const std::set<std::string>& folded) const {
    std::map<std::pair<std::string, std::string>, std::vector<int>> groups;
    for (int row = 1; row <= grid.rowCount(); ++row) {
      const std::string& map = grid.cellText(row, order.groupColumn());
      groups[{naturalKey(map), map}].push_back(row);
    }
    std::string text;
    std::vector<int> all;
    for (auto& [key, rows] : groups) {
      std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        const std::string left = naturalKey(grid.cellText(a, order.sortColumn()));
        const std::string right = naturalKey(grid.cellText(b, order.sortColumn()));
        return direction == SortDirection::ascending ? left < right : right < left;
      });
      all.insert(all.end(), rows.begin(), rows.end());
      std::erase_if(rows, [this](int row) { return !grid.rowVisible(row); });
      const bool grouped = order.groupColumn() != 0;
      text += grouped && !rows.empty() ? "[" + key.second + "] " : "";
      for (const int row : rows) {
        text += grouped && folded.contains(key.second) ? "" : std::to_string(row) + " ";
      }
    }
    EXPECT_EQ(order.allRows(), all);
    return text;
  }

  ServerGrid grid;
  ServerGridOrder order{grid};
};

TEST_F(ServerGridOrderTest, whatever_happens_the_rows_stand_as_if_sorted_from_scratch) {
  std::mt19937 random(20240);
  const auto below = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  const std::vector<std::string> maps = {"hall", "Hall", "cave", "", "map 9", "map 10"};
  std::set<std::string> folded;
  SortDirection direction = SortDirection::ascending;
  for (int step = 0; step < 600; ++step) {
    std::vector<int> changed;
    for (int i = below(10) == 0 ? 120 : below(6); i > 0; --i) {  // a few changes, or more than pay off one by one
      const int row = below(3) == 0 ? grid.rowCount() + 1 : 1 + below(grid.rowCount() + 1);
      grid.setCell(row, 1, std::to_string(below(40)));
      grid.setCell(row, 2, maps[static_cast<std::size_t>(below(6))]);
      grid.setRowVisible(row, below(5) != 0);
      changed.push_back(row);
    }
    order.update(changed);
    const int act = below(12);
    const int group = order.groupOf(1 + below(5));
    if (act == 0) {
      direction = below(2) == 0 ? SortDirection::ascending : SortDirection::descending;
      order.sort(below(3), direction);
    } else if (act == 1) {
      folded.clear();
      order.groupBy(order.groupColumn() == 0 ? 2 : 0);
    } else if (act < 5 && group != 0) {
      const bool opens = folded.erase(order.group(group).text) != 0;
      if (!opens) {
        folded.insert(order.group(group).text);
      }
      order.fold(group, opens ? Folding::open : Folding::folded);
    } else if (act == 5 && below(4) == 0) {
      grid.clear();
      order.clear();  // The folds stay.
    }
    ASSERT_EQ(screen(), screenFromScratch(direction, folded)) << "step " << step;
  }
}

}  // namespace vantrel
