// The small control models: what stands in a control of a window, observable and without any decision of its own.
// A view shows them and writes what the user does into them; the logic reads and writes the same fields.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Field.h"
#include "platform/Placement.h"

namespace vantrel {

// 0x00BBGGRR: red is the lowest byte. With the top bit set it names a colour of the system.
using Color = std::uint32_t;

namespace colors {
inline constexpr Color black = 0;
inline constexpr Color red = 255;
inline constexpr Color green = 65280;
inline constexpr Color white = 16777215;
inline constexpr Color systemFace = 0x8000000F;  // what lies behind a control, unless it has a colour of its own
inline constexpr Color systemText = 0x80000008;  // what text is written in, likewise
inline constexpr Color systemButtonText = 0x80000012;

inline constexpr Color systemBit = 0x80000000;
constexpr bool isSystem(Color color) {
  return (color & systemBit) != 0;
}
}  // namespace colors

// Codes of the keys that the logic looks at; a key that types has the code of its character.
namespace keys {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
}  // namespace keys

// One press of a key that types a character, or of Enter, Tab or Backspace, before it acts. Keys that move the cursor,
// delete or copy are no presses.
struct KeyPress {
  int code = 0;  // 0 when a listener has swallowed it: it does not act then

  void swallow() { code = 0; }
};

enum class MouseButton { left, right, middle };

struct TextBox {
  Field<std::string> text;
  Field<bool> enabled{true};
  Field<bool> visible{true};
  Field<std::string> toolTip;
  Field<Color> foreColor{colors::systemText};

  Signal<KeyPress&> keyPress;    // fired by a view; a listener may wait
  Signal<> typingGoesOn;         // fired by the logic: what the user types next belongs into this box
  Signal<std::string&> pasting;  // fired by a view with a text about to be pasted; a listener may change it, not wait
};

struct Label {
  Field<std::string> caption;
  Field<bool> visible{true};
  Field<Color> foreColor{colors::systemText};
  Field<Color> backColor{colors::systemFace};
};

struct Button {
  Field<std::string> caption;
  Field<bool> enabled{true};
  Field<bool> visible{true};
  Field<int> value{0};  // of a button in an option pair: other than 0 when it is the pressed one
  Field<Color> foreColor{colors::systemButtonText};
  Field<Color> backColor{colors::systemFace};
  Field<Color> gradientColor{colors::systemFace};
};

struct CheckBox {
  Field<std::string> caption;
  Field<int> value{0};  // 0 unchecked, 1 checked, 2 neither
  Field<Color> foreColor{colors::systemText};
  Field<Color> backColor{colors::systemFace};

  bool isChecked() const { return value.get() == 1; }
};

// A text with a list of proposals; the text need not be one of them.
struct ComboBox {
  Field<std::string> text;
  Field<std::vector<std::string>> items;
};

// A small picture out of a list of pictures with names.
struct Picture {
  Field<std::string> image;  // name of the picture on show
  Field<Color> backColor{colors::systemFace};

  Signal<> clicked;  // fired by a view
};

// A part of a window that is shown and hidden as one, with what stands in it.
struct Panel {
  Field<bool> visible{false};
  Field<Placement> place;
  Field<Color> backColor{colors::systemFace};
};

// A box or a line behind other controls, to be looked at only.
struct Shape {
  Field<Color> backColor{colors::systemFace};  // of a box
  Field<Color> borderColor{colors::systemText};
};

// Lines of text, numbered from 0.
class ListBox {
 public:
  int count() const { return static_cast<int>(lines_.size()); }
  // Empty when there is no line of that number.
  std::string line(int index) const;
  void add(std::string text);
  // The later lines move up by one; nothing is selected afterwards when the removed line was. Throws failure 5 when
  // there is no such line.
  void remove(int index);
  // Two lines change places, and the selection moves with its line. Throws as `remove`.
  void swap(int index, int other);
  void clear();
  // -1 when no line is selected; any other number that is no line's selects none.
  int selected() const { return selected_; }
  void select(int index);

  Signal<> changed;

 private:
  std::string& at(int index);

  std::vector<std::string> lines_;
  int selected_ = -1;
};

// The files of one folder by their names, numbered from 0. What a pattern means is for who fills it to know.
struct FileListBox {
  Field<std::string> path;
  Field<std::string> pattern;
  ListBox files;

  Signal<> clicked;  // fired by a view, behind the selection
};

}  // namespace vantrel
