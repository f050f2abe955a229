#pragma once

#include <sys/socket.h>

#include <cerrno>
#include <string>

#include "sandbox/SandboxWorld.h"
#include "sandbox/Sockets.h"

namespace vantrel::sandbox {

/// How long a test waits for what must come, and how long it listens for what must not, in milliseconds.
constexpr int kPatience = 5000;
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

struct RunningWorld : SandboxWorld {
  explicit RunningWorld(const WorldSettings& settings) : SandboxWorld(settings) { start(); }
};

/// A socket of a player's: one for datagrams to and from anybody, or one that is connected.
class Client {
 public:
  Client() : socket(::socket(AF_INET, SOCK_DGRAM, 0)) {}
  Client(int type, const Endpoint& server) : socket(::socket(AF_INET, type, 0)) {
    // A small window makes the master server wait for this client when it sends much.
    const int windowBytes = 1 << 16;
    setsockopt(socket.number(), SOL_SOCKET, SO_RCVBUF, &windowBytes, sizeof windowBytes);
    sockaddr_in address = socketAddress(server);
    throwIf(connect(socket.number(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0, "no connection");
  }
  void send(const std::string& text) { ::send(socket.number(), text.data(), text.size(), MSG_NOSIGNAL); }
  void sendTo(const Endpoint& server, const std::string& text) {
    sockaddr_in address = socketAddress(server);
    sendto(socket.number(), text.data(), text.size(), 0, reinterpret_cast<sockaddr*>(&address), sizeof address);
  }

  /// One arrival, or `whole` bytes of a connection in one. "" is the end of a connection, "failed" a refusal or a
  /// reset, "nothing" that none came in time.
  std::string receive(int milliseconds = kPatience, std::size_t whole = 0) {
    const timeval patience{milliseconds / 1000, milliseconds % 1000 * 1000};
    setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    sockaddr_in from{};
    socklen_t size = sizeof from;
    std::string text(whole != 0 ? whole : 1 << 16, '\0');
    const ssize_t length = recvfrom(socket.number(), text.data(), text.size(), whole != 0 ? MSG_WAITALL : 0,
                                    reinterpret_cast<sockaddr*>(&from), &size);
    if (length < 0) {
      return errno == EAGAIN ? "nothing" : "failed";
    }
    source = endpointOf(from);
    return text.substr(0, static_cast<std::size_t>(length));
  }
  std::string receiveBytes(std::size_t count) { return receive(kPatience, count); }

  Descriptor socket;
  Endpoint source;  ///< of the last datagram
};

}  // namespace vantrel::sandbox
