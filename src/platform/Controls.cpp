#include "platform/Controls.h"

namespace vantrel {

std::string ListBox::line(int index) const {
  return index >= 0 && index < count() ? lines_[static_cast<std::size_t>(index)] : std::string();
}

void ListBox::add(std::string text) {
  lines_.push_back(std::move(text));
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
