#include "platform/ListView.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "platform/Failure.h"

namespace vantrel {
namespace {

// Numbers stand before all other texts.
using SortKey = std::pair<double, std::string>;

SortKey sortKey(std::string text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc() && end == text.data() + text.size() && std::isfinite(number)) {
    return {number, ""};
  }
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return {std::numeric_limits<double>::infinity(), std::move(text)};
}

}  // namespace

void ListView::addRow(std::string text) {
  std::vector<std::string> row(columns_.size());
  row.front() = std::move(text);
  rows_.push_back(std::move(row));
  rowAdded.fire();
}

void ListView::setCell(int row, int column, std::string text) {
  if (row < 1 || row > rowCount() || column < 1 || column > static_cast<int>(columns_.size())) {
    throw failures::subscriptOutOfRange();
  }
  rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)] = std::move(text);
  cellChanged.fire(row, column);
}

std::string ListView::cell(int row, int column) const {
  const bool exists = row >= 1 && row <= rowCount() && column >= 1 && column <= static_cast<int>(columns_.size());
  return exists ? rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)] : std::string();
}

void ListView::select(int row) {
  selected_ = row >= 1 && row <= rowCount() ? row : 0;
}

std::vector<int> ListView::rowsInOrder() const {
  std::vector<int> rows(rows_.size());
  std::iota(rows.begin(), rows.end(), 1);
  const ListSort wanted = sort.get();
  if (!wanted.on) {
    return rows;
  }
  std::vector<SortKey> keys;
  for (const int row : rows) {
    keys.push_back(sortKey(cell(row, wanted.column)));
  }
  const auto key = [&keys](int row) -> const SortKey& { return keys[static_cast<std::size_t>(row - 1)]; };
  std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
    return wanted.order == SortOrder::ascending ? key(left) < key(right) : key(right) < key(left);
  });
  return rows;
}

void ListView::clear() {
  if (!rows_.empty()) {
    rows_.clear();
    selected_ = 0;
    cleared.fire();
  }
}

}  // namespace vantrel
