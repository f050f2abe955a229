#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <unordered_map>

#include "sandbox/Sockets.h"

namespace vantrel::sandbox {

/// Watches sockets and runs timers, in the one thread that calls run(). Only stop() may be called from another thread
/// while run() is running. Handlers must not throw.
class EventLoop {
 public:
  using Clock = std::chrono::steady_clock;
  /// Gets the epoll events that occurred.
  using Handler = std::function<void(std::uint32_t)>;

  EventLoop();

  /// Calls `handler` whenever one of the epoll `events` holds for the descriptor. Throws std::system_error.
  void watch(int descriptor, std::uint32_t events, Handler handler);
  /// Replaces the events for which a watched descriptor is watched.
  void watchFor(int descriptor, std::uint32_t events);
  /// Ends the watch; the handler is not called again. Must come before the descriptor is closed.
  void forget(int descriptor);

  /// Calls `action` once, as soon as `when` has come. Actions for the same moment run in the order they were given.
  void callAt(Clock::time_point when, std::function<void()> action);

  /// Runs until stop().
  void run();
  void stop();

 private:
  void runTimersDue();
  void waitForOneEvent();

  Descriptor epoll_;
  Descriptor wake_;
  std::atomic<bool> stopped_ = false;
  std::unordered_map<int, std::shared_ptr<Handler>> handlers_;
  std::multimap<Clock::time_point, std::function<void()>> timers_;
};

}  // namespace vantrel::sandbox
