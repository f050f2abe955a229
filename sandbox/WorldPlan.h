#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "sandbox/Endpoint.h"
#include "sandbox/WorldSettings.h"

namespace vantrel::sandbox {

enum class Behaviour {
  Answers,
  Silent,  ///< takes queries and never answers
  Closed,  ///< listed at a port that refuses datagrams
};

struct Player {
  std::string name;  ///< code page 1252, without a backslash or a NUL, never empty
  int score = 0;
  int ping = 0;  ///< milliseconds
  int team = 0;  ///< 0 red, 1 blue
};

/// The truth about one game server. Texts are bytes of code page 1252 without a backslash or a NUL.
struct GameServer {
  Endpoint endpoint;  ///< an address of its own in 127.16.0.0/12
  Behaviour behaviour = Behaviour::Answers;
  std::chrono::milliseconds latency{0};
  std::string hostname;  ///< never empty
  std::string version;
  bool locked = false;
  bool dedicated = true;
  bool classic = false;
  bool hidesPort = false;  ///< its reply names no port
  std::string mapName;
  std::string gameType;
  std::string gameVariant;
  bool teamPlay = false;
  int fragLimit = 0;
  std::uint32_t playerFlags = 0;
  std::uint32_t vehicleFlags = 0;
  std::uint32_t gameFlags = 0;
  std::size_t maxPlayers = 16;
  std::vector<Player> players;  ///< at most maxPlayers
  std::array<int, 2> teamScores{};
};

/// The UDP ports of the game servers.
struct GamePorts {
  std::array<std::uint16_t, 4> open{};
  std::uint16_t closed = 0;  ///< the one that refuses datagrams
};

/// The ports that the settings ask for; all 0 if they ask for any free ones.
GamePorts wantedPorts(const WorldSettings& settings);

/// Makes all game servers, in the order in which the master server lists them. The same settings and ports always give
/// the same servers. REQUIRES: settings that pass checkSettings().
std::vector<GameServer> planServers(const WorldSettings& settings, const GamePorts& ports);

}  // namespace vantrel::sandbox
