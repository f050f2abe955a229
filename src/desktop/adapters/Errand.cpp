#include "desktop/adapters/Errand.h"

#include <csignal>
#include <system_error>
#include <thread>
#include <utility>

namespace vantrel {
namespace {

// While it lives, this thread takes no signals, nor do the threads that are started from it. The requests to end are
// for the main thread, and a library that writes to a program that has gone must not end this one. Faults stay what
// they are.
class WithoutSignals {
 public:
  WithoutSignals() {
    sigset_t all;
    ::sigfillset(&all);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
      ::sigdelset(&all, fault);
    }
    ::pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  WithoutSignals(const WithoutSignals&) = delete;
  WithoutSignals& operator=(const WithoutSignals&) = delete;
  ~WithoutSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

}  // namespace

bool Errand::begin(std::function<void()> work) {
  const std::lock_guard lock(state_->mutex);
  if (state_->underWay) {
    return false;
  }
  const WithoutSignals inherited;
  try {
    std::thread([state = state_, work = std::move(work)]() mutable {
      work();
      work = nullptr;
      const std::lock_guard end(state->mutex);
      state->underWay = false;
      state->over.notify_all();
    }).detach();
  } catch (const std::system_error&) {
    return false;
  }
  state_->underWay = true;
  return true;
}

bool Errand::isUnderWay() const {
  const std::lock_guard lock(state_->mutex);
  return state_->underWay;
}

bool Errand::isOverWithin(std::chrono::milliseconds time) const {
  std::unique_lock lock(state_->mutex);
  return state_->over.wait_for(lock, time, [this] { return !state_->underWay; });
}

}  // namespace vantrel
