// The window around a button, as far as the button uses it, and the container in which option buttons know each other.
#pragma once

#include <map>
#include <string>
#include <variant>

namespace vantrel {

class lvButtons_H;

class ButtonHost {
 public:
  virtual ~ButtonHost() = default;

  // True when the button is what lies under the pointer now.
  virtual bool isUnderPointer() const = 0;
  // The button's `hoverTick` is called every so many milliseconds until the timer is killed.
  virtual void startTimer(int id, int milliseconds) = 0;
  virtual void killTimer(int id) = 0;
  // While the mouse is captured, its moves come to the button wherever the pointer is.
  virtual void captureMouse(bool captured) = 0;
  // The button is to be drawn anew, soon.
  virtual void refresh() = 0;
  // Moves the button's window, in pixels.
  virtual void moveBy(int x, int y) = 0;
  // Gives a pressed arrow key to the container: its key code, and the high word that such a message carries.
  virtual void postKey(int keyCode, unsigned message) = 0;
};

// The properties that buttons keep on the window they stand in. It must outlive them.
struct ButtonContainer {
  std::map<std::string, std::variant<int, lvButtons_H*>> properties;
};

}  // namespace vantrel
