// What the mouse and the keys do to a button.

#include <utility>

#include "appearance/OptionGroup.h"
#include "appearance/lvButtons_H.h"

namespace vantrel {
namespace {

constexpr int leftButton = 1;

namespace key {
constexpr int enter = 13;
constexpr int shift = 16;
constexpr int escape = 27;
constexpr int space = 32;
constexpr int left = 37;
constexpr int down = 40;
}  // namespace key

// The scan codes of the arrow keys, as the high word of a pressed key's message: left, up, right, down.
constexpr unsigned arrowMessages[] = {0x4B0001, 0x480001, 0x4D0001, 0x500001};

bool isArrow(int keyCode) {
  return keyCode >= key::left && keyCode <= key::down;
}

}  // namespace

void lvButtons_H::mouseDown(const ButtonMouse& mouse) {
  lastButton_ = static_cast<std::int16_t>(mouse.Button);
  if (mouse.Button == leftButton) {
    status_ |= buttonStatus::isDown;
    heldDown_ = true;
    delayDraw_ = false;
    redraw();
    site_.host.captureMouse(true);
  }
  MouseDown.fire(mouse);
}

void lvButtons_H::mouseUp(const ButtonMouse& mouse) {
  if (mouse.Button == leftButton) {
    heldDown_ = false;
    site_.host.captureMouse(false);
    status_ &= ~buttonStatus::isDown;
    if (mode_ == 0) {
      redraw();
    }
  }
  MouseUp.fire(mouse);
  lastButton_ = static_cast<std::int16_t>(mouse.Button);
}

void lvButtons_H::click() {
  if (lastButton_ != leftButton || (mode_ == 2 && value_)) {
    return;
  }
  if (mode_ != 0) {
    setValue(mode_ == 2 || !value_);
  }
  Click.fire();
}

void lvButtons_H::dblClick(const ButtonMouse& mouse) {
  DblClick.fire(mouse.Button);
  if (mouse.Button == leftButton) {
    mouseDown(mouse);
    lastButton_ = -1;
  } else {
    MouseDown.fire(mouse);
  }
}

void lvButtons_H::mouseMove(const ButtonMouse& mouse) {
  if (!inControl_ && site_.host.isUnderPointer()) {
    status_ |= buttonStatus::isOver;
    MouseOnButton.fire(true);
    site_.host.startTimer(hoverTimer, hoverInterval);
    inControl_ = true;
    delayDraw_ = false;
    heldDown_ = (mouse.Button & leftButton) != 0;
    redraw();
  }
  MouseMove.fire(mouse);
}

void lvButtons_H::hoverTick() {
  if (inControl_ && !site_.host.isUnderPointer()) {
    leave();
  }
}

void lvButtons_H::leave() {
  site_.host.killTimer(hoverTimer);
  status_ &= ~buttonStatus::isOver;
  inControl_ = false;
  delayDraw_ = false;
  MouseOnButton.fire(false);
  redraw();
}

bool lvButtons_H::keyDown(int keyCode, int shift) {
  if (isArrow(keyCode)) {
    site_.host.postKey(keyCode, arrowMessages[keyCode - key::left]);
    return true;
  }
  if (keyCode == key::space && (status_ & buttonStatus::isDown) == 0) {
    status_ |= buttonStatus::isDown | buttonStatus::isOver;
    heldDown_ = true;
    redraw();
    if (!inControl_) {
      status_ &= ~buttonStatus::isOver;
    }
  }
  KeyDown.fire(keyCode, shift);
  return false;
}

bool lvButtons_H::keyUp(int keyCode, int shift) {
  heldDown_ = false;
  if (isArrow(keyCode)) {
    if (mode_ == 2 && !value_) {
      lastButton_ = leftButton;
      click();
    }
    return true;
  }
  if (keyCode == key::shift) {
    return true;
  }
  if (keyCode == key::space && (status_ & buttonStatus::isDown) != 0) {
    status_ &= ~buttonStatus::isDown;
    lastButton_ = leftButton;
    const bool isCommand = mode_ == 0;
    if (isCommand) {
      redraw();
    } else {
      KeyUp.fire(keyCode, shift);
    }
    click();
    if (!isCommand) {
      return true;
    }
  }
  KeyUp.fire(keyCode, shift);
  return false;
}

void lvButtons_H::accessKeyPress(int ascii) {
  if ((ascii == key::enter || ascii == key::escape) && mode_ > 0) {
    return;
  }
  if ((status_ & buttonStatus::isDefault) == 0) {
    redraw();
  }
  lastButton_ = leftButton;
  click();
}

void lvButtons_H::gotFocus() {
  if (mode_ == 2 && !value_ && !optionGroup(*this, GroupWork::askWhetherOneIsOn)) {
    lastButton_ = leftButton;
    click();
  }
}

}  // namespace vantrel
