#include "appearance/ButtonColors.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vantrel {
namespace {

constexpr Color grey = 0x808080;
constexpr Color white = 0xFFFFFF;

Color part(int value, bool invert) {
  const int kept = std::clamp(value, 0, 255);
  return static_cast<Color>(invert ? std::abs(255 - kept) : kept);
}

// Green and blue are taken out of the colour by 255 and 65280, so that a full part counts as 256.
Color shifted(Color color, int delta, const Shift& how) {
  const int red = static_cast<int>(color & 0xFF) + delta;
  const int green = static_cast<int>(std::lround((color & 0xFF00) / 255.0 + delta));
  int blue = static_cast<int>(std::lround((color & 0xFF0000) / 65280.0));
  blue += how.proportional ? delta * blue / 192 : delta;
  return part(red, how.invert) + 256 * part(green, how.invert) + 65536 * part(blue, how.invert);
}

}  // namespace

Color shiftColor(Color color, int delta, Shift how) {
  const Color result = shifted(color, delta, how);
  if (how.retry && (result == 0 || result == white)) {
    return shifted(color, delta == 0 ? 64 : -delta, how);
  }
  return result;
}

Color convertColor(Color color, const SystemColors& system) {
  if ((color & 0x80000000U) == 0) {
    return color;
  }
  const std::size_t index = color & 0xFFU;
  return index < system.size() ? system[index] : 0;
}

ButtonColors buttonColors(int style, Color back, Color hoverBack) {
  switch (style) {
    case 2:
      return {shiftColor(back, 48, {.proportional = true}), shiftColor(back, -32, {.proportional = true}),
              shiftColor(hoverBack, 48, {.proportional = true}), shiftColor(white, -32, {.proportional = true})};
    case 3: {
      const Color press = shiftColor(grey, 12);
      return {back, press, hoverBack, shiftColor(press, 31)};
    }
    case 7:
      return {shiftColor(back, 31), shiftColor(grey, -16), shiftColor(hoverBack, 31), shiftColor(grey, 16)};
    default:
      return {back, back, hoverBack, shiftColor(white, -32)};
  }
}

}  // namespace vantrel
