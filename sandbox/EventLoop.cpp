#include "sandbox/EventLoop.h"

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>

namespace vantrel::sandbox {

EventLoop::EventLoop() : epoll_(epoll_create1(EPOLL_CLOEXEC)), wake_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  throwIf(epoll_.number() < 0 || wake_.number() < 0, "an event loop cannot be made");
  watch(wake_.number(), EPOLLIN, [](std::uint32_t) {});
}

void EventLoop::watch(int descriptor, std::uint32_t events, Handler handler) {
  epoll_event event{};
  event.events = events;
  event.data.fd = descriptor;
  throwIf(epoll_ctl(epoll_.number(), EPOLL_CTL_ADD, descriptor, &event) != 0, "a socket cannot be watched");
  handlers_[descriptor] = std::make_shared<Handler>(std::move(handler));
}

void EventLoop::watchFor(int descriptor, std::uint32_t events) {
  epoll_event event{};
  event.events = events;
  event.data.fd = descriptor;
  epoll_ctl(epoll_.number(), EPOLL_CTL_MOD, descriptor, &event);
}

void EventLoop::forget(int descriptor) {
  epoll_ctl(epoll_.number(), EPOLL_CTL_DEL, descriptor, nullptr);
  handlers_.erase(descriptor);
}

void EventLoop::callAt(Clock::time_point when, std::function<void()> action) {
  timers_.emplace(when, std::move(action));
}

void EventLoop::run() {
  while (!stopped_) {
    waitForOneEvent();
    runTimersDue();
  }
}

void EventLoop::stop() {
  stopped_ = true;
  eventfd_write(wake_.number(), 1);
}

void EventLoop::runTimersDue() {
  // An action may add timers for this very moment; those wait for the next round, so that sockets get their turn.
  const auto now = Clock::now();
  for (auto left = std::distance(timers_.begin(), timers_.upper_bound(now)); left > 0; --left) {
    const auto action = std::move(timers_.begin()->second);
    timers_.erase(timers_.begin());
    action();
  }
}

void EventLoop::waitForOneEvent() {
  // One event at a time: a handler may close a descriptor whose number is used again at once, and an event taken
  // earlier for the old one would then be given to the new one.
  timespec timeout{};
  if (!timers_.empty()) {
    const auto nanoseconds = std::max<std::int64_t>(
        0, std::chrono::duration_cast<std::chrono::nanoseconds>(timers_.begin()->first - Clock::now()).count());
    timeout.tv_sec = nanoseconds / 1'000'000'000;
    timeout.tv_nsec = nanoseconds % 1'000'000'000;
  }
  epoll_event event{};
  if (epoll_pwait2(epoll_.number(), &event, 1, timers_.empty() ? nullptr : &timeout, nullptr) < 1) {
    return;
  }
  // The copy keeps the handler alive while it forgets its own descriptor.
  const auto found = handlers_.find(event.data.fd);
  const auto handler = found == handlers_.end() ? nullptr : found->second;
  if (handler) {
    (*handler)(event.events);
  }
}

}  // namespace vantrel::sandbox
