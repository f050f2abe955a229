#include "desktop/adapters/PosixEndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>

namespace vantrel {
namespace {

constexpr std::initializer_list<int> endSignals = {SIGTERM, SIGINT, SIGHUP};

// All that a signal's handler may do is write a byte to the pipe, and it has no other way to know which. A handler,
// unlike a blocked signal, is not handed on to the programs that this one starts.
volatile std::sig_atomic_t wakeDescriptor = -1;

void wake(int /*number*/) {
  const int held = errno;
  [[maybe_unused]] const ssize_t written = ::write(wakeDescriptor, "", 1);
  errno = held;
}

}  // namespace

PosixEndSignals::PosixEndSignals() {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    return;
  }
  reader_ = std::make_unique<PosixReader>(pipe_[0], [this] {
    char byte = 0;
    if (::read(pipe_[0], &byte, 1) == 1) {
      received.fire();
    }
  });
  wakeDescriptor = pipe_[1];
  for (const int number : endSignals) {
    struct sigaction action {};
    action.sa_handler = wake;
    action.sa_flags = SA_RESTART;
    ::sigaction(number, &action, nullptr);
  }
}

PosixEndSignals::~PosixEndSignals() {
  for (const int number : endSignals) {
    std::signal(number, SIG_DFL);
  }
  wakeDescriptor = -1;
  reader_.reset();
  for (const int descriptor : pipe_) {
    if (descriptor >= 0) {
      ::close(descriptor);
    }
  }
}

}  // namespace vantrel
