#include "sandbox/WebMirror.h"

#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/sendfile.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>

namespace vantrel::sandbox {
namespace {

using Kind = WebStep::Kind;

constexpr std::size_t kLongestHead = 1 << 16;
// What one connection may send before the others get their turn.
constexpr std::uint64_t kTurn = 1 << 20;
constexpr std::chrono::microseconds kRatePause{20'000};

ssize_t sendFrom(const WebStep& step, int socket, std::uint64_t most) {
  if (step.kind == Kind::File) {
    auto offset = static_cast<off_t>(step.offset);
    return sendfile(socket, step.file->number(), &offset, most);
  }
  const std::size_t start = step.offset % step.bytes->size();
  return ::send(socket, step.bytes->data() + start, std::min<std::uint64_t>(most, step.bytes->size() - start),
                MSG_NOSIGNAL);
}

}  // namespace

WebMirror::WebMirror(const WorldSettings& settings, const WebFiles& files, EventLoop& loop, QueryLog& log)
    : settings_(settings),
      files_(files),
      loop_(loop),
      log_(log),
      listener_(openListener(loopbackEndpoint(settings.webAddress, settings.webPort.value()))),
      endpoint_(localEndpoint(listener_)) {}

void WebMirror::serve() {
  loop_.watch(listener_.number(), EPOLLIN, [this](std::uint32_t) { accept(); });
}

void WebMirror::accept() {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  Descriptor socket(
      accept4(listener_.number(), reinterpret_cast<sockaddr*>(&address), &size, SOCK_NONBLOCK | SOCK_CLOEXEC));
  if (socket.number() < 0) {
    return;
  }
  const int yes = 1;
  setsockopt(socket.number(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
  const int descriptor = socket.number();
  const std::uint64_t number = ++accepted_;
  Connection& connection = connections_[number];
  connection.socket = std::move(socket);
  connection.client = endpointOf(address);
  connection.watchedFor = EPOLLIN;
  loop_.watch(descriptor, EPOLLIN, [this, number](std::uint32_t events) { handle(number, events); });
}

void WebMirror::handle(std::uint64_t number, std::uint32_t events) {
  const bool isBroken = (events & (EPOLLERR | EPOLLHUP)) != 0;
  if (isBroken) {
    return end(number);
  }
  if ((events & EPOLLIN) == 0 || readFrom(number, connections_.at(number))) {
    goOn(number);
  }
}

// Returns whether the connection goes on.
bool WebMirror::readFrom(std::uint64_t number, Connection& connection) {
  char buffer[16384];
  const ssize_t size = recv(connection.socket.number(), buffer, sizeof buffer, 0);
  if (size < 0 && errno == EAGAIN) {
    return true;
  }
  const bool waits = !connection.steps.empty();  // Only the end of the connection can bring it any further.
  if (size < 0 || (size == 0 && waits)) {
    end(number);
    return false;
  }
  connection.hasAllRequests = size == 0;
  if (!waits) {
    connection.received.append(buffer, static_cast<std::size_t>(size));
  }
  return true;
}

// Sends until the answers to all requests are out, the client or the rate asks for patience, or the turn is over.
void WebMirror::goOn(std::uint64_t number) {
  const auto found = connections_.find(number);
  if (found == connections_.end()) {
    return;  // It ended while a pause ran.
  }
  Connection& connection = found->second;
  while (!connection.steps.empty() || answerNext(connection)) {
    if (take(number, connection) != Outcome::Done) {
      return;
    }
    connection.steps.pop_front();
  }
  if (connection.hasAllRequests) {
    return end(number);
  }
  watchFor(connection, EPOLLIN);
}

// Returns whether there is a request to answer.
bool WebMirror::answerNext(Connection& connection) {
  const std::size_t length = connection.received.find("\r\n\r\n");
  if (length == std::string::npos && connection.received.size() < kLongestHead) {
    return false;
  }
  const auto request = requestFrom(std::string_view(connection.received).substr(0, length));
  const std::string range = request ? request->header("range") : "";
  log_.add(LogEvent::WebReceived, connection.client, endpoint_,
           request ? request->method + " " + request->target + (range.empty() ? "" : " " + range) : "no request");
  connection.received.erase(0, length == std::string::npos ? length : length + 4);
  WebReply reply = request ? replyTo(*request, files_, endpoint_) : replyToNonsense();
  log_.add(LogEvent::WebSent, endpoint_, connection.client, reply.summary);
  connection.steps = std::move(reply.steps);
  connection.bytesPerSecond = reply.bytesPerSecond != 0 ? reply.bytesPerSecond : settings_.webBytesPerSecond;
  connection.start = EventLoop::Clock::now();
  connection.sent = 0;
  return true;
}

WebMirror::Outcome WebMirror::take(std::uint64_t number, Connection& connection) {
  const WebStep& step = connection.steps.front();
  switch (step.kind) {
    case Kind::Wait:
      watchFor(connection, EPOLLIN);
      return Outcome::Partly;
    case Kind::Reset: {
      const linger abort{1, 0};
      setsockopt(connection.socket.number(), SOL_SOCKET, SO_LINGER, &abort, sizeof abort);
      end(number);
      return Outcome::Ended;
    }
    case Kind::Close:
      end(number);
      return Outcome::Ended;
    default:
      return send(number, connection);
  }
}

WebMirror::Outcome WebMirror::send(std::uint64_t number, Connection& connection) {
  WebStep& step = connection.steps.front();
  std::uint64_t allowed = kTurn;
  while (step.left > 0) {
    if (allowed == 0) {
      watchFor(connection, EPOLLOUT);
      return Outcome::Partly;
    }
    std::uint64_t most = std::min(allowed, step.left);
    if (step.kind != Kind::Head && waitForRate(number, connection, most)) {
      return Outcome::Partly;
    }
    const ssize_t size = sendFrom(step, connection.socket.number(), most);
    if (size < 0 && errno == EAGAIN) {
      watchFor(connection, EPOLLOUT);
      return Outcome::Partly;
    }
    if (size <= 0) {
      end(number);  // The client is gone, or the file on the disk has become shorter.
      return Outcome::Ended;
    }
    const auto count = static_cast<std::uint64_t>(size);
    step.offset += count;
    step.left -= count;
    allowed -= count;
    connection.sent += step.kind == Kind::Head ? 0 : count;
  }
  return Outcome::Done;
}

// Lowers `allowed` to what the rate allows by now. If that is nothing, the connection is left alone for a while.
bool WebMirror::waitForRate(std::uint64_t number, Connection& connection, std::uint64_t& allowed) {
  if (connection.bytesPerSecond == 0) {
    return false;
  }
  const auto now = EventLoop::Clock::now();
  const double seconds = std::chrono::duration<double>(now - connection.start).count();
  const auto due = static_cast<std::uint64_t>(seconds * static_cast<double>(connection.bytesPerSecond));
  if (due > connection.sent) {
    allowed = std::min(allowed, due - connection.sent);
    return false;
  }
  watchFor(connection, 0);
  const std::chrono::microseconds perByte(1'000'000 / connection.bytesPerSecond + 1);
  loop_.callAt(now + std::max(kRatePause, perByte), [this, number] { goOn(number); });
  return true;
}

void WebMirror::watchFor(Connection& connection, std::uint32_t events) {
  if (connection.watchedFor != events) {
    connection.watchedFor = events;
    loop_.watchFor(connection.socket.number(), events);
  }
}

void WebMirror::end(std::uint64_t number) {
  const auto found = connections_.find(number);
  loop_.forget(found->second.socket.number());
  connections_.erase(found);
}

}  // namespace vantrel::sandbox
