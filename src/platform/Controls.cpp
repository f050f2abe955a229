#include "platform/Controls.h"

#include <utility>

#include "platform/Failure.h"

namespace vantrel {

std::string ListBox::line(int index) const {
  return index >= 0 && index < count() ? lines_[static_cast<std::size_t>(index)] : std::string();
}

void ListBox::add(std::string text) {
  lines_.push_back(std::move(text));
  changed.fire();
}

std::string& ListBox::at(int index) {
  if (index < 0 || index >= count()) {
    throw failures::invalidArgument();
  }
  return lines_[static_cast<std::size_t>(index)];
}

void ListBox::remove(int index) {
  at(index);
  lines_.erase(lines_.begin() + index);
  if (selected_ == index) {
    selected_ = -1;
  } else if (selected_ > index) {
    --selected_;
  }
  changed.fire();
}

void ListBox::swap(int index, int other) {
  std::swap(at(index), at(other));
  if (selected_ == index || selected_ == other) {
    selected_ = selected_ == index ? other : index;
  }
  changed.fire();
}

void ListBox::clear() {
  lines_.clear();
  selected_ = -1;
  changed.fire();
}

void ListBox::select(int index) {
  selected_ = index >= 0 && index < count() ? index : -1;
  changed.fire();
}

}  // namespace vantrel
