// A button that is drawn from a strip of four pictures of one size above one another: its looks at rest, under the
// pointer and pressed, and a mask in which black marks what counts as the button. Without a strip it draws itself.
#pragma once

#include <optional>
#include <string>

#include "platform/Controls.h"
#include "platform/Timer.h"

namespace vantrel {

struct ButtonPoint {
  int x = 0;  // pixels from the button's upper left corner
  int y = 0;
};

class ButtonStrip {
 public:
  virtual ~ButtonStrip() = default;

  virtual int width() const = 0;   // pixels
  virtual int height() const = 0;  // of all four frames
  // Whether the pixel is black; false for one that the strip does not have.
  virtual bool isBlack(ButtonPoint pixel) const = 0;
};

// Where a button stands.
class OfficeButtonHost {
 public:
  virtual ~OfficeButtonHost() = default;

  // Whether the window that the button stands in is the active one. May throw a failure.
  virtual bool isParentActive() const = 0;
  virtual ButtonPoint pointer() const = 0;
  virtual ButtonPoint size() const = 0;  // as the point behind its last one
  virtual void resize(int width, int height) = 0;
};

// What a button is painted with, from above and from the left.
class OfficeButtonCanvas {
 public:
  virtual ~OfficeButtonCanvas() = default;

  virtual void drawFrame(int frame) = 0;  // of the strip, 0 to 2
  virtual void clear(Color color) = 0;
  // A frame of one pixel around the button.
  virtual void drawBox(Color topAndLeft, Color bottomAndRight) = 0;
  // In the whole button. `flags` as `Office2003_Button::textFlags` makes them; an "&" in front of a letter underlines
  // it.
  virtual void drawText(const std::string& text, int flags, Color color) = 0;
};

class Office2003_Button {
 public:
  enum Look : int { normal = 0, hover = 1, pressed = 2 };
  static constexpr int maskFrame = 3;

  // `loop` must outlive the button.
  explicit Office2003_Button(Loop& loop);

  Field<int> Align{5};
  Field<Color> BackColor{0xE0E0E0};
  Field<Color> ForeColor{0};
  Field<bool> Enabled{true};
  Timer Timer1;

  const std::string& Caption() const { return caption_; }
  const std::string& AccessKey() const { return accessKey_; }  // the letter behind the caption's last single "&"
  // Sets the access key as well.
  void setCaption(const std::string& caption);

  // Null for none. It must stay until another one is set.
  void setPicture(const ButtonStrip* strip);
  // Null while the button stands nowhere: it then takes no input.
  void setHost(OfficeButtonHost* host);

  // What the platform tells the button, by its view.
  void resized();
  void mouseMove(MouseButton button, ButtonPoint at);
  void mouseDown(MouseButton button, ButtonPoint at);
  void mouseUp(MouseButton button, ButtonPoint at);
  void click();

  void paint(OfficeButtonCanvas& canvas) const;

  Look drawnLook() const { return drawn_; }
  Look look() const { return look_; }

  // The platform's flags for an alignment: 0 to 2 centred, 3 to 5 left, 6 to 8 right; of each the middle, the top and
  // the bottom. Any other number is as 5.
  static int textFlags(int align);

  Signal<> Click;
  Signal<> DblClick;
  Signal<int> KeyDown;  // code of the key, as in the three below; a view fires them
  Signal<int> KeyPress;
  Signal<int> KeyUp;
  Signal<MouseButton, ButtonPoint> MouseDown;
  Signal<MouseButton, ButtonPoint> MouseMove;
  Signal<MouseButton, ButtonPoint> MouseUp;
  Signal<> repaint;  // what `paint` draws is another thing now

 private:
  bool activeWindowTest();
  bool isHit(ButtonPoint at) const;
  bool isInside() const;
  void tick();
  void draw(Look look);
  void take(Look look);
  void keepFrameSize();

  Loop& loop_;
  OfficeButtonHost* host_ = nullptr;
  const ButtonStrip* strip_ = nullptr;
  std::string caption_ = "Command";
  std::string accessKey_;
  bool down_ = false;
  bool maskHit_ = true;
  Look look_ = normal;   // what the timer knows of
  Look drawn_ = normal;  // what is on the screen
  bool lettingEventsRun_ = false;
  std::vector<Connection> connections_;
};

}  // namespace vantrel
