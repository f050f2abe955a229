// What a button is drawn on, and how it measures its caption. In pixels at 100 %, from the button's upper left corner.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace vantrel {

struct ButtonBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int right() const { return left + width; }
  int bottom() const { return top + height; }
  bool operator==(const ButtonBox&) const = default;
};

class ButtonCanvas {
 public:
  virtual ~ButtonCanvas() = default;

  virtual void fill(const ButtonBox& box, Color color) = 0;
  // Both ends belong to the line, which is one pixel wide.
  virtual void line(int fromX, int fromY, int toX, int toY, Color color) = 0;
  // `text` is without marks of its access key, with CR LF at its line ends; each line wraps at words and is centred.
  // `underlined`: the number of the byte to underline, or -1.
  virtual void text(const ButtonBox& box, const std::string& text, int underlined, Color color) = 0;
  // The button's picture stretched to the box; in grey where the button is disabled.
  virtual void picture(const ButtonBox& box, bool isEnabled) = 0;
  virtual void focusRectangle(const ButtonBox& box) = 0;
};

class ButtonMeasure {
 public:
  virtual ~ButtonMeasure() = default;

  // Width and height that a text takes when it wraps at words in `width` pixels; `left` and `top` of it are 0.
  virtual ButtonBox extentOf(const std::string& text, int width) const = 0;
};

}  // namespace vantrel
