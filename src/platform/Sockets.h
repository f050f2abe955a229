// Faces of the two kinds of sockets. Both give out what arrives from the loop, never during a call to the face, and
// enter the handler again from a wait inside it: at most 64 deep, then further arrivals stay in the socket until the
// stack has come down.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Failure.h"

namespace vantrel {

// How deep the arrival handlers of one socket nest.
inline constexpr int maximumNesting = 64;

enum class SocketState { closed = 0, resolvingHost = 4, connecting = 6, connected = 7, error = 9 };

class TcpSocket {
 public:
  virtual ~TcpSocket() = default;

  // Begins to connect to a host name or dotted address and returns at once. REQUIRES: the state is closed or error,
  // port is 0 to 65535. Whether it came about is told by `state`; a failure leaves the state error.
  virtual void connect(const std::string& host, int port) = 0;
  // Drops the connection and whatever has not been given out; the state is closed. Allowed in every state.
  virtual void close() = 0;
  virtual SocketState state() const = 0;
  // Sends all bytes, in order, and returns at once. Throws failure 10054 when there is no connection.
  virtual void send(const std::string& bytes) = 0;
  // Sets the handler of arrivals: all bytes that were waiting, at least one and at most 65536. Replaces the one before.
  virtual void onArrival(std::function<void(const std::string& bytes)> handler) = 0;
  // Sets the handler that is called once when the remote side has ended a connection, or it failed; the state is then
  // no longer connected. `close` does not call it. Replaces the one before.
  virtual void onEnded(std::function<void()> handler) = 0;
};

struct Datagram {
  std::string bytes;
  std::string ip;  // dotted address of the sender
  int port = 0;    // of the sender
};

class UdpSocket {
 public:
  virtual ~UdpSocket() = default;

  // Sends one datagram; the first send gives the socket its local port, and answers come back to it. Throws a failure
  // when `ip` is no dotted address, `port` is not 1 to 65535 or the system refuses; nothing was sent then. A refusal
  // of an earlier datagram is not a failure of this one.
  virtual void send(const std::string& ip, int port, const std::string& bytes) = 0;
  // Sets the handler of arrivals; an empty datagram arrives as well. Replaces the one before.
  virtual void onArrival(std::function<void(const Datagram&)> handler) = 0;
  // Sets the handler of errors: failure 10054 with the address that refused a datagram. Replaces the one before.
  virtual void onError(std::function<void(const Failure&, const std::string& ip, int port)> handler) = 0;
  // Forgets the local port and all that waits in the socket; the next send opens it anew.
  virtual void close() = 0;
};

}  // namespace vantrel
