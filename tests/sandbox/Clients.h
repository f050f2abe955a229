#pragma once

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <cerrno>
#include <string>

#include "sandbox/SandboxWorld.h"
#include "sandbox/Sockets.h"

namespace vantrel::sandbox {

/// How long a test waits for something that must come, in milliseconds.
constexpr int kPatience = 5000;
/// How long a test listens for something that must not come.
constexpr int kShort = 40;

/// A world on any free ports, without latency, in which everybody answers.
inline WorldSettings quickWorld(std::size_t servers) {
  WorldSettings settings;
  settings.servers = servers;
  settings.masterPort = settings.gamePort = 0;
  settings.latencyLow = settings.latencyHigh = std::chrono::milliseconds(0);
  settings.silentShare = settings.closedShare = 0;
  return settings;
}

inline bool canRead(const Descriptor& socket, int milliseconds) {
  pollfd readable{socket.number(), POLLIN, 0};
  return poll(&readable, 1, milliseconds) > 0;
}

/// A player's UDP socket.
class UdpClient {
 public:
  bool send(const std::string& text, const Endpoint& to) {
    sockaddr_in address = socketAddress(to);
    return sendto(socket.number(), text.data(), text.size(), 0, reinterpret_cast<sockaddr*>(&address),
                  sizeof address) >= 0;
  }
  /// The next datagram, or "nothing" if none comes in time; `source` is then as it was.
  std::string receive(int milliseconds = kPatience) {
    if (!canRead(socket, milliseconds)) {
      return "nothing";
    }
    sockaddr_in address{};
    socklen_t size = sizeof address;
    std::string text(65536, '\0');
    const ssize_t length =
        recvfrom(socket.number(), text.data(), text.size(), 0, reinterpret_cast<sockaddr*>(&address), &size);
    source = endpointOf(address);
    return length < 0 ? "failed" : text.substr(0, static_cast<std::size_t>(length));
  }

  Descriptor socket = openUdp({INADDR_LOOPBACK, 0});
  Endpoint source;
};

/// A client of the master server.
class MasterClient {
 public:
  explicit MasterClient(const SandboxWorld& world) {
    // A small window makes the master server wait for this client when it sends much.
    const int windowBytes = 1 << 16;
    setsockopt(socket.number(), SOL_SOCKET, SO_RCVBUF, &windowBytes, sizeof windowBytes);
    sockaddr_in address = socketAddress(loopbackEndpoint(world.masterAddress(), world.masterPort()));
    throwIf(connect(socket.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0, "no master server");
  }
  void send(const std::string& text) { ::send(socket.number(), text.data(), text.size(), MSG_NOSIGNAL); }

  /// One arrival; "" at the end of the connection, "reset" at a reset, "nothing" if none comes in time.
  std::string receive(int milliseconds = kPatience) {
    if (!canRead(socket, milliseconds)) {
      return "nothing";
    }
    std::string text(1 << 16, '\0');
    const ssize_t length = recv(socket.number(), text.data(), text.size(), 0);
    return length < 0 ? "reset" : text.substr(0, static_cast<std::size_t>(length));
  }
  std::string receiveBytes(std::size_t count) {
    std::string text;
    while (text.size() < count) {
      const std::string arrival = receive();
      if (arrival.empty() || arrival == "nothing" || arrival == "reset") {
        return "only " + std::to_string(text.size()) + " bytes";
      }
      text += arrival;
      ++arrivals;
    }
    return text;
  }

  Descriptor socket{::socket(AF_INET, SOCK_STREAM, 0)};
  int arrivals = 0;
};

}  // namespace vantrel::sandbox
