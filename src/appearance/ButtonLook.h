// How a button looks in a given moment, as colours: its state, its face, its gradient and its edges.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "appearance/ButtonColors.h"

namespace vantrel {

namespace buttonStatus {
inline constexpr unsigned isDefault = 1;  // its window shows it as its default
inline constexpr unsigned isDown = 2;     // by the left mouse button or the space key
inline constexpr unsigned isOver = 4;     // the pointer
inline constexpr unsigned isMoved = 1024;
}  // namespace buttonStatus

enum class ButtonState { plain = 0, byDefault = 1, pressed = 2, hover = 3 };

// All that the look depends on. Colours are converted.
struct ButtonLook {
  int style = 2;
  int mode = 0;
  int shape = 0;
  int gradientMode = 0;
  unsigned status = 0;
  bool enabled = true;
  bool value = false;
  bool showFocusRect = true;
  bool inControl = false;
  bool heldDown = false;
  ButtonColors colors = {};
  Color gradientColor = 0;
  bool gradientIsHover = true;  // the gradient's second colour is the one of a hovered button

  bool has(unsigned bits) const { return (status & bits) == bits; }
  bool isPressed() const { return has(buttonStatus::isDown | buttonStatus::isOver); }
};

ButtonState visualState(const ButtonLook& look);
Color fillColor(const ButtonLook& look);

// What fills a button. Exactly one of `bands` and the solid colour counts.
struct ButtonFace {
  Color solid = 0;
  bool isShaded = false;                // each line of `solid` a little darker than the one above
  std::optional<Color> gradientFrom{};  // to the gradient's colour; nothing for a solid face
};
ButtonFace buttonFace(const ButtonLook& look);

// Line `line` of a shaded face, from 0 at the top; `height` in pixels.
Color shadedLine(Color color, int line, int height);

struct Gradient {
  std::vector<Color> colors;
  int step = 1;         // pixels that each entry is wide
  bool across = false;  // from left to right; else from the top down
};
// `length`: the button's size in the direction of the gradient, `screen` that of the screen, both in pixels. Odd modes
// run from `from` to `to`, even ones the other way.
Gradient buttonGradient(int mode, Color from, Color to, int length, int screen);

// Left, top, right, bottom of the ring two pixels in, then of the ring one pixel in, then of the outline; nothing where
// no line is drawn.
using EdgeColors = std::array<std::optional<Color>, 12>;
EdgeColors buttonEdges(const ButtonLook& look, Color fill);

}  // namespace vantrel
