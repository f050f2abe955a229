#include "support/VirtualLoop.h"

#include <algorithm>
#include <stdexcept>

namespace vantrel {
namespace {

constexpr int mostEventsOfOneTick = 1000000;

}  // namespace

void VirtualLoop::wait(int milliseconds) {
  const std::uint64_t end = now_ + static_cast<std::uint64_t>(milliseconds);
  const std::uint64_t asked = lastAsked_;
  while (!ends && !events_.empty()) {
    const Moment first = events_.begin()->first;
    if (first.tick > end || (milliseconds == 0 && first.asked > asked)) {
      break;
    }
    runFirst();
  }
  if (!ends && now_ < end) {
    now_ = end;
    runAtThisTick_ = 0;
  }
}

// The event is out of the list, or in it anew, before it is called: it may wait, stop itself and start others.
void VirtualLoop::runFirst() {
  auto taken = events_.extract(events_.begin());
  if (taken.key().tick > now_) {
    now_ = taken.key().tick;
    runAtThisTick_ = 0;
  }
  if (++runAtThisTick_ > mostEventsOfOneTick) {
    throw std::logic_error("The same moment never ends.");
  }
  const Event event = std::move(taken.mapped());
  if (event.kind == TimerKind::repeating) {
    events_.emplace(Moment{now_ + event.interval, ++lastAsked_}, event);
  }
  event.due();
}

TimerId VirtualLoop::startTimer(int milliseconds, TimerKind kind, std::function<void()> due) {
  const std::uint64_t interval = static_cast<std::uint64_t>(milliseconds);
  const std::uint64_t repeated = std::max<std::uint64_t>(interval, 1);
  events_.emplace(Moment{now_ + interval, ++lastAsked_}, Event{++lastTimer_, kind, repeated, std::move(due)});
  return lastTimer_;
}

void VirtualLoop::stopTimer(TimerId timer) {
  std::erase_if(events_, [timer](const auto& event) { return event.second.timer == timer; });
}

void VirtualLoop::at(std::uint64_t tick, std::function<void()> event) {
  startTimer(static_cast<int>(tick - now_), TimerKind::once, std::move(event));
}

bool VirtualLoop::isIdle() const {
  return std::all_of(events_.begin(), events_.end(),
                     [](const auto& event) { return event.second.kind == TimerKind::repeating; });
}

void VirtualLoop::runUntilIdle(int limit) {
  const std::uint64_t end = now_ + static_cast<std::uint64_t>(limit);
  while (!ends && !isIdle()) {
    if (events_.begin()->first.tick > end) {
      throw std::logic_error("The loop does not come to rest.");
    }
    runFirst();
  }
}

}  // namespace vantrel
