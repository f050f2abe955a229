// Face of the system's echo: asks a host for its round trip, as `ping` does. Three steps: open a handle, send an echo
// and wait for its answer, close the handle, which is to destroy it.
//
// The wait goes through the program's `Loop`, so events run meanwhile and may open a handle and send an echo of their
// own. Such a nested echo runs to its end inside, and only then the outer one returns, also when its own answer came
// long before; its round trip is not longer for that. No echo takes the answer of another. Who wants no more than one
// under way at a time sees to it.
#pragma once

#include <memory>
#include <string>

namespace vantrel {

enum class EchoOutcome {
  answered,
  unanswered,  // in time, or it cannot be reached, or the program is ending
  noAddress,   // nothing was sent
};

struct EchoReply {
  EchoOutcome outcome = EchoOutcome::unanswered;
  int milliseconds = 0;  // the round trip, whole ones; 0 when it was not answered

  bool operator==(const EchoReply& other) const = default;
};

class IcmpHandle {
 public:
  virtual ~IcmpHandle() = default;

  // Sends one echo of `payload` to a dotted address and returns as soon as the answer is there, or after
  // `milliseconds` (0 or more), or at once when the program begins to end. An answer that came in time counts even if
  // events kept this call from looking. May be called again, also inside its own wait, but the handle must outlive it.
  virtual EchoReply sendEcho(const std::string& ip, const std::string& payload, int milliseconds) = 0;
};

enum class IcmpOpening {
  opened,
  notPermitted,  // to this user, on this machine; it will not change while the program runs
  failed,        // this time
};

struct IcmpOpened {
  IcmpOpening how;
  std::unique_ptr<IcmpHandle> handle;  // empty unless it was opened
  std::string explanation;             // for the user; of two lines, the second what to do, when it is not permitted
};

class Icmp {
 public:
  virtual ~Icmp() = default;

  // The handle does not need this object any more, only the loop.
  virtual IcmpOpened open() = 0;
};

}  // namespace vantrel
