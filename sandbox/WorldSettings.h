#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vantrel::sandbox {

/// What the world is like. A share is a part of all servers, 0 to 1, and is met exactly, rounded to whole servers.
struct WorldSettings {
  std::uint64_t seed = 1;
  std::size_t servers = 200;  ///< up to 1,000,000

  std::string masterAddress = "127.0.0.1";  ///< an address of 127.0.0.0/8
  std::uint16_t masterPort = 28900;         ///< 0: any free one
  std::uint16_t gamePort = 2302;            ///< the game servers use this one and the few behind it; 0: any free ones

  /// Each server has a latency of its own in this range and keeps it.
  std::chrono::milliseconds latencyLow{20};
  std::chrono::milliseconds latencyHigh{180};
  /// The probability of each single datagram, query or reply, to be lost on its way.
  double loss = 0;

  double silentShare = 0.05;   ///< listed, but they never answer
  double closedShare = 0.015;  ///< listed at a port where the kernel refuses datagrams
  double lockedShare = 0.1;    ///< they ask for a password
  double fullShare = 0.15;
  double emptyShare = 0.25;

  std::size_t listChunkBytes = 0;  ///< the master list goes out in sends of this size; 0: in one
  std::chrono::milliseconds listChunkPause{0};

  std::string webAddress = "127.0.0.1";  ///< an address of 127.0.0.0/8
  std::optional<std::uint16_t> webPort;  ///< none: there is no web mirror; 0: any free one
  std::uint64_t webBytesPerSecond = 0;   ///< of each body; 0: as fast as can be
  std::size_t mapBytes = 1'500'000;      ///< of each map that the mirror has, unpacked
};

/// Throws std::invalid_argument, with a text for the user, if a setting is out of its range.
void checkSettings(const WorldSettings& settings);

/// What goes wrong at the master server.
enum class FaultKind {
  None,
  CloseAfterAccept,  ///< the connection ends as soon as it is made
  ResetAfterAccept,  ///< the same, with a reset
  NeverAnswer,       ///< the client is accepted and left waiting
  GarbageGreeting,   ///< random bytes instead of the greeting
  NoChallenge,       ///< the greeting ends in front of the challenge
  TruncatedList,     ///< `amount` bytes are missing at the end of the list, the end mark counted
  RandomData,        ///< `amount` megabytes of random records instead of the list
  SplitEndMark,      ///< the last three bytes of the end mark come in a send of their own, at least 20 ms later
};

struct MasterFault {
  FaultKind kind = FaultKind::None;
  std::size_t amount = 0;
};

}  // namespace vantrel::sandbox
