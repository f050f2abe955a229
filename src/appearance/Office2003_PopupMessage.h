// What a short message consists of: three pictures above one another with the text on them. It drives the fading of
// the window that it stands in.
#pragma once

#include <functional>
#include <string>

#include "platform/Controls.h"
#include "platform/LayeredWindow.h"
#include "platform/Timer.h"

namespace vantrel {

// One event of the mouse over the pictures or the text; the place is in twips from the upper left corner.
struct PopupMouse {
  MouseButton button = MouseButton::left;
  int shift = 0;
  float x = 0;
  float y = 0;
};

class Office2003_PopupMessage {
 public:
  static constexpr int tickInterval = 10;  // milliseconds

  // The window that the control stands in. All of it must outlive the control.
  struct Owner {
    LayeredWindow& window;
    std::function<void()> show;
    std::function<void()> hide;
    std::function<void()> unload;  // asks for it; the owner may refuse
    std::function<void()> focus;
  };

  Office2003_PopupMessage(Loop& loop, Owner owner);

  Label Lbl_Caption;  // the message
  int TransparencyLevel = 0;
  int TransparencyDirection = 0;  // what each tick adds to the level; 0 at rest
  Timer Timer1;                   // runs while the owning window lives

  const std::string& Caption() const { return Lbl_Caption.caption.get(); }
  void setCaption(const std::string& text) { Lbl_Caption.caption.set(text); }

  // From the very bottom, with the window on show and in focus; or from the very top down.
  void MakeVisible();
  void MakeInVisible();

  Signal<> Click;  // these are fired by a view
  Signal<const PopupMouse&> MouseDown;
  Signal<const PopupMouse&> MouseMove;
  Signal<const PopupMouse&> MouseUp;

 private:
  void fade();

  Owner owner_;
  Connection ticked_;
};

}  // namespace vantrel
