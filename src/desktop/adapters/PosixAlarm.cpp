#include "desktop/adapters/PosixAlarm.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace vantrel {

PosixAlarm::PosixAlarm(std::function<void()> rung)
    : descriptor_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)), rung_(std::move(rung)) {
  if (descriptor_ < 0) {
    return;
  }
  reader_ = std::make_unique<PosixReader>(descriptor_, [this] {
    std::uint64_t times = 0;
    if (::read(descriptor_, &times, sizeof times) == sizeof times) {
      rung_();
    }
  });
}

PosixAlarm::~PosixAlarm() {
  reader_.reset();
  if (descriptor_ >= 0) {
    ::close(descriptor_);
  }
}

bool PosixAlarm::start(std::int64_t nanoseconds) {
  return set(std::max<std::int64_t>(nanoseconds, 1));  // 0 would mean never
}

void PosixAlarm::stop() {
  set(0);
}

bool PosixAlarm::set(std::int64_t nanoseconds) {
  constexpr std::int64_t second = 1'000'000'000;
  itimerspec time{};
  time.it_value.tv_sec = nanoseconds / second;
  time.it_value.tv_nsec = nanoseconds % second;
  return ::timerfd_settime(descriptor_, 0, &time, nullptr) == 0;
}

}  // namespace vantrel
