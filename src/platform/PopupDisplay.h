// Face of what shows balloons. A balloon is shown by a PopupDisplay of its own and goes on when that is gone.
#pragma once

#include <memory>
#include <string>

namespace vantrel {

// Who is told how a balloon ended.
class PopupAnswers {
 public:
  virtual ~PopupAnswers() = default;

  // A balloon has ended: with the text of the button that was pressed, or with `PopupRequest::endedByItself`.
  virtual void MsgBack(const std::string& text) = 0;
  // An input box has ended: what was typed, parted by commas.
  virtual void InputBack(const std::string& fields) = 0;
};

struct PopupButton {
  bool shown = false;
  std::string text = {};
};

struct PopupRequest {
  static constexpr const char* endedByItself = "MiscEv";  // or the user has just sent it away

  std::string message = {};
  std::string title = {};
  int icon = 0;  // 0 none, 16 critical, 48 exclamation, 64 information
  bool closeButton = true;
  double autoCloseSeconds = 0;  // 0: it stays until the user ends it
  double fontSize = 8;          // points
  std::string fontFace = {};
  bool atMouse = true;
  int left = 0;  // these two, in pixels, count only when it is not at the mouse
  int top = 0;
  PopupButton first = {};
  PopupButton second = {};
  PopupButton third = {};
  PopupAnswers* answers = nullptr;  // must outlive the balloon
  bool reserved = false;
  int textBoxes = 1;  // of an input box
  std::string style = "Balloon";
};

class PopupDisplay {
 public:
  virtual ~PopupDisplay() = default;

  // Shows a balloon and returns at once. Empty when all is well: `answers` is then called exactly once, later, unless
  // the program ends before. Otherwise what went wrong, for the user to read, and no answer comes.
  virtual std::string popUpBalloon(const PopupRequest& request) = 0;
};

class PopupDisplays {
 public:
  virtual ~PopupDisplays() = default;

  // Nothing when balloons cannot be shown here.
  virtual std::unique_ptr<PopupDisplay> create() = 0;
};

}  // namespace vantrel
