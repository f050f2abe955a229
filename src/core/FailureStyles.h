// The three ways in which a handler ends a failure. Every handler uses exactly one of them, and none lets one out.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/Failure.h"

namespace vantrel {

// Stops at the first failure, without a word.
template <class Handler>
void stopSilently(Handler&& handler) {
  try {
    std::forward<Handler>(handler)();
  } catch (const Failure&) {  // The handler has ended; that is all there is to say.
  }
}

// Runs a handler's steps one by one; a step that fails is passed over and the next one runs. What the failing step had
// done before it failed stays done.
class SkippingSteps {
 public:
  // `afterFailure`, if any, runs behind each failed step.
  explicit SkippingSteps(std::function<void()> afterFailure = {}) : afterFailure_(std::move(afterFailure)) {}

  // True when the step went through.
  template <class Step>
  bool operator()(Step&& step) const {
    try {
      std::forward<Step>(step)();
      return true;
    } catch (const Failure&) {
      if (afterFailure_) {
        afterFailure_();
      }
      return false;
    }
  }

 private:
  std::function<void()> afterFailure_;
};

// What the user is told of a failure that is reported.
inline std::string errorReport(const Failure& failure) {
  return "Error # " + std::to_string(failure.number) + " " + failure.description;
}

// Stops at the first failure and gives it to `report`.
template <class Handler, class Report>
void reportAndEnd(Handler&& handler, Report&& report) {
  try {
    std::forward<Handler>(handler)();
  } catch (const Failure& failure) {
    std::forward<Report>(report)(failure);
  }
}

}  // namespace vantrel
