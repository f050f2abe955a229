#include "desktop/grid/ServerGridOrder.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

#include "desktop/grid/NaturalOrder.h"

namespace vantrel {

ServerGridOrder::Entry ServerGridOrder::at(int position) const {
  return position >= 0 && position < size() ? entries_[static_cast<std::size_t>(position)] : 0;
}

bool ServerGridOrder::shown(Entry entry) const {
  if (entry < 0) {
    return static_cast<std::size_t>(-entry) <= groups_.size() && group(entry).count > 0;
  }
  if (entry == 0 || static_cast<std::size_t>(entry) > rows_.size() || !row(entry).listed) {
    return false;
  }
  return row(entry).group == 0 || !group(row(entry).group).folded;
}

int ServerGridOrder::find(Entry entry) const {
  if (!shown(entry)) {
    return -1;
  }
  const auto found = std::lower_bound(entries_.begin(), entries_.end(), entry,
                                      [this](Entry left, Entry right) { return precedes(left, right); });
  return static_cast<int>(found - entries_.begin());
}

ServerGridOrder::Entry ServerGridOrder::groupOf(int number) const {
  const bool known = number >= 1 && static_cast<std::size_t>(number) <= rows_.size();
  return known && row(number).listed ? row(number).group : 0;
}

bool ServerGridOrder::groupPrecedes(Entry left, Entry right) const {
  const Group& a = group(left);
  const Group& b = group(right);
  return std::tie(a.key, a.text) < std::tie(b.key, b.text);
}

bool ServerGridOrder::precedes(Entry left, Entry right) const {
  if (groupColumn_ != 0) {
    const Entry leftGroup = left < 0 ? left : row(left).group;
    const Entry rightGroup = right < 0 ? right : row(right).group;
    if (leftGroup != rightGroup) {
      return groupPrecedes(leftGroup, rightGroup);
    }
    if (left < 0 || right < 0) {
      return left < 0 && right > 0;
    }
  }
  const int compared = row(left).key.compare(row(right).key);
  if (compared != 0) {
    return (compared < 0) == (direction_ == SortDirection::ascending);
  }
  return left < right;
}

std::string ServerGridOrder::sortKey(int number) const {
  return sortColumn_ == 0 ? std::string() : naturalKey(grid_.cellText(number, sortColumn_));
}

ServerGridOrder::Entry ServerGridOrder::groupFor(const std::string& text) {
  const auto [place, isNew] = groupsByText_.try_emplace(text, -static_cast<Entry>(groups_.size()) - 1);
  if (isNew) {
    groups_.push_back({text, naturalKey(text), 0, false});
  }
  return place->second;
}

// A row leaves before any row is put in again, while the entries still stand in the order of the old keys.
void ServerGridOrder::update(const std::vector<int>& rows) {
  std::vector<Entry> leaving;
  for (const int number : rows) {
    withdraw(number, leaving);
  }
  remove(leaving);
  std::vector<Entry> coming;
  for (const int number : rows) {
    enter(number, coming);
  }
  insert(coming);
}

void ServerGridOrder::withdraw(int number, std::vector<Entry>& leaving) {
  if (number < 1 || static_cast<std::size_t>(number) > rows_.size() || !row(number).listed) {
    return;
  }
  if (shown(number)) {
    leaving.push_back(number);
  }
  row(number).listed = false;
  const Entry groupEntry = row(number).group;
  if (groupEntry != 0 && --writableGroup(groupEntry).count == 0) {
    leaving.push_back(groupEntry);
  }
}

void ServerGridOrder::enter(int number, std::vector<Entry>& coming) {
  if (!grid_.rowVisible(number)) {
    return;
  }
  if (static_cast<std::size_t>(number) > rows_.size()) {
    rows_.resize(static_cast<std::size_t>(number));
  }
  Row& entered = row(number);
  if (entered.listed) {
    return;
  }
  entered.listed = true;
  entered.key = sortKey(number);
  entered.group = groupColumn_ == 0 ? 0 : groupFor(grid_.cellText(number, groupColumn_));
  if (entered.group != 0 && ++writableGroup(entered.group).count == 1) {
    coming.push_back(entered.group);
  }
  if (shown(number)) {
    coming.push_back(number);
  }
}

// Beyond some share of the list one walk through it is cheaper than a search and a move for each change.
bool ServerGridOrder::isMany(std::size_t changes) const {
  return changes > 16 + entries_.size() / 16;
}

void ServerGridOrder::remove(const std::vector<Entry>& leaving) {
  if (isMany(leaving.size())) {
    std::erase_if(entries_, [this](Entry entry) { return !shown(entry); });
    return;
  }
  for (const Entry entry : leaving) {
    const auto [first, last] = std::equal_range(entries_.begin(), entries_.end(), entry,
                                                [this](Entry left, Entry right) { return precedes(left, right); });
    entries_.erase(first, last);
  }
}

void ServerGridOrder::insert(std::vector<Entry>& coming) {
  const auto inOrder = [this](Entry left, Entry right) { return precedes(left, right); };
  if (isMany(coming.size())) {
    std::sort(coming.begin(), coming.end(), inOrder);
    const auto middle = entries_.insert(entries_.end(), coming.begin(), coming.end());
    std::inplace_merge(entries_.begin(), middle, entries_.end(), inOrder);
    return;
  }
  for (const Entry entry : coming) {
    entries_.insert(std::lower_bound(entries_.begin(), entries_.end(), entry, inOrder), entry);
  }
}

void ServerGridOrder::rebuild() {
  entries_.clear();
  for (Row& known : rows_) {
    known.listed = false;
  }
  for (Group& known : groups_) {
    known.count = 0;
  }
  std::vector<int> all(rows_.size());
  std::iota(all.begin(), all.end(), 1);
  update(all);
}

void ServerGridOrder::sort(int column, SortDirection direction) {
  sortColumn_ = column;
  direction_ = direction;
  rebuild();
}

void ServerGridOrder::groupBy(int column) {
  groupColumn_ = column;
  groups_.clear();
  groupsByText_.clear();
  for (Row& known : rows_) {
    known.group = 0;
  }
  rebuild();
}

void ServerGridOrder::fold(Entry entry, Folding folding) {
  const bool folded = folding == Folding::folded;
  const int header = find(entry);
  if (header < 0 || group(entry).folded == folded) {
    return;
  }
  const auto first = entries_.begin() + header + 1;
  writableGroup(entry).folded = folded;
  if (folded) {
    entries_.erase(first, first + group(entry).count);
    return;
  }
  std::vector<Entry> unfolded;
  for (Entry number = 1; number <= static_cast<Entry>(rows_.size()); ++number) {
    if (row(number).listed && row(number).group == entry) {
      unfolded.push_back(number);
    }
  }
  std::sort(unfolded.begin(), unfolded.end(), [this](Entry left, Entry right) { return precedes(left, right); });
  entries_.insert(first, unfolded.begin(), unfolded.end());
}

void ServerGridOrder::clear() {
  entries_.clear();
  rows_.clear();
  std::erase_if(groups_, [](const Group& held) { return !held.folded; });
  groupsByText_.clear();
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    groups_[i].count = 0;
    groupsByText_[groups_[i].text] = -static_cast<Entry>(i) - 1;
  }
}

std::vector<int> ServerGridOrder::allRows() const {
  struct Keyed {
    std::string groupKey;
    std::string groupText;
    std::string key;
    int row;
  };
  std::vector<Keyed> keyed;
  for (int number = 1; number <= grid_.rowCount(); ++number) {
    const std::string& text = grid_.cellText(number, groupColumn_);
    keyed.push_back({groupColumn_ == 0 ? std::string() : naturalKey(text), text, sortKey(number), number});
  }
  const bool ascending = direction_ == SortDirection::ascending;
  std::sort(keyed.begin(), keyed.end(), [ascending](const Keyed& a, const Keyed& b) {
    const std::string& low = ascending ? a.key : b.key;
    const std::string& high = ascending ? b.key : a.key;
    return std::tie(a.groupKey, a.groupText, low, a.row) < std::tie(b.groupKey, b.groupText, high, b.row);
  });
  std::vector<int> numbers(keyed.size());
  std::transform(keyed.begin(), keyed.end(), numbers.begin(), [](const Keyed& row) { return row.row; });
  return numbers;
}

}  // namespace vantrel
