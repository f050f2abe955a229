// Every pause of the program.
#pragma once

#include "platform/Loop.h"

namespace vantrel {

// Waits `milliseconds` while events keep running: arrivals, timers and clicks enter other handlers meanwhile, and this
// one too. Read every field anew afterwards, and hold nothing by reference across it that a handler may free.
inline void PumpWait(Loop& loop, int milliseconds) {
  loop.wait(milliseconds);
}

}  // namespace vantrel
