// One value of a control that others can watch.
#pragma once

#include <utility>

#include "platform/Signal.h"

namespace vantrel {

template <class T>
class Field {
 public:
  Field() = default;
  explicit Field(T value) : value_(std::move(value)) {}

  // Valid until the next set; copy it before anything that may wait.
  const T& get() const { return value_; }

  // Stores the value and then tells the listeners, but only if it differs from the one held.
  void set(T value) {
    if (!(value == value_)) {
      value_ = std::move(value);
      changed.fire();
    }
  }

  Signal<> changed;

 private:
  T value_{};
};

}  // namespace vantrel
