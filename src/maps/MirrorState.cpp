#include "maps/MirrorState.h"

namespace vantrel {
namespace {

void setButtons(frmMirror& window, bool enabled) {
  for (Button* const button : {&window.cmdAdd, &window.cmdRemove, &window.cmdDL, &window.cmdURL}) {
    button->enabled.set(enabled);
  }
}

}  // namespace

void cancelIt(frmMirror& window) {
  for (Button* const button : {&window.cmdDL, &window.cmdPause, &window.cmdResume, &window.cmdCancel}) {
    button->enabled.set(false);
  }
  window.lblStatus.caption.set("Download Status:");
  window.lblPercent.caption.set("0%");
  window.lblBytes.caption.set("0 bytes");
  window.lblTime.caption.set("Unknown");
  window.lblMap.caption.set("");
}

void disableButtons(frmMirror& window) {
  setButtons(window, false);
}

void enableButtons(frmMirror& window) {
  setButtons(window, true);
}

void resetButtons(frmMirror& window) {
  enableButtons(window);
  for (Button* const button : {&window.cmdPause, &window.cmdResume, &window.cmdCancel}) {
    button->enabled.set(false);
  }
  window.lblStatus.caption.set("Download Status:");
  window.lblPercent.caption.set("0%");
  window.lblBytes.caption.set("0 bytes");
  window.lblTime.caption.set("Unknown");
  window.lblInfo.caption.set("");
  window.pb1.set(0);
}

}  // namespace vantrel
