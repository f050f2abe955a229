#include "platform/ServerGrid.h"

#include <utility>

#include "platform/Failure.h"

namespace vantrel {

void ServerGrid::addColumn(GridColumn column) {
  columns_.push_back(std::move(column));
  for (Row& row : rows_) {
    row.cells.resize(columns_.size());
  }
  columnsChanged.fire();
}

GridCell& ServerGrid::cellToWrite(int row, int column) {
  if (column < 1 || column > columnCount() || row < 1 || row > maximumRows) {
    throw failures::subscriptOutOfRange();
  }
  while (rowCount() < row) {
    rows_.push_back({std::vector<GridCell>(columns_.size()), true});
    rowAdded.fire(rowCount());
  }
  return rows_[static_cast<std::size_t>(row - 1)].cells[static_cast<std::size_t>(column - 1)];
}

void ServerGrid::setCell(int row, int column, const std::string& text, Alignment alignment) {
  GridCell& cell = cellToWrite(row, column);
  cell.text = text;
  cell.alignment = alignment;
  cellChanged.fire(row, column);
}

void ServerGrid::setCellColor(int row, int column, Color color) {
  cellToWrite(row, column).color = color;
  cellChanged.fire(row, column);
}

void ServerGrid::setCellIcon(int row, int column, int icon) {
  cellToWrite(row, column).icon = icon;
  cellChanged.fire(row, column);
}

const GridCell& ServerGrid::cell(int row, int column) const {
  static const GridCell empty;
  if (row < 1 || row > rowCount() || column < 1 || column > columnCount()) {
    return empty;
  }
  return rows_[static_cast<std::size_t>(row - 1)].cells[static_cast<std::size_t>(column - 1)];
}

void ServerGrid::select(int row, int column) {
  if (row < 1 || row > rowCount() || column < 1 || column > columnCount()) {
    return;
  }
  currentRow_ = row;
  rowSelected.fire(row, column);
}

bool ServerGrid::rowVisible(int row) const {
  return row >= 1 && row <= rowCount() && rows_[static_cast<std::size_t>(row - 1)].visible;
}

void ServerGrid::setRowVisible(int row, bool visible) {
  if (row < 1 || row > rowCount()) {
    throw failures::subscriptOutOfRange();
  }
  bool& held = rows_[static_cast<std::size_t>(row - 1)].visible;
  if (held != visible) {
    held = visible;
    rowVisibilityChanged.fire(row);
  }
}

void ServerGrid::clear() {
  rows_.clear();
  currentRow_ = 0;
  ++generation_;
  cleared.fire();
  notified.fire();
}

void ServerGrid::setLook(GridLook look) {
  look_ = std::move(look);
  lookChanged.fire();
}

}  // namespace vantrel
