// How a button is drawn: its face, its edges, its picture and its caption, in this order.

#include <algorithm>

#include "appearance/lvButtons_H.h"

namespace vantrel {
namespace {

constexpr Color white = 0xFFFFFF;
constexpr Color grey = 0x808080;
constexpr int focusInset = 3;  // of the focus rectangle, inside the edges

// The ends of the sides of a ring that lies `inset` pixels inside the outline.
struct Ring {
  int topLeft, topRight, bottomLeft, bottomRight;
  int top, bottom;
};

Ring ringOf(const ButtonOutline& outline, int shape, int inset) {
  const int right = outline.width - 1;
  const int leftSlant = shape == 1 || shape == 3 ? outline.shapeInset : 0;
  const int rightSlant = shape == 2 || shape == 3 ? outline.width - outline.shapeRight : 0;
  // Along a slanted side a ring's corners move inwards by what the side has run in so many lines, too.
  return {.topLeft = inset + (leftSlant > 0 ? inset : 0),
          .topRight = right - rightSlant - inset,
          .bottomLeft = leftSlant + inset,
          .bottomRight = right - inset - (rightSlant > 0 ? inset : 0),
          .top = inset,
          .bottom = outline.height - 1 - inset};
}

void drawRing(ButtonCanvas& canvas, const Ring& ring, const EdgeColors& edges, std::size_t first) {
  const auto line = [&](std::size_t side, int fromX, int fromY, int toX, int toY) {
    if (const std::optional<Color>& color = edges[first + side]) {
      canvas.line(fromX, fromY, toX, toY, *color);
    }
  };
  line(0, ring.topLeft, ring.top, ring.bottomLeft, ring.bottom);
  line(1, ring.topLeft, ring.top, ring.topRight, ring.top);
  line(2, ring.topRight, ring.top, ring.bottomRight, ring.bottom);
  line(3, ring.bottomLeft, ring.bottom, ring.bottomRight, ring.bottom);
}

ButtonBox movedBy(ButtonBox box, int x, int y) {
  box.left += x;
  box.top += y;
  return box;
}

}  // namespace

ButtonLook lvButtons_H::look() const {
  return {.style = buttonStyle_,
          .mode = mode_,
          .shape = buttonShape_,
          .gradientMode = gradientMode_,
          .status = status_,
          .enabled = enabled_,
          .value = value_,
          .showFocusRect = showFocusRect_,
          .inControl = inControl_,
          .heldDown = heldDown_,
          .colors = colors_,
          .gradientColor = convertColor(gradientColor_, site_.system),
          .gradientIsHover = gradientColor_ == hoverBackColor_};
}

ButtonParts lvButtons_H::parts() const {
  const bool hasPicture = picture_.kind != ButtonPicture::Kind::none;
  return {.outline = outline_,
          .shape = buttonShape_,
          .captionAlign = captionAlign_,
          .captionStyle = captionStyle_,
          .pictureAlign = pictureAlign_,
          .pictureSize = (pictureSize_ + 2) * 8,
          .pictureWidth = hasPicture ? std::max(picture_.width, 1) : 0,
          .pictureHeight = hasPicture ? std::max(picture_.height, 1) : 0};
}

void lvButtons_H::draw(ButtonCanvas& canvas, const ButtonMeasure& measure, int screenWidth, int screenHeight) const {
  if (outline_.width <= 0 || outline_.height <= 0) {
    return;
  }
  const Color fill = fillColor(drawn_);
  drawFace(canvas, screenWidth, screenHeight);
  drawEdges(canvas, fill);
  const ButtonLayout layout = layOut(parts(), shown_.text, measure);
  const bool moves = buttonStyle_ != 3 && visualState(drawn_) == ButtonState::pressed;
  const int down = moves ? 1 : 0;
  const int right = moves && buttonShape_ < 4 ? 1 : 0;
  if (layout.picture.width > 0 && layout.picture.height > 0 && !(isCustomShape() && value_)) {
    canvas.picture(movedBy(layout.picture, right, down), enabled_);
  }
  if (!shown_.text.empty()) {
    drawCaption(canvas, movedBy(layout.caption, right, down), fill);
  }
  if ((drawn_.status & buttonStatus::isDefault) != 0 && showFocusRect_) {
    const Ring ring = ringOf(outline_, buttonShape_, focusInset);
    const int left = std::max(ring.topLeft, ring.bottomLeft);
    const int width = std::min(ring.topRight, ring.bottomRight) - left + 1;
    canvas.focusRectangle({left, focusInset, width, outline_.height - 2 * focusInset});
  }
}

void lvButtons_H::drawFace(ButtonCanvas& canvas, int screenWidth, int screenHeight) const {
  const ButtonFace face = buttonFace(drawn_);
  const int width = outline_.width;
  const int height = outline_.height;
  if (face.gradientFrom) {
    const bool across = gradientMode_ <= 2;
    const Gradient gradient = buttonGradient(gradientMode_, *face.gradientFrom, drawn_.gradientColor,
                                             across ? width : height, across ? screenWidth : screenHeight);
    canvas.fill({0, 0, width, height}, gradient.colors.empty() ? face.solid : gradient.colors.back());
    for (std::size_t band = 0; band < gradient.colors.size(); ++band) {
      const int at = static_cast<int>(band) * gradient.step;
      canvas.fill(across ? ButtonBox{at, 0, gradient.step, height} : ButtonBox{0, at, width, gradient.step},
                  gradient.colors[band]);
    }
  } else if (face.isShaded) {
    for (int line = 0; line < height; ++line) {
      canvas.fill({0, line, width, 1}, shadedLine(face.solid, line, height));
    }
  } else {
    canvas.fill({0, 0, width, height}, face.solid);
  }
}

void lvButtons_H::drawEdges(ButtonCanvas& canvas, Color fill) const {
  const EdgeColors edges = buttonEdges(drawn_, fill);
  for (int ring = 0; ring < 3; ++ring) {
    drawRing(canvas, ringOf(outline_, buttonShape_, 2 - ring), edges, static_cast<std::size_t>(4 * ring));
  }
  if (buttonStyle_ != 2 || !edges[8]) {
    return;
  }
  const auto corner = [&](int x, int y) { canvas.fill({x, y, 1, 1}, *edges[8]); };
  if (outline_.shapeInset == 0) {
    corner(1, 1);
    corner(1, outline_.height - 2);
  }
  if (outline_.shapeRight >= outline_.width) {
    corner(outline_.width - 2, 1);
    corner(outline_.width - 2, outline_.height - 2);
  }
}

Color lvButtons_H::captionColor() const {
  return convertColor(drawn_.inControl && !drawn_.isPressed() ? hoverForeColor_ : foreColor_, site_.system);
}

void lvButtons_H::drawCaption(ButtonCanvas& canvas, const ButtonBox& box, Color fill) const {
  const auto write = [&](int x, int y, Color color) {
    canvas.text(movedBy(box, x, y), shown_.text, shown_.underlined, color);
  };
  if (!enabled_) {
    const bool hasOwnColor = gradientMode_ == 0 && mode_ > 0 && (buttonStyle_ == 1 || buttonStyle_ == 4);
    if (!hasOwnColor) {
      write(1, 1, white);
    }
    write(0, 0, grey);
    return;
  }
  if (captionStyle_ == 0) {
    write(0, 0, captionColor());
    return;
  }
  const int shift = captionStyle_ == 1 ? -40 : 40;
  const Shift how{.proportional = buttonStyle_ == 2};
  write(-1, 0, shiftColor(fill, shift, how));
  write(1, 2, shiftColor(fill, -shift, how));
  write(0, 1, captionColor());
}

}  // namespace vantrel
