// A timer of the operating system that is exact to a fraction of a millisecond, where the toolkit's are rounded up.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "desktop/adapters/PosixReader.h"

namespace vantrel {

class PosixAlarm {
 public:
  // `rung` is called from the event loop, once for each `start`. May be destroyed outside that call only.
  explicit PosixAlarm(std::function<void()> rung);
  PosixAlarm(const PosixAlarm&) = delete;
  PosixAlarm& operator=(const PosixAlarm&) = delete;
  ~PosixAlarm();

  // In place of a start that has not rung yet. Nanoseconds from now, 0 or more. False when the system has no alarm left
  // to give: it will not ring.
  bool start(std::int64_t nanoseconds);
  void stop();

 private:
  bool set(std::int64_t nanoseconds);

  int descriptor_;
  std::function<void()> rung_;
  std::unique_ptr<PosixReader> reader_;
};

}  // namespace vantrel
