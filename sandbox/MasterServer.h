#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "sandbox/EventLoop.h"
#include "sandbox/QueryLog.h"
#include "sandbox/WorldPlan.h"

namespace vantrel::sandbox {

/// What is wrong with the master server just now. May be set and read from any thread.
class FaultSwitch {
 public:
  void set(const MasterFault& fault);
  MasterFault fault() const;

 private:
  mutable std::mutex mutex_;
  MasterFault fault_;
};

/// The master server: greets each client with a challenge, checks its message byte by byte, and sends the addresses of
/// all game servers. After the list the connection stays open; a wrong message ends it. Used from the loop's thread
/// once the loop runs.
class MasterServer {
 public:
  /// Listens at the address of the settings. Throws std::system_error that names the port if it is taken.
  MasterServer(const WorldSettings& settings, const FaultSwitch& faults, EventLoop& loop, QueryLog& log);
  MasterServer(const MasterServer&) = delete;

  Endpoint endpoint() const { return endpoint_; }

  /// Starts to serve clients with the list of these servers.
  void serve(const std::vector<GameServer>& servers);

 private:
  struct Conversation {
    Descriptor socket;
    Endpoint client;
    std::string expected;  // the one right message; empty before the greeting and after the list
    std::string received;
    std::deque<std::string> outbox;  // one element for each send
    std::chrono::milliseconds pause{0};
    std::size_t sent = 0;  // how much of the first element is out
  };

  void accept();
  void greet(std::uint64_t number, Conversation& conversation);
  void handle(std::uint64_t number, std::uint32_t events);
  bool readFrom(std::uint64_t number, Conversation& conversation);
  void queueList(Conversation& conversation);
  void sendOutbox(std::uint64_t number);
  void end(std::uint64_t number, const std::string& reason);

  const WorldSettings& settings_;
  const FaultSwitch& faults_;
  EventLoop& loop_;
  QueryLog& log_;
  Descriptor listener_;
  Endpoint endpoint_;
  std::string records_;
  std::uint64_t accepted_ = 0;
  std::map<std::uint64_t, Conversation> conversations_;
};

}  // namespace vantrel::sandbox
