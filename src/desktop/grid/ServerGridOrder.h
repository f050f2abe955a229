// The order in which the server list is shown: which rows, sorted by which column, under which groups.
//
// The rows of the grid keep their numbers; this keeps the list of what stands on the screen from top to bottom, and
// puts a row that arrived or changed at its place at a cost that grows with the logarithm of the number of rows (and
// one move of memory). For that it keeps the sort key of each row as it was when the row was put in. Start reading at
// update.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ServerGrid.h"

namespace vantrel {

enum class SortDirection { ascending, descending };
enum class Folding { open, folded };

class ServerGridOrder {
 public:
  // What stands at a position: above 0 a server, by its row number in the grid; below 0 a group; 0 nothing.
  using Entry = int;

  struct Group {
    std::string text;  // the cell text that its rows have in common
    std::string key;
    int count = 0;  // of its rows that are visible; a group without rows is not shown
    bool folded = false;
  };

  // `grid` must outlive this. Nothing is listed before `update`.
  explicit ServerGridOrder(const ServerGrid& grid) : grid_(grid) {}

  // Positions number from 0.
  int size() const { return static_cast<int>(entries_.size()); }
  Entry at(int position) const;
  // -1 when the entry is not shown.
  int find(Entry entry) const;
  // REQUIRES: group < 0, and was got from this since the last groupBy or clear.
  const Group& group(Entry group) const { return groups_[static_cast<std::size_t>(-group - 1)]; }
  // The group under which a listed row stands; 0 when rows are not grouped.
  Entry groupOf(int row) const;

  // Looks anew at these rows of the grid: lists those that are visible, each at its place, and drops the others.
  void update(const std::vector<int>& rows);
  // Columns number from 1; 0 is the order of arrival. Rows of equal text stay in the order of arrival, both ways.
  void sort(int column, SortDirection direction);
  // 0 ends grouping. Groups stand in natural order, whatever the direction of the rows in them.
  void groupBy(int column);
  void fold(Entry group, Folding folding);
  // Forgets all rows. Groups that are folded will be folded again when their text returns.
  void clear();

  int sortColumn() const { return sortColumn_; }
  int groupColumn() const { return groupColumn_; }

  // The numbers of all rows of the grid in the present order, hidden and folded ones too. Costs a full sort.
  std::vector<int> allRows() const;

 private:
  struct Row {
    std::string key;
    Entry group = 0;
    bool listed = false;
  };

  Row& row(Entry server) { return rows_[static_cast<std::size_t>(server - 1)]; }
  const Row& row(Entry server) const { return rows_[static_cast<std::size_t>(server - 1)]; }
  Group& writableGroup(Entry group) { return groups_[static_cast<std::size_t>(-group - 1)]; }
  std::string sortKey(int row) const;
  Entry groupFor(const std::string& text);
  bool shown(Entry entry) const;
  bool groupPrecedes(Entry left, Entry right) const;
  bool precedes(Entry left, Entry right) const;
  void withdraw(int number, std::vector<Entry>& leaving);
  void enter(int number, std::vector<Entry>& coming);
  void remove(const std::vector<Entry>& leaving);
  void insert(std::vector<Entry>& coming);
  bool isMany(std::size_t changes) const;
  void rebuild();

  const ServerGrid& grid_;
  std::vector<Entry> entries_;  // always sorted by precedes
  std::vector<Row> rows_;
  std::vector<Group> groups_;
  std::unordered_map<std::string, Entry> groupsByText_;
  int sortColumn_ = 0;
  int groupColumn_ = 0;
  SortDirection direction_ = SortDirection::ascending;
};

}  // namespace vantrel
