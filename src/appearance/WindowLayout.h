// The places of the main window's panels. One routine lines them up; nothing else makes two panels share a rectangle.
#pragma once

#include "core/frmMain.h"

namespace vantrel {

class WindowLayout {
 public:
  // From now on the panels follow the window's size. `window` must outlive this.
  explicit WindowLayout(frmMain& window);

  // Works from what the anchors (`ListView5`, `ListView1`, `picScore`, `PicBG`) and the window show at this moment, so
  // that it may run as often as one likes.
  void layoutPanels();

 private:
  // A window that is minimised, maximised or pure black keeps the panels where they are.
  void followSize();

  frmMain& window_;
  Connection resized_;
};

}  // namespace vantrel
