#include "platform/Timer.h"

namespace vantrel {

void Timer::switchOn() {
  if (!enabled()) {
    running_ = loop_.startTimer(interval_, TimerKind::repeating, [this] { tick.fire(); });
  }
}

void Timer::switchOff() {
  loop_.stopTimer(running_);
  running_ = 0;
}

}  // namespace vantrel
