// Calls its owner whenever a descriptor has something to read.
#pragma once

#include <functional>
#include <memory>

namespace vantrel {

// The call comes from the event loop, also nested inside a wait of a call under way, but at most `maximumNesting` deep:
// then what arrives stays where it is until the whole stack has come down. May be destroyed inside its own call.
class PosixReader {
 public:
  // `descriptor` stays the owner's, who closes it after this is destroyed.
  PosixReader(int descriptor, std::function<void()> readable);
  PosixReader(const PosixReader&) = delete;
  PosixReader& operator=(const PosixReader&) = delete;
  ~PosixReader();

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace vantrel
