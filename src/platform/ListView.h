// The model of a list with columns: rows of texts under headers. Rows and columns number from 1.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

namespace vantrel {

class ListView {
 public:
  struct Column {
    std::string header;
    int width = 0;  // pixels at 100 %; the last column takes what is left
  };

  ListView(std::vector<Column> columns, Placement design) : place(design), columns_(std::move(columns)) {}

  const std::vector<Column>& columns() const { return columns_; }
  int rowCount() const { return static_cast<int>(rows_.size()); }

  // Appends a row with this text in its first column.
  void addRow(std::string text);
  // Writes a further cell of a row, which is also its tool tip. Throws failure 9 when there is no such row or column.
  void setCell(int row, int column, std::string text);
  // Empty when there is no such row or column.
  std::string cell(int row, int column) const;
  // Removes all rows; the columns stay.
  void clear();

  Field<bool> visible{false};
  Field<Placement> place;

  Signal<> rowAdded;
  Signal<int, int> cellChanged;  // row, column
  Signal<> cleared;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace vantrel
