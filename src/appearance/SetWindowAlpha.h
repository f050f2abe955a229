// How far a window can be seen through.
#pragma once

#include "platform/LayeredWindow.h"

namespace vantrel {

namespace alpha {
enum Result : int { done = 0, outOfRange = 1, platformError = 2 };
}  // namespace alpha

// `level`: 0 clear to 255 solid; nothing is done for any other.
inline alpha::Result SetWindowAlpha(LayeredWindow& window, int level) {
  if (level < 0 || level > 255) {
    return alpha::outOfRange;
  }
  return window.setConstantAlpha(level) ? alpha::done : alpha::platformError;
}

}  // namespace vantrel
