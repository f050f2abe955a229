#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "sandbox/EventLoop.h"
#include "sandbox/QueryLog.h"
#include "sandbox/WorldPlan.h"

namespace vantrel::sandbox {

/// All game servers of the world. One UDP socket for each port serves every address: a reply goes out from the address
/// to which the query was sent. Used from the loop's thread once the loop runs.
class GameServers {
 public:
  /// Takes the ports that the settings ask for. Throws std::system_error that names a port that is taken.
  GameServers(const WorldSettings& settings, EventLoop& loop, QueryLog& log);
  GameServers(const GameServers&) = delete;

  /// The ports that were taken.
  GamePorts ports() const;

  /// Starts to answer for these servers. They must outlive this object.
  void serve(const std::vector<GameServer>& servers);

 private:
  struct Served {
    const GameServer* server;
    std::string reply;
    std::uint64_t datagrams = 0;  // queries and replies so far, lost ones counted
  };
  struct Datagram {
    Endpoint from;
    Endpoint to;
    std::string_view text;
  };

  void receive(std::size_t socket);
  void handle(std::size_t socket, const Datagram& query);
  void send(std::size_t socket, Served& served, const Endpoint& client);
  bool losesNext(Served& served) const;

  const WorldSettings& settings_;
  EventLoop& loop_;
  QueryLog& log_;
  std::array<Descriptor, std::tuple_size_v<decltype(GamePorts::open)>> sockets_;
  Descriptor refusing_;
  std::unordered_map<std::uint64_t, Served> served_;
  std::vector<char> buffer_;
};

}  // namespace vantrel::sandbox
