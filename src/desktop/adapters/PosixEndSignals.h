// The system's requests to end the program, as an event of the loop.
#pragma once

#include <array>
#include <memory>

#include "desktop/adapters/PosixReader.h"
#include "platform/Signal.h"

namespace vantrel {

// Takes over SIGTERM, SIGINT and SIGHUP for its lifetime. One at a time in a program.
class PosixEndSignals {
 public:
  PosixEndSignals();
  PosixEndSignals(const PosixEndSignals&) = delete;
  PosixEndSignals& operator=(const PosixEndSignals&) = delete;
  ~PosixEndSignals();

  Signal<> received;

 private:
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<PosixReader> reader_;
};

}  // namespace vantrel
