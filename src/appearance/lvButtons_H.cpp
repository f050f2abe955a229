#include "appearance/lvButtons_H.h"

#include <utility>

#include "appearance/OptionGroup.h"
#include "core/Text.h"

namespace vantrel {
namespace {

constexpr Color systemFace = 0x8000000F;
constexpr Color systemButtonText = 0x80000012;
constexpr int hoverBackIsOwn = 1;
constexpr int hoverForeIsOwn = 2;

bool isWithin(int value, int last) {
  return value >= 0 && value <= last;
}

// True when the value is in its range and a new one.
bool take(int& property, int value, int last) {
  return isWithin(value, last) && std::exchange(property, value) != value;
}

}  // namespace

lvButtons_H::lvButtons_H(Site site) : site_(site) {
  followColors();
  drawn_ = look();
}

lvButtons_H::~lvButtons_H() {
  if (inControl_) {
    site_.host.killTimer(hoverTimer);
  }
  if (mode_ == 2) {
    value_ = false;
    optionGroup(*this, GroupWork::remove);
  }
}

void lvButtons_H::setButtonStyle(int style) {
  if (take(buttonStyle_, style, 7)) {
    followColors();
    redraw();
  }
}

void lvButtons_H::setMode(int mode) {
  if (!isWithin(mode, 2) || mode == mode_) {
    return;
  }
  if (mode_ == 2) {
    optionGroup(*this, GroupWork::remove);
  }
  mode_ = mode;
  if (mode == 2) {
    optionGroup(*this, GroupWork::add);
  } else if (mode == 0) {
    value_ = false;
  }
  redraw();
}

void lvButtons_H::setCaption(const std::string& caption) {
  caption_ = caption;
  shown_ = readCaption(caption);
  redraw();
}

std::string lvButtons_H::setCaptionAlign(int align) {
  if (isWithin(align, 2) && align != 2 && pictureAlign_ >= 4 && picture_.kind != ButtonPicture::Kind::none) {
    return refusal("When button images are aligned top/bottom center, \r\nbutton captions can only be center aligned");
  }
  if (take(captionAlign_, align, 2)) {
    redraw();
  }
  return {};
}

void lvButtons_H::setCaptionStyle(int style) {
  if (take(captionStyle_, style, 2)) {
    redraw();
  }
}

std::string lvButtons_H::setCustomClick(int direction) {
  if (isWithin(direction, 8) && direction > 0 && !isCustomShape()) {
    return refusal("This property has no effect unless the Button Shape is a custom shape.");
  }
  take(customClick_, direction, 8);
  return {};
}

std::string lvButtons_H::setButtonShape(int shape) {
  if (isWithin(shape, 8) && shape >= 7 && picture_.kind != ButtonPicture::Kind::bitmap) {
    return refusal("The Picture Property must be assigned first and must be a bitmap or JPEG.");
  }
  if (take(buttonShape_, shape, 8)) {
    layOutline();
    redraw();
  }
  return {};
}

// A shape that is made of a picture cannot be made of an icon.
std::string lvButtons_H::setPicture(const ButtonPicture& picture) {
  std::string message;
  if (picture.kind == ButtonPicture::Kind::icon && isCustomShape()) {
    buttonShape_ = 0;
    layOutline();
    message = refusal(
        "Button was changed to Rectangular shaped.\r\nIcons cannot be used for custom buttons. Only use bitmaps or "
        "JPEGs.");
  }
  picture_ = picture;
  redraw();
  return message;
}

// Above or below it, the caption is in the middle.
void lvButtons_H::setPictureAlign(int align) {
  if (take(pictureAlign_, align, 5)) {
    if (align >= 4) {
      captionAlign_ = 2;
    }
    redraw();
  }
}

std::string lvButtons_H::setPictureSize(int size) {
  if (isWithin(size, 4) && isCustomShape()) {
    return refusal("The picture size cannot be changed for Shaped buttons");
  }
  if (take(pictureSize_, size, 4)) {
    redraw();
  }
  return {};
}

void lvButtons_H::setEnabled(bool enabled) {
  if (std::exchange(enabled_, enabled) != enabled) {
    if (!enabled) {
      heldDown_ = false;
      status_ &= ~buttonStatus::isDown;
    }
    redraw();
  }
}

std::string lvButtons_H::setShowFocusRect(bool show) {
  if (site_.designTime && (status_ & buttonStatus::isDefault) != 0) {
    return refusal(
        "The focus rectangle may appear on default buttons ONLY while in design mode, \r\nbut will not appear when the "
        "form is running.");
  }
  showFocusRect_ = show;
  redraw();
  return {};
}

std::string lvButtons_H::setValue(bool value) {
  if (mode_ == 0) {
    return refusal("This property is not applicable for command button modes.");
  }
  value_ = value;
  if (value && mode_ == 2) {
    optionGroup(*this, GroupWork::askWhetherOneIsOn);
  }
  redraw();
  return {};
}

std::string lvButtons_H::setMouseIcon(const std::string& file) {
  const std::string name = lowerCase(file);
  if (!name.empty() && !name.ends_with(".ico") && !name.ends_with(".cur")) {
    return refusal("Select .ico Or .cur Files Only");
  }
  mouseIcon_ = file;
  return {};
}

void lvButtons_H::setFont(const std::string& font) {
  font_ = font;
  redraw();
}

void lvButtons_H::setFontStyle(int style) {
  if ((style & ~14) == 0) {
    fontStyle_ = style;
    redraw();
  }
}

void lvButtons_H::setForeColor(Color color) {
  foreColor_ = color;
  if ((hoverColorLocks_ & hoverForeIsOwn) == 0) {
    hoverForeColor_ = color;
  }
  redraw();
}

void lvButtons_H::setBackColor(Color color) {
  backColor_ = color;
  if ((hoverColorLocks_ & hoverBackIsOwn) == 0) {
    hoverBackColor_ = color;
  }
  followColors();
  redraw();
}

void lvButtons_H::setGradientColor(Color color) {
  gradientColor_ = color;
  followColors();
  redraw();
}

void lvButtons_H::setGradientMode(int mode) {
  if (take(gradientMode_, mode, 4)) {
    redraw();
  }
}

void lvButtons_H::setResetDefaultColors(bool reset) {
  if (!reset || !site_.designTime) {
    return;
  }
  delayDraw_ = true;
  setBackColor(systemFace);
  setGradientColor(systemFace);
  setForeColor(systemButtonText);
  setGradientMode(gradientMode_);
  setHoverColorLocks(hoverColorLocks_);
  followColors();
  DelayDrawing(false);
}

void lvButtons_H::setHoverColorLocks(int locks) {
  if (!isWithin(locks, 3)) {
    return;
  }
  hoverColorLocks_ = locks;
  setBackColor(backColor_);
  setForeColor(foreColor_);
}

void lvButtons_H::setHoverForeColor(Color color) {
  if ((hoverColorLocks_ & hoverForeIsOwn) != 0) {
    hoverForeColor_ = color;
    redraw();
  }
}

void lvButtons_H::setHoverBackColor(Color color) {
  if ((hoverColorLocks_ & hoverBackIsOwn) != 0) {
    hoverBackColor_ = color;
    followColors();
    redraw();
  }
}

void lvButtons_H::Refresh() {
  delayDraw_ = false;
  redraw();
}

void lvButtons_H::DelayDrawing(bool bDelay) {
  delayDraw_ = bDelay;
  if (!bDelay) {
    redraw();
  }
}

std::string lvButtons_H::refusal(const char* message) const {
  return site_.designTime ? message : "";
}

void lvButtons_H::followColors() {
  colors_ =
      buttonColors(buttonStyle_, convertColor(backColor_, site_.system), convertColor(hoverBackColor_, site_.system));
}

void lvButtons_H::redraw() {
  if (delayDraw_) {
    return;
  }
  moveWithPress();
  drawn_ = look();
  site_.host.refresh();
}

void lvButtons_H::layOutline() {
  outline_ = buttonOutline(buttonShape_, outline_.width, outline_.height);
}

void lvButtons_H::resize(int width, int height) {
  outline_.width = width;
  outline_.height = height;
  layOutline();
  redraw();
}

void lvButtons_H::ambientDisplayAsDefault(bool isDefault) {
  if (isDefault && (showFocusRect_ || site_.designTime)) {
    status_ |= buttonStatus::isDefault;
  } else {
    status_ &= ~buttonStatus::isDefault;
  }
  redraw();
}

// By one pixel, and back when the press has ended.
void lvButtons_H::moveWithPress() {
  constexpr std::pair<int, int> ways[] = {{0, -1}, {1, -1}, {-1, -1}, {1, 1}, {-1, 1}, {1, 0}, {0, 1}, {-1, 0}};
  const bool isPressed = look().isPressed();
  const bool isMoved = (status_ & buttonStatus::isMoved) != 0;
  if (mode_ != 0 || customClick_ == 0 || isPressed == isMoved) {
    return;
  }
  const auto [x, y] = ways[customClick_ - 1];
  status_ ^= buttonStatus::isMoved;
  site_.host.moveBy(isPressed ? x : -x, isPressed ? y : -y);
}

}  // namespace vantrel
