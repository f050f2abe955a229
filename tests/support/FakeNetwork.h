// A network in memory: game servers and master servers answer what the test scripted and are silent otherwise. Handlers
// are entered through the loop, never from a call to a socket.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Sockets.h"
#include "support/VirtualLoop.h"

namespace vantrel {

// What comes from a server: bytes, or the end of the connection, so many milliseconds after what it answers.
struct Arrival {
  std::string bytes;
  int delay = 1;
  bool ends = false;
};

struct FakeServer {
  std::vector<Arrival> greeting;           // TCP: to a connection
  std::vector<Arrival> answers;            // to every message
  std::vector<std::string> received = {};  // every message
  bool refuses = false;                    // UDP: error 10054 comes back; TCP: the connection fails
  bool unreachable = false;                // UDP: a send fails at once
};

struct FakeNetwork {
  explicit FakeNetwork(VirtualLoop& virtualLoop) : loop(virtualLoop) {}

  // Every send, connect and close, like "0500 192.0.2.9:2302 > \status".
  void note(const std::string& what);
  // The server of an address and port; nothing when there is none, or the network is down.
  FakeServer* find(const std::string& address);

  VirtualLoop& loop;
  std::map<std::string, FakeServer> servers;  // address or host name, ":" and port
  std::vector<std::string> log;
  bool down = false;  // whatever is sent is lost, and no connection comes about
};

// Enters one socket's handlers as the faces promise: at most `maximumNesting` deep, then when the stack is down.
class Inbox {
 public:
  explicit Inbox(VirtualLoop& loop) : loop_(loop) {}
  void put(int delay, std::function<void()> enter);
  // Nothing that was put before is entered any more.
  void forget();

 private:
  struct Stack {
    std::deque<std::function<void()>> waiting;
    int depth = 0;
    bool full = false;
    int life = 0;
  };
  static void enterNext(VirtualLoop& loop, const std::shared_ptr<Stack>& stack);

  VirtualLoop& loop_;
  std::shared_ptr<Stack> stack_ = std::make_shared<Stack>();
};

class FakeUdpSocket : public UdpSocket {
 public:
  explicit FakeUdpSocket(FakeNetwork& network) : network_(network), inbox_(network.loop) {}
  void send(const std::string& ip, int port, const std::string& bytes) override;
  void onArrival(std::function<void(const Datagram&)> handler) override { arrival_ = std::move(handler); }
  void onError(std::function<void(const Failure&, const std::string&, int)> handler) override {
    error_ = std::move(handler);
  }
  void close() override { inbox_.forget(); }

  // A datagram that comes in whether it was asked for or not.
  void receive(int delay, const Datagram& datagram);

 private:
  FakeNetwork& network_;
  Inbox inbox_;
  std::function<void(const Datagram&)> arrival_;
  std::function<void(const Failure&, const std::string&, int)> error_;
};

class FakeTcpSocket : public TcpSocket {
 public:
  explicit FakeTcpSocket(FakeNetwork& network) : network_(network), inbox_(network.loop) {}
  void connect(const std::string& host, int port) override;
  void close() override;
  SocketState state() const override { return state_; }
  void send(const std::string& bytes) override;
  void onArrival(std::function<void(const std::string&)> handler) override { arrival_ = std::move(handler); }
  void onEnded(std::function<void()> handler) override { ended_ = std::move(handler); }

  // What the server sends beyond its script.
  void receive(const std::vector<Arrival>& arrivals);

 private:
  void end(SocketState state);

  FakeNetwork& network_;
  Inbox inbox_;
  SocketState state_ = SocketState::closed;
  std::string server_;
  std::function<void(const std::string&)> arrival_;
  std::function<void()> ended_;
};

}  // namespace vantrel
