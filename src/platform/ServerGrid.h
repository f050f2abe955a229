// The model of the server list: rows and columns of cells, and nothing about a server beside them.
//
// Rows and columns number from 1. Rows keep their numbers for as long as they live: a view that sorts, groups or hides
// does it for itself. Start reading at setCell, which is how a row comes to be.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/Controls.h"

namespace vantrel {

enum class Alignment { left, center, right };

struct GridColumn {
  std::string key;
  std::string header;  // empty for a column that is told by its image alone
  Alignment alignment = Alignment::left;
  int image = 0;     // number in the grid's image list; 0 for none
  int width = 64;    // pixels at 100 %
  int sortType = 0;  // kept as given; every column sorts on its text
};

struct GridCell {
  std::string text;
  Color color = colors::white;
  int icon = 0;  // number in the grid's image list; 0 for none
  Alignment alignment = Alignment::left;
};

// Set once when the grid is built and changed by the colour theme; a view reads it when `lookChanged` fires.
struct GridLook {
  int rowHeight = 19;  // pixels at 100 %
  Color background = 0x404040;
  Color text = colors::white;
  Color alternateRow = 0x400000;
  Color gridLine = 0x404040;
  Color fillLine = 0x808080;
  Color selectedRow = 0xE0E0E0;
  Color selectedText = 0x800000;
  Color selectedRowWithoutFocus = colors::white;
  Color groupingBar = 0xE0E0E0;
  Color groupRow = 0xE0E0E0;
  Color groupText = colors::black;
  std::string groupingHint;
};

class ServerGrid {
 public:
  static constexpr int maximumRows = 32767;  // row numbers are 16-bit

  void addColumn(GridColumn column);
  int columnCount() const { return static_cast<int>(columns_.size()); }
  // REQUIRES: 1 <= column <= columnCount().
  const GridColumn& column(int column) const { return columns_[static_cast<std::size_t>(column - 1)]; }

  // Counts hidden rows too.
  int rowCount() const { return static_cast<int>(rows_.size()); }

  // Writes a cell. A row that does not exist yet is created, with the rows before it. Throws failure 9 when the column
  // does not exist or the row is not 1 to `maximumRows`; nothing is changed then. The same goes for colour and icon.
  void setCell(int row, int column, const std::string& text, Alignment alignment = Alignment::left);
  void setCellColor(int row, int column, Color color);
  void setCellIcon(int row, int column, int icon);

  // An empty cell, also where there is no such row or column.
  const GridCell& cell(int row, int column) const;
  const std::string& cellText(int row, int column) const { return cell(row, column).text; }

  // The row that the mouse or a key selected; 0 when there is none.
  int currentRow() const { return currentRow_; }
  // What a view calls when the user selects a cell; fires `rowSelected`. Numbers outside the grid select nothing.
  void select(int row, int column);

  // A hidden row keeps its cells and its number. A row that does not exist is not visible; setting it is failure 9.
  bool rowVisible(int row) const;
  void setRowVisible(int row, bool visible);

  // Removes all rows and the selection; the columns stay. Fires `cleared` and then `notified`.
  void clear();
  // Grows with each clear: a row number taken before belongs to another row, or none, once it has changed.
  std::uint32_t generation() const { return generation_; }

  Field<bool> visible{false};

  // The two switches that hold off redrawing. Cells can be written with both off, and a view shows the result when
  // both are on again.
  Field<bool> redraw{true};
  Field<bool> updating{true};
  bool drawing() const { return redraw.get() && updating.get(); }

  const GridLook& look() const { return look_; }
  void setLook(GridLook look);

  // For the logic: what the user did.
  Signal<int, int> rowSelected;  // row, column
  Signal<MouseButton> mouseButton;
  Signal<> notified;  // the number of rows is another one for a reason other than a written cell

  // For a view: what changed. They fire at once, whatever the two switches say.
  Signal<> columnsChanged;
  Signal<int> rowAdded;              // row
  Signal<int, int> cellChanged;      // row, column
  Signal<int> rowVisibilityChanged;  // row
  Signal<> cleared;
  Signal<> lookChanged;

 private:
  struct Row {
    std::vector<GridCell> cells;
    bool visible = true;
  };

  GridCell& cellToWrite(int row, int column);

  std::vector<GridColumn> columns_;
  std::vector<Row> rows_;
  GridLook look_;
  int currentRow_ = 0;
  std::uint32_t generation_ = 0;
};

}  // namespace vantrel
