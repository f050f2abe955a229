// A loop whose time jumps from event to event: what is due runs in order of time, then in the order it was asked for.
#pragma once

#include <cstdint>
#include <map>
#include <utility>

#include "platform/Loop.h"

namespace vantrel {

class VirtualLoop : public Loop {
 public:
  std::uint64_t tickCount() const override { return now_; }
  // Throws std::logic_error when more events are due at one moment than any program means.
  void wait(int milliseconds) override;
  TimerId startTimer(int milliseconds, TimerKind kind, std::function<void()> due) override;
  void stopTimer(TimerId timer) override;
  std::string dateAndTime() const override { return clock; }
  bool ending() const override { return ends; }

  // Calls `event` once, at a tick count that has not passed.
  void at(std::uint64_t tick, std::function<void()> event);
  // Runs until nothing but repeating timers is left. Throws std::logic_error when that takes more than `limit`
  // milliseconds.
  void runUntilIdle(int limit = 600000);

  std::string clock = "11/22/26-21:00:00";
  bool ends = false;

 private:
  struct Moment {
    std::uint64_t tick;
    std::uint64_t asked;  // the how manieth request this is

    auto operator<=>(const Moment& other) const = default;
  };
  struct Event {
    TimerId timer;
    TimerKind kind;
    std::uint64_t interval;
    std::function<void()> due;
  };

  void runFirst();
  bool isIdle() const;

  std::map<Moment, Event> events_;
  std::uint64_t now_ = 0;
  std::uint64_t lastAsked_ = 0;
  TimerId lastTimer_ = 0;
  int runAtThisTick_ = 0;
};

}  // namespace vantrel
