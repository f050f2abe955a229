#include "appearance/ButtonLook.h"

#include <algorithm>
#include <cmath>

namespace vantrel {
namespace {

constexpr Color white = 0xFFFFFF;
constexpr Color grey = 0x808080;
constexpr Color outline = 0x733C00;

int partOf(Color color, int number) {
  return static_cast<int>(color >> (8 * number) & 0xFF);
}

bool isSlanted(const ButtonLook& look) {
  return look.shape >= 1 && look.shape <= 3;
}

bool isHeldOn(const ButtonLook& look) {
  return (look.heldDown && look.mode > 0) || look.value;
}

// A ring of one colour on its light sides, left and top, and another on its dark ones.
void setRing(EdgeColors& edges, std::size_t first, std::optional<Color> light, std::optional<Color> dark) {
  edges[first] = edges[first + 1] = light;
  edges[first + 2] = edges[first + 3] = dark;
}

void setAll(EdgeColors& edges, std::size_t first, std::size_t last, Color color) {
  std::fill(edges.begin() + static_cast<std::ptrdiff_t>(first), edges.begin() + static_cast<std::ptrdiff_t>(last) + 1,
            color);
}

// The soft style: two rings inside a dark outline, of shades of the fill, or of a colour that tells the state.
EdgeColors softEdges(const ButtonLook& look, Color fill) {
  constexpr int shades[4][8] = {{-10, 10, -24, -32, -5, 16, -36, -48}, {}, {-22, -24, 0, 10, -32, -32, 5, 16}, {}};
  constexpr Color blue[8] = {0xF0D1B5, 0xF7D7BD, 0xF0D1B5, 0xE7AE8C, 0xE7AE8C, 0xFFDFBF, 0xE7AE8C, 0xEF826B};
  constexpr Color amber[8] = {0x6BCBFF, 0x8CDBFF, 0x6BCBFF, 0x31B2FF, 0x31B2FF, 0xA6E9FF, 0x31B2FF, 0x0096E7};
  EdgeColors edges;
  if (!look.enabled) {
    setAll(edges, 8, 11, shiftColor(fill, -84, {.proportional = true}));
    return edges;
  }
  const ButtonState state = visualState(look);
  for (std::size_t entry = 0; entry < 8; ++entry) {
    if (state == ButtonState::byDefault || state == ButtonState::hover) {
      edges[entry] = state == ButtonState::hover ? amber[entry] : blue[entry];
    } else {
      const int shade = shades[static_cast<std::size_t>(state)][entry];
      edges[entry] = shade == 0 ? fill : shiftColor(fill, shade, {.proportional = true});
    }
  }
  setAll(edges, 8, 11, outline);
  return edges;
}

EdgeColors raisedEdges(const ButtonLook& look, Color fill) {
  const bool isIn = visualState(look) == ButtonState::pressed || isHeldOn(look);
  EdgeColors edges;
  setRing(edges, 8, isIn ? grey : white, isIn ? white : grey);
  if (look.style == 5) {
    setRing(edges, 4, isIn ? shiftColor(fill, -64) : shiftColor(fill, -32),
            isIn ? shiftColor(fill, -32) : shiftColor(fill, -64));
  }
  if (isSlanted(look)) {
    setAll(edges, 8, 11, shiftColor(fill, -48));
  }
  return edges;
}

EdgeColors flatEdges(const ButtonLook& look, Color fill) {
  ButtonState state = visualState(look);
  if (look.mode > 0) {
    state = look.value || look.heldDown ? ButtonState::pressed : ButtonState::hover;
  }
  const Color dark = shiftColor(fill, -26);
  EdgeColors edges;
  if (!look.enabled && look.mode == 0) {
    setAll(edges, 0, 7, fill);
    setAll(edges, 8, 11, dark);
  } else if (state == ButtonState::pressed) {
    setRing(edges, 8, dark, white);
  } else if (state == ButtonState::hover) {
    setRing(edges, 8, white, dark);
  } else {
    setAll(edges, 8, 11, dark);
  }
  return edges;
}

// Without an edge until the pointer comes.
EdgeColors toolEdges(const ButtonLook& look, Color fill) {
  const ButtonState state = isHeldOn(look) ? ButtonState::pressed : visualState(look);
  EdgeColors edges;
  if (state == ButtonState::pressed) {
    setRing(edges, 8, grey, white);
  } else if (state == ButtonState::hover) {
    setRing(edges, 8, white, grey);
  }
  if (isSlanted(look)) {
    setAll(edges, 8, 11, shiftColor(fill, -48));
  }
  return edges;
}

}  // namespace

ButtonState visualState(const ButtonLook& look) {
  ButtonState state = look.isPressed()                    ? ButtonState::pressed
                      : look.has(buttonStatus::isDefault) ? ButtonState::byDefault
                                                          : ButtonState::plain;
  if (isHeldOn(look)) {
    state = look.has(buttonStatus::isDefault) ? ButtonState::byDefault : ButtonState::pressed;
  }
  if (look.has(buttonStatus::isOver) && !look.has(buttonStatus::isDown)) {
    return ButtonState::hover;
  }
  return state == ButtonState::byDefault && !look.showFocusRect ? ButtonState::plain : state;
}

Color fillColor(const ButtonLook& look) {
  if (look.mode > 0) {
    return look.value ? look.colors.valueColor : look.colors.faceColor;
  }
  if (look.style == 2 && !look.enabled) {
    return shiftColor(look.colors.faceColor, -24, {.proportional = true});
  }
  return look.isPressed() && look.gradientMode == 0 ? look.colors.pressColor : look.colors.faceColor;
}

ButtonFace buttonFace(const ButtonLook& look) {
  const bool keepsFill = look.mode == 0 ? look.isPressed() : look.value;
  ButtonFace face{.solid = look.inControl && !keepsFill ? look.colors.hoverFace : fillColor(look)};
  if (look.gradientMode == 0 || look.value || look.shape >= 7) {
    face.isShaded = look.style == 2 && (look.enabled || look.mode > 0);
  } else if (look.inControl && !look.isPressed() && !look.gradientIsHover) {
    face.solid = look.colors.hoverFace;
  } else {
    face.gradientFrom = face.solid;
  }
  return face;
}

Color shadedLine(Color color, int line, int height) {
  const double shift = -(25.0 / std::max(height, 1)) * line;
  return shiftColor(color, static_cast<int>(std::nearbyint(shift)), {.proportional = true});
}

Gradient buttonGradient(int mode, Color from, Color to, int length, int screen) {
  Gradient gradient;
  gradient.across = mode <= 2;
  gradient.step = length > 0 && screen / static_cast<double>(length) < 4 ? 2 : 1;
  const int entries = std::max(length, 0) / gradient.step;
  if (mode % 2 == 0) {
    std::swap(from, to);
  }
  for (int entry = 0; entry < entries; ++entry) {
    Color color = 0;
    for (int number = 0; number < 3; ++number) {
      const double distance = partOf(to, number) - partOf(from, number);
      const double part = std::clamp(partOf(from, number) + distance / entries * entry, 0.0, 255.0);
      color |= static_cast<Color>(part) << (8 * number);
    }
    gradient.colors.push_back(color);
  }
  return gradient;
}

EdgeColors buttonEdges(const ButtonLook& look, Color fill) {
  switch (look.style) {
    case 1:
    case 5:
      return raisedEdges(look, fill);
    case 3:
      return flatEdges(look, fill);
    case 4:
      return toolEdges(look, fill);
    default:
      return softEdges(look, fill);
  }
}

}  // namespace vantrel
