// The model of a list with columns: rows of texts under headers. Rows and columns number from 1.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

namespace vantrel {

enum class SortOrder { ascending, descending };

// By which column the rows are shown, and in which order.
struct ListSort {
  int column = 1;
  SortOrder order = SortOrder::ascending;
  bool on = false;  // off: in the order in which they were added

  bool operator==(const ListSort& other) const = default;
};

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
  // Removes all rows and the selection; the columns and the sorting stay.
  void clear();

  // The numbers of all rows in the order in which they are shown. Texts that are numbers sort as numbers, others
  // without regard to case; rows of equal text stay in the order in which they were added.
  std::vector<int> rowsInOrder() const;

  // The row that the user has selected; 0 when there is none. A number that is no row's selects none.
  int selectedRow() const { return selected_; }
  void select(int row);

  Field<bool> visible{false};
  Field<Placement> place;
  Field<ListSort> sort;
  Field<Color> foreColor{colors::systemText};
  Field<Color> backColor{colors::systemFace};

  // Fired by a view.
  Signal<int> columnClicked;  // column; on its header
  Signal<MouseButton> mouseButton;

  Signal<> rowAdded;
  Signal<int, int> cellChanged;  // row, column
  Signal<> cleared;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
  int selected_ = 0;
};

}  // namespace vantrel
