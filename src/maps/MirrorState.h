// The states of the mirrors' window that more than one of its commands puts it into.
#pragma once

#include "core/MirrorWindows.h"

namespace vantrel {

// Back to rest, with no map wanted.
void cancelIt(frmMirror& window);

// The four buttons that lead to a new download.
void disableButtons(frmMirror& window);
void enableButtons(frmMirror& window);

// As a window that was just opened: what a download before has left is gone.
void resetButtons(frmMirror& window);

}  // namespace vantrel
