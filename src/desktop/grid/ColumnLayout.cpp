#include "desktop/grid/ColumnLayout.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view blanks = " \t\r\n";

int allowedWidth(int width) {
  return std::clamp(width, ColumnLayout::narrowest, ColumnLayout::widest);
}

// The next word of `text`, which is cut off it; empty at the end.
std::string_view takeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(blanks));
  text.remove_prefix(word.size());
  return word;
}

// `fallback` when the digits are none.
int widthOf(std::string_view digits, int fallback) {
  int width = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, width);
  if (stop != end || error == std::errc::invalid_argument) {
    return fallback;
  }
  const bool negative = digits.front() == '-';
  return error == std::errc() ? allowedWidth(width) : negative ? ColumnLayout::narrowest : ColumnLayout::widest;
}

}  // namespace

ColumnLayout::ColumnLayout(std::vector<Column> standing) : standing_(std::move(standing)) {
  reset();
}

void ColumnLayout::reset() {
  places_.clear();
  addMissing();
}

void ColumnLayout::read(std::string_view text) {
  places_.clear();
  for (std::string_view word = takeWord(text); !word.empty(); word = takeWord(text)) {
    ColumnPlace place;
    if (readPlace(word, place) && find(place.column) == nullptr) {
      places_.push_back(place);
    }
  }
  addMissing();
  if (rightmost() == 0) {
    for (ColumnPlace& place : places_) {
      place.shown = true;
    }
  }
}

// A known column without a readable width keeps the one that it has anyway.
bool ColumnLayout::readPlace(std::string_view word, ColumnPlace& place) const {
  place.shown = word.front() != '-';
  word.remove_prefix(place.shown ? 0 : 1);
  const std::size_t colon = std::min(word.find(':'), word.size());
  place.column = numberOf(word.substr(0, colon));
  if (place.column == 0) {
    return false;
  }
  const int standing = allowedWidth(standing_[static_cast<std::size_t>(place.column - 1)].width);
  place.width = widthOf(word.substr(std::min(colon + 1, word.size())), standing);
  return true;
}

void ColumnLayout::addMissing() {
  for (std::size_t i = 0; i < standing_.size(); ++i) {
    const int column = static_cast<int>(i) + 1;
    if (find(column) == nullptr) {
      const auto where = places_.begin() + static_cast<std::ptrdiff_t>(std::min(i, places_.size()));
      places_.insert(where, {column, allowedWidth(standing_[i].width), true});
    }
  }
}

std::string ColumnLayout::text() const {
  std::string text;
  for (const ColumnPlace& place : places_) {
    text += text.empty() ? "" : " ";
    text += place.shown ? "" : "-";
    text += standing_[static_cast<std::size_t>(place.column - 1)].key + ":" + std::to_string(place.width);
  }
  return text;
}

// 0 when there is no such column.
int ColumnLayout::numberOf(std::string_view key) const {
  const auto found =
      std::find_if(standing_.begin(), standing_.end(), [key](const Column& column) { return column.key == key; });
  return found == standing_.end() ? 0 : static_cast<int>(found - standing_.begin()) + 1;
}

ColumnPlace* ColumnLayout::find(int column) {
  const auto found = std::find_if(places_.begin(), places_.end(),
                                  [column](const ColumnPlace& place) { return place.column == column; });
  return found == places_.end() ? nullptr : &*found;
}

bool ColumnLayout::isShown(int column) const {
  return std::any_of(places_.begin(), places_.end(),
                     [column](const ColumnPlace& place) { return place.column == column && place.shown; });
}

bool ColumnLayout::canToggle(int column) const {
  const auto shown =
      std::count_if(places_.begin(), places_.end(), [](const ColumnPlace& place) { return place.shown; });
  return shown > 1 || !isShown(column);
}

int ColumnLayout::rightmost() const {
  const auto found =
      std::find_if(places_.rbegin(), places_.rend(), [](const ColumnPlace& place) { return place.shown; });
  return found == places_.rend() ? 0 : found->column;
}

void ColumnLayout::toggle(int column) {
  ColumnPlace* const place = find(column);
  if (place != nullptr && canToggle(column)) {
    place->shown = !place->shown;
  }
}

void ColumnLayout::setWidth(int column, int width) {
  if (ColumnPlace* const place = find(column)) {
    place->width = allowedWidth(width);
  }
}

void ColumnLayout::setOrder(const std::vector<int>& columns) {
  std::vector<ColumnPlace> ordered;
  for (const int column : columns) {
    if (const ColumnPlace* const place = find(column)) {
      ordered.push_back(*place);
    }
  }
  places_ = std::move(ordered);
}

}  // namespace vantrel
