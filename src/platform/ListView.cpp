#include "platform/ListView.h"

#include <utility>

#include "platform/Failure.h"

namespace vantrel {

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

void ListView::clear() {
  if (!rows_.empty()) {
    rows_.clear();
    cleared.fire();
  }
}

}  // namespace vantrel
