// The colours of a button: the one tool that makes lighter and darker ones, and those that a style works out of its
// own.
#pragma once

#include <array>

#include "platform/Controls.h"

namespace vantrel {

struct Shift {
  bool proportional = false;  // blue moves with how much of it there is
  bool retry = false;         // a result of black or white is made anew the other way, once
  bool invert = false;
};

// Each part of the colour moved by `delta` and kept within 0 to 255.
Color shiftColor(Color color, int delta, Shift how = {});

// The platform's colours by their index; index 8 is the window's text, 15 a button's face, 18 its text.
using SystemColors = std::array<Color, 32>;

// What a colour means on this platform: a value with the top bit set names one of `system`, any other stays. An index
// of none is black.
Color convertColor(Color color, const SystemColors& system);

struct ButtonColors {
  Color faceColor = 0;
  Color pressColor = 0;
  Color hoverFace = 0;
  Color valueColor = 0;  // of a button that is on
};

// `back`, `hoverBack`: converted.
ButtonColors buttonColors(int style, Color back, Color hoverBack);

}  // namespace vantrel
