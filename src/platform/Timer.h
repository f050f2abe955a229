// The timer control: ticks at a fixed interval for as long as it is switched on.
#pragma once

#include "platform/Field.h"
#include "platform/Loop.h"

namespace vantrel {

class Timer {
 public:
  // `interval` in milliseconds, above 0. The timer is off. `loop` must outlive it.
  Timer(Loop& loop, int interval) : loop_(loop), interval_(interval) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer() { loop_.stopTimer(running_); }

  bool enabled() const { return running_ != 0; }
  // Switching on a timer that is on does not restart its interval.
  void switchOn();
  void switchOff();

  Signal<> tick;

 private:
  Loop& loop_;
  int interval_;
  TimerId running_ = 0;
};

}  // namespace vantrel
