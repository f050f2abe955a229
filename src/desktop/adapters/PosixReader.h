// Calls its owner whenever a descriptor has something to read.
#pragma once

#include <functional>
#include <memory>

namespace vantrel {

// The call comes from the event loop, also nested inside a wait of a call under way. May be destroyed inside its call.
class PosixReader {
 public:
  // `descriptor` stays the owner's, who closes it after this is destroyed.
  PosixReader(int descriptor, std::function<void()> readable);
  PosixReader(const PosixReader&) = delete;
  PosixReader& operator=(const PosixReader&) = delete;
  ~PosixReader();

  // While it is disabled, what arrives stays where it is.
  void setEnabled(bool enabled);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace vantrel
