// A network in memory: game servers and master servers answer what the test scripted and are silent otherwise. Handlers
// are entered through the loop, never from a call to a socket.
#pragma once

#include <cstdio>
#include <deque>
#include <map>
#include <string>
#include <utility>
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
};

struct FakeNetwork {
  // Every send, connect and close, like "0500 192.0.2.9:2302 > \status".
  void note(const std::string& what) {
    char stamp[24];
    std::snprintf(stamp, sizeof stamp, "%04llu ", static_cast<unsigned long long>(loop.tickCount()));
    log.push_back(stamp + what);
  }
  bool answers(const std::string& address) const { return servers.contains(address) && !servers.at(address).refuses; }

  VirtualLoop& loop;
  std::map<std::string, FakeServer> servers = {};  // address or host name, ":" and port
  std::vector<std::string> log = {};
};

// Enters one socket's handlers as the faces promise: at most `maximumNesting` deep, then when the stack is down.
class Inbox {
 public:
  explicit Inbox(VirtualLoop& loop) : loop_(loop) {}
  void put(int delay, std::function<void()> enter) {
    loop_.startTimer(delay, TimerKind::once, [this, life = life_, enter = std::move(enter)] {
      if (life == life_) {
        waiting_.push_back(enter);
        enterNext();
      }
    });
  }
  // Nothing that was put before is entered any more.
  void forget() {
    ++life_;
    waiting_.clear();
  }

 private:
  void enterNext() {
    if (full_ || waiting_.empty()) {
      return;
    }
    const std::function<void()> enter = std::move(waiting_.front());
    waiting_.pop_front();
    full_ = ++depth_ == maximumNesting;
    enter();
    if (--depth_ == 0 && std::exchange(full_, false)) {
      for (std::size_t i = 0; i < waiting_.size(); ++i) {
        loop_.startTimer(0, TimerKind::once, [this] { enterNext(); });
      }
    }
  }

  VirtualLoop& loop_;
  std::deque<std::function<void()>> waiting_;
  int depth_ = 0;
  bool full_ = false;
  int life_ = 0;
};

class FakeUdpSocket : public UdpSocket {
 public:
  explicit FakeUdpSocket(FakeNetwork& network) : network_(network), inbox_(network.loop) {}
  void send(const std::string& ip, int port, const std::string& bytes) override {
    unsigned a = 0, b = 0, c = 0, d = 0;
    char more = 0;
    const int parts = std::sscanf(ip.c_str(), "%3u.%3u.%3u.%3u%c", &a, &b, &c, &d, &more);
    if (parts != 4 || ip.find('\0') != std::string::npos || (a | b | c | d) > 255 || port < 1 || port > 65535) {
      throw failures::sendFailed("The address cannot be reached");
    }
    const std::string address = ip + ":" + std::to_string(port);
    network_.note(address + " > " + bytes);
    ++sent;
    if (network_.answers(address)) {
      network_.servers[address].received.push_back(bytes);
      for (const Arrival& answer : network_.servers[address].answers) {
        receive(answer.delay, {answer.bytes, ip, port});
      }
    } else if (network_.servers.contains(address) && error_) {
      inbox_.put(1, [this, ip, port] { error_(failures::connectionReset(), ip, port); });
    }
  }
  void onArrival(std::function<void(const Datagram&)> handler) override { arrival_ = std::move(handler); }
  void onError(std::function<void(const Failure&, const std::string&, int)> handler) override {
    error_ = std::move(handler);
  }
  void close() override { inbox_.forget(); }

  // A datagram that comes in whether it was asked for or not.
  void receive(int delay, const Datagram& datagram) {
    inbox_.put(delay, [this, datagram] { arrival_(datagram); });
  }

  int sent = 0;  // datagrams

 private:
  FakeNetwork& network_;
  Inbox inbox_;
  std::function<void(const Datagram&)> arrival_ = [](const Datagram&) {};
  std::function<void(const Failure&, const std::string&, int)> error_;
};

class FakeTcpSocket : public TcpSocket {
 public:
  explicit FakeTcpSocket(FakeNetwork& network) : network_(network), inbox_(network.loop) {}
  void connect(const std::string& host, int port) override {
    server_ = host + ":" + std::to_string(port);
    network_.note(server_ + " connect");
    state_ = SocketState::connecting;
    inbox_.put(1, [this] {
      if (!network_.answers(server_)) {
        return end(SocketState::error);
      }
      state_ = SocketState::connected;
      receive(network_.servers[server_].greeting);
    });
  }
  void close() override {
    state_ = SocketState::closed;
    inbox_.forget();
  }
  SocketState state() const override { return state_; }
  void send(const std::string& bytes) override {
    if (state_ != SocketState::connected) {
      throw failures::connectionReset();
    }
    network_.note(server_ + " > " + bytes);
    network_.servers[server_].received.push_back(bytes);
    receive(network_.servers[server_].answers);
  }
  void onArrival(std::function<void(const std::string&)> handler) override { arrival_ = std::move(handler); }
  void onEnded(std::function<void()> handler) override { ended_ = std::move(handler); }

  // What the server sends beyond its script.
  void receive(const std::vector<Arrival>& arrivals) {
    constexpr std::size_t longest = 65536;
    for (const Arrival& arrival : arrivals) {
      for (std::size_t at = 0; at < arrival.bytes.size(); at += longest) {
        inbox_.put(arrival.delay, [this, bytes = arrival.bytes.substr(at, longest)] { arrival_(bytes); });
      }
      if (arrival.ends) {
        inbox_.put(arrival.delay, [this] { end(SocketState::closed); });
      }
    }
  }

 private:
  void end(SocketState state) {
    state_ = state;
    ended_();
  }

  FakeNetwork& network_;
  Inbox inbox_;
  SocketState state_ = SocketState::closed;
  std::string server_;
  std::function<void(const std::string&)> arrival_;
  std::function<void()> ended_;
};

}  // namespace vantrel
