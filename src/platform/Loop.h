// Clock, timers and waiting in one place. Nothing else sleeps or asks the time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vantrel {

enum class TimerKind { once, repeating };
using TimerId = std::uint64_t;  // 0 is no timer

class Loop {
 public:
  virtual ~Loop() = default;

  // Milliseconds since some moment in the past; never goes back.
  virtual std::uint64_t tickCount() const = 0;

  // Runs events for `milliseconds` (0 or more; 0 runs those that are due now) and returns no earlier. Waits nest: an
  // event may wait in turn, and the outer wait returns only after the inner one. Returns at once while `ending`.
  virtual void wait(int milliseconds) = 0;

  // Calls `due` from the loop after `milliseconds` (0 or more), once or again and again, until stopped; never during
  // this call. A timer that is due again while its own call still runs is called nested in that call's waits.
  virtual TimerId startTimer(int milliseconds, TimerKind kind, std::function<void()> due) = 0;
  // A number that is no running timer's is ignored.
  virtual void stopTimer(TimerId timer) = 0;

  // The local date and time, each in the machine's regional format, joined by "-".
  virtual std::string dateAndTime() const = 0;
  // The same, joined by a blank.
  virtual std::string generalDate() const = 0;
  // The local date as "11-22-2026", month first, wherever the machine stands.
  virtual std::string fixedDate() const = 0;

  // True once the program has begun to end: no wait waits any more, and work that lasts should stop.
  virtual bool ending() const = 0;
};

}  // namespace vantrel
