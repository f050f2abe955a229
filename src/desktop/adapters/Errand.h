// Work that may hang because another program of the machine does, on a thread of its own, so that the window does not
// hang with it. Nothing can break off a call into a library that waits for a sound server or a message bus; so it is
// left to itself, and there is never more than one of it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace vantrel {

// Copies are about the same work.
class Errand {
 public:
  // Begins `work`, which must own all that it touches, for it may outlive this object, and must not throw. False, and
  // nothing is begun, while the work before it is still under way, and when the system has no thread to give.
  bool begin(std::function<void()> work);

  bool isUnderWay() const;

  // Waits until the work is over, at most for `time`; no events run meanwhile. False when it is still under way.
  bool isOverWithin(std::chrono::milliseconds time) const;

 private:
  struct State {
    std::mutex mutex;
    std::condition_variable over;
    bool underWay = false;
  };

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace vantrel
