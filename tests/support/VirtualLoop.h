// A loop whose time jumps from event to event: what is due runs in order of time, then in the order it was asked for.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <utility>

#include "platform/Loop.h"

namespace vantrel {

class VirtualLoop : public Loop {
 public:
  std::uint64_t tickCount() const override { return now_; }
  void wait(int milliseconds) override {
    const std::uint64_t end = now_ + static_cast<std::uint64_t>(milliseconds);
    while (!ends && !events_.empty() && events_.begin()->first <= end) {
      runFirst();
    }
    if (!ends) {
      now_ = std::max(now_, end);
    }
  }
  TimerId startTimer(int milliseconds, TimerKind kind, std::function<void()> due) override {
    const std::uint64_t interval = static_cast<std::uint64_t>(milliseconds);
    events_.emplace(now_ + interval, Event{++lastTimer_, kind, interval, std::move(due)});
    return lastTimer_;
  }
  void stopTimer(TimerId timer) override {
    std::erase_if(events_, [timer](const auto& event) { return event.second.timer == timer; });
  }
  std::string dateAndTime() const override { return clock; }
  std::string generalDate() const override { return "11/22/26 21:00:00"; }
  std::string fixedDate() const override { return "11-22-2026"; }
  bool ending() const override { return ends; }

  // Calls `event` once, at a tick count that has not passed.
  void at(std::uint64_t tick, std::function<void()> event) {
    startTimer(static_cast<int>(tick - now_), TimerKind::once, std::move(event));
  }
  // Runs until nothing but repeating timers is left.
  void runUntilIdle() {
    const auto isRepeating = [](const auto& event) { return event.second.kind == TimerKind::repeating; };
    while (!ends && !std::all_of(events_.begin(), events_.end(), isRepeating)) {
      runFirst();
    }
  }

  std::string clock = "11/22/26-21:00:00";
  bool ends = false;

 private:
  static constexpr int mostEvents = 1000000;  // more than any story has
  struct Event {
    TimerId timer;
    TimerKind kind;
    std::uint64_t interval;
    std::function<void()> due;
  };

  // The event is out of the list, or in it anew, before it is called: it may wait, stop itself and start others.
  void runFirst() {
    if (++eventsRun_ > mostEvents) {
      throw std::logic_error("The loop does not come to rest.");
    }
    const auto taken = events_.extract(events_.begin());
    now_ = std::max(now_, taken.key());
    if (taken.mapped().kind == TimerKind::repeating) {
      events_.emplace(now_ + taken.mapped().interval, taken.mapped());
    }
    taken.mapped().due();
  }

  std::multimap<std::uint64_t, Event> events_;  // by tick count; those of one tick in the order they came
  std::uint64_t now_ = 0;
  TimerId lastTimer_ = 0;
  int eventsRun_ = 0;
};

}  // namespace vantrel
