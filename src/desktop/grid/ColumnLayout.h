// Which columns of a list are shown, in what order and how wide; and the one line of text that keeps it.
//
// The text names the columns from left to right, each with its width in pixels, those that are hidden with a "-":
// "cName:165 cPing:50 -cIP:70". Whatever a text says, at least one column is shown. Start reading at read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ColumnPlace {
  int column = 0;  // its number in the list, from 1
  int width = 0;   // pixels at 100 %, also while it is hidden
  bool shown = true;

  bool operator==(const ColumnPlace&) const = default;
};

class ColumnLayout {
 public:
  static constexpr int narrowest = 24;
  static constexpr int widest = 2000;

  struct Column {
    std::string key;  // without blanks
    int width = 0;    // until the user gives it another
  };

  ColumnLayout() = default;
  // All columns are shown, in the order of their numbers.
  explicit ColumnLayout(std::vector<Column> standing);

  // Takes over what the text tells of these columns. What it tells of others, or a second time, is passed over; a
  // column that it does not name is shown where it stands by its number. A text that names none gives the standing
  // layout.
  void read(std::string_view text);
  std::string text() const;

  // From left to right, hidden ones too.
  const std::vector<ColumnPlace>& places() const { return places_; }
  // Columns number from 1; one that does not exist is not shown.
  bool isShown(int column) const;
  // False for the last column that is still shown.
  bool canToggle(int column) const;
  // The column on the right edge; 0 when there are no columns.
  int rightmost() const;

  // Hides a column that is shown and shows one that is hidden, if it can.
  void toggle(int column);
  void setWidth(int column, int width);
  // REQUIRES: each column once.
  void setOrder(const std::vector<int>& columns);
  void reset();

  bool operator==(const ColumnLayout& other) const { return places_ == other.places_; }

 private:
  int numberOf(std::string_view key) const;
  bool readPlace(std::string_view word, ColumnPlace& place) const;
  void addMissing();
  ColumnPlace* find(int column);

  std::vector<Column> standing_;
  std::vector<ColumnPlace> places_;
};

}  // namespace vantrel
