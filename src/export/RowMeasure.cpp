#include "export/RowMeasure.h"

#include <algorithm>

#include "core/Text.h"
#include "export/Tags.h"

namespace vantrel {

RowLength RowMeasure::lengthBehind(std::size_t position) {
  if (!isMeasured_) {
    measureAll();
  }
  const auto begin = page_.begin();
  passed_ += static_cast<std::size_t>(
      std::count(begin + static_cast<std::ptrdiff_t>(looked_), begin + static_cast<std::ptrdiff_t>(position), '>'));
  looked_ = position;
  const Length length = passed_ < behind_.size() ? behind_[behind_.size() - 1 - passed_] : unfinished;
  if (length == unfinished || breaks_.ending()) {
    return RowLength::unfinished;
  }
  return length < tooMany ? RowLength::oneLine : RowLength::manyLines;
}

RowMeasure::Length RowMeasure::add(Length length, std::size_t characters) {
  if (length == unfinished) {
    return unfinished;
  }
  return static_cast<Length>(std::min<std::size_t>(tooMany, length + characters));
}

// A measure that reaches the last character ends before it looks at it.
void RowMeasure::measureAll() {
  isMeasured_ = true;
  std::size_t end = page_.size() < 2 ? std::string_view::npos : page_.rfind('>', page_.size() - 2);
  while (end != std::string_view::npos && !breaks_.ending()) {
    behind_.push_back(betweenCells_);
    const std::size_t before = end == 0 ? std::string_view::npos : page_.rfind('>', end - 1);
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    stepBack(page_.substr(start, end - start));
    breaks_.after(end - start + 1);
    end = before;
  }
}

// From behind a ">" to behind the one before it. `piece`: what stands between the two.
void RowMeasure::stepBack(std::string_view piece) {
  const std::size_t text = piece.find('<');
  if (text == std::string_view::npos) {  // The ">" ends no tag: it is text.
    inCell_ = add(inCell_, piece.size() + 1);
    return;
  }
  const std::string_view tag = trimSpaces(piece.substr(text + 1));
  const Length cell = inCell_;
  const Length between = betweenCells_;
  inCell_ = add(cell, text);
  if (tagIsNamed(tag, "TABLE")) {
    inCell_ = betweenCells_ = tooMany;
  } else if (tagIs(tag, "/TR") || tagIs(tag, "/TABLE")) {
    betweenCells_ = 0;
  } else if (tagIsNamed(tag, "TD") || tagIsNamed(tag, "TH")) {
    betweenCells_ = cell;
  } else if (tagIsNamed(tag, "P") || tagIsNamed(tag, "BR")) {
    inCell_ = add(between, tooMany);
  } else if (tag.starts_with('/') && tagIs(stripBlanks(tag), "/TD")) {
    inCell_ = add(between, text);
  }
}

}  // namespace vantrel
