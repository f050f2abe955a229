// The small control models: what stands in a control of a window, observable and without any decision of its own.
// A view shows them and writes what the user does into them; the logic reads and writes the same fields.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Field.h"

namespace vantrel {

// 0x00BBGGRR: red is the lowest byte.
using Color = std::uint32_t;

namespace colors {
inline constexpr Color black = 0;
inline constexpr Color red = 255;
inline constexpr Color white = 16777215;
}  // namespace colors

struct TextBox {
  Field<std::string> text;
  Field<bool> enabled{true};
};

struct Label {
  Field<std::string> caption;
};

struct Button {
  Field<std::string> caption;
  Field<bool> enabled{true};
  Field<bool> visible{true};
};

// A text with a list of proposals; the text need not be one of them.
struct ComboBox {
  Field<std::string> text;
  Field<std::vector<std::string>> items;
};

// Lines of text, numbered from 0.
class ListBox {
 public:
  int count() const { return static_cast<int>(lines_.size()); }
  // Empty when there is no line of that number.
  std::string line(int index) const;
  void add(std::string text);
  void clear();
  // -1 when no line is selected; any other number that is no line's selects none.
  int selected() const { return selected_; }
  void select(int index);

  Signal<> changed;

 private:
  std::vector<std::string> lines_;
  int selected_ = -1;
};

}  // namespace vantrel
