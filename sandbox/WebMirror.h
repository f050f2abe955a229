#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>

#include "sandbox/EventLoop.h"
#include "sandbox/QueryLog.h"
#include "sandbox/WebReply.h"
#include "sandbox/WorldSettings.h"

namespace vantrel::sandbox {

/// The web server that has the maps: it answers GET and HEAD, one request after another on each of many connections.
/// What it answers is up to replyTo(); it is the sending that happens here. A fault meets the next request, not an
/// answer under way. Used from the loop's thread once the loop runs.
class WebMirror {
 public:
  /// Listens at the address of the settings. Throws std::system_error that names the port if it is taken.
  /// REQUIRES: the settings name a web port.
  WebMirror(const WorldSettings& settings, const WebFiles& files, EventLoop& loop, QueryLog& log);
  WebMirror(const WebMirror&) = delete;

  Endpoint endpoint() const { return endpoint_; }

  /// Starts to serve clients.
  void serve();

 private:
  struct Connection {
    Descriptor socket;
    Endpoint client;
    std::string received;
    bool hasAllRequests = false;  // the client sends nothing any more
    std::uint32_t watchedFor = 0;
    std::deque<WebStep> steps;  // what is left of the answer under way
    std::uint64_t bytesPerSecond = 0;
    EventLoop::Clock::time_point start;  // of the answer
    std::uint64_t sent = 0;              // of its body
  };
  enum class Outcome { Done, Partly, Ended };

  void accept();
  void handle(std::uint64_t number, std::uint32_t events);
  bool readFrom(std::uint64_t number, Connection& connection);
  void goOn(std::uint64_t number);
  bool answerNext(Connection& connection);
  Outcome take(std::uint64_t number, Connection& connection);
  Outcome send(std::uint64_t number, Connection& connection);
  bool waitForRate(std::uint64_t number, Connection& connection, std::uint64_t& allowed);
  void watchFor(Connection& connection, std::uint32_t events);
  void end(std::uint64_t number);

  const WorldSettings& settings_;
  const WebFiles& files_;
  EventLoop& loop_;
  QueryLog& log_;
  Descriptor listener_;
  Endpoint endpoint_;
  std::uint64_t accepted_ = 0;
  std::map<std::uint64_t, Connection> connections_;
};

}  // namespace vantrel::sandbox
