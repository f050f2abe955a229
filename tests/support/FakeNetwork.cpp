#include "support/FakeNetwork.h"

#include <cstdio>
#include <utility>

namespace vantrel {
namespace {

constexpr int shortestTrip = 1;  // milliseconds
constexpr std::size_t longestArrival = 65536;

bool isDottedAddress(const std::string& text) {
  unsigned a = 0, b = 0, c = 0, d = 0;
  char rest = 0;
  return std::sscanf(text.c_str(), "%3u.%3u.%3u.%3u%c", &a, &b, &c, &d, &rest) == 4 && a < 256 && b < 256 && c < 256 &&
         d < 256;
}

}  // namespace

void FakeNetwork::note(const std::string& what) {
  char stamp[24];
  std::snprintf(stamp, sizeof stamp, "%04llu ", static_cast<unsigned long long>(loop.tickCount()));
  log.push_back(stamp + what);
}

FakeServer* FakeNetwork::find(const std::string& address) {
  const auto found = servers.find(address);
  return down || found == servers.end() ? nullptr : &found->second;
}

void Inbox::put(int delay, std::function<void()> enter) {
  loop_.startTimer(delay, TimerKind::once,
                   [&loop = loop_, held = std::weak_ptr(stack_), life = stack_->life, enter = std::move(enter)] {
                     if (const auto stack = held.lock(); stack && stack->life == life) {
                       stack->waiting.push_back(enter);
                       enterNext(loop, stack);
                     }
                   });
}

void Inbox::enterNext(VirtualLoop& loop, const std::shared_ptr<Stack>& stack) {
  if (stack->full || stack->waiting.empty()) {
    return;
  }
  const std::function<void()> enter = std::move(stack->waiting.front());
  stack->waiting.pop_front();
  stack->full = ++stack->depth == maximumNesting;
  enter();
  if (--stack->depth == 0 && stack->full) {
    stack->full = false;
    for (std::size_t i = 0; i < stack->waiting.size(); ++i) {
      loop.startTimer(0, TimerKind::once, [&loop, held = std::weak_ptr(stack)] {
        if (const auto again = held.lock()) {
          enterNext(loop, again);
        }
      });
    }
  }
}

void Inbox::forget() {
  ++stack_->life;
  stack_->waiting.clear();
}

void FakeUdpSocket::send(const std::string& ip, int port, const std::string& bytes) {
  const std::string address = ip + ":" + std::to_string(port);
  FakeServer* const server = network_.find(address);
  if (!isDottedAddress(ip) || port < 1 || port > 65535 || (server != nullptr && server->unreachable)) {
    throw failures::sendFailed("The address cannot be reached");
  }
  network_.note(address + " > " + bytes);
  if (server == nullptr) {
    return;
  }
  server->received.push_back(bytes);
  if (server->refuses) {
    inbox_.put(shortestTrip, [this, ip, port] {
      if (const auto handler = error_) {
        handler(failures::connectionReset(), ip, port);
      }
    });
    return;
  }
  for (const Arrival& answer : server->answers) {
    receive(answer.delay, {answer.bytes, ip, port});
  }
}

void FakeUdpSocket::receive(int delay, const Datagram& datagram) {
  inbox_.put(delay, [this, datagram] {
    if (const auto handler = arrival_) {
      handler(datagram);
    }
  });
}

void FakeTcpSocket::connect(const std::string& host, int port) {
  server_ = host + ":" + std::to_string(port);
  network_.note(server_ + " connect");
  state_ = SocketState::connecting;
  inbox_.put(shortestTrip, [this] {
    const FakeServer* const server = network_.find(server_);
    if (server == nullptr || server->refuses) {
      end(SocketState::error);
      return;
    }
    state_ = SocketState::connected;
    receive(server->greeting);
  });
}

void FakeTcpSocket::close() {
  if (state_ != SocketState::closed) {
    network_.note(server_ + " close");
  }
  state_ = SocketState::closed;
  inbox_.forget();
}

void FakeTcpSocket::send(const std::string& bytes) {
  if (state_ != SocketState::connected) {
    throw failures::connectionReset();
  }
  network_.note(server_ + " > " + bytes);
  if (FakeServer* const server = network_.find(server_)) {
    server->received.push_back(bytes);
    receive(server->answers);
  }
}

void FakeTcpSocket::receive(const std::vector<Arrival>& arrivals) {
  for (const Arrival& arrival : arrivals) {
    for (std::size_t at = 0; at < arrival.bytes.size(); at += longestArrival) {
      inbox_.put(arrival.delay, [this, bytes = arrival.bytes.substr(at, longestArrival)] {
        if (const auto handler = arrival_) {
          handler(bytes);
        }
      });
    }
    if (arrival.ends) {
      inbox_.put(arrival.delay, [this] { end(SocketState::closed); });
    }
  }
}

void FakeTcpSocket::end(SocketState state) {
  state_ = state;
  if (const auto handler = ended_) {
    handler();
  }
}

}  // namespace vantrel
