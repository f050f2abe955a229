// How long the table row behind a TR tag is, as the tags and texts from there on tell.
//
// Each row is measured by looking ahead, and a row without an end looks ahead to the end of the page. So all rows are
// measured in one pass from the end of the page to its beginning. The pass knows for both places that a measure can be
// at behind a ">", which are a cell and between two cells, how the measure goes on from there. Behind any ">" a measure
// is outside of tags, wherever it began.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "export/EventBreaks.h"

namespace vantrel {

enum class RowLength { oneLine, manyLines, unfinished };

class RowMeasure {
 public:
  // All of it must outlive this.
  RowMeasure(std::string_view page, EventBreaks& breaks) : page_(page), breaks_(breaks) {}

  // The length of the row whose TR tag ends with the ">" at this position. `unfinished`: the page ends before the row,
  // or the program does. REQUIRES: the position is not before that of the call before.
  RowLength lengthBehind(std::size_t position);

 private:
  // The number of characters in cells as far as it matters, or `unfinished`.
  using Length = std::uint8_t;
  static constexpr Length tooMany = 65;
  static constexpr Length unfinished = 255;

  static Length add(Length length, std::size_t characters);
  void measureAll();
  void stepBack(std::string_view piece);

  std::string_view page_;
  EventBreaks& breaks_;
  std::vector<Length> behind_;  // each ">" of the page, the last one first
  bool isMeasured_ = false;
  std::size_t looked_ = 0;  // up to here
  std::size_t passed_ = 0;  // there are so many ">"
  Length betweenCells_ = unfinished;
  Length inCell_ = unfinished;
};

}  // namespace vantrel
