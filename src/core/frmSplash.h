// The state of the window that is seen while the program starts.
#pragma once

#include "platform/Controls.h"
#include "platform/Timer.h"

namespace vantrel {

struct frmSplash {
  static constexpr int time = 5000;  // milliseconds on show

  // `loop` must outlive the window.
  explicit frmSplash(Loop& loop) : Timer1(loop, time) {}

  Field<std::string> title;
  Field<bool> visible{false};
  Field<bool> picNewSplash{false};  // the picture that gives the window its size is shown
  Label lblVer;
  Label lblVersion;
  Label Label1;
  Timer Timer1;
};

}  // namespace vantrel
