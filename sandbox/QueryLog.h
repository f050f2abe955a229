#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "sandbox/Endpoint.h"

namespace vantrel::sandbox {

enum class LogEvent {
  QueryReceived,   ///< a datagram reached a game port, whether it is answered or not
  QueryLost,       ///< a datagram to a game server was lost on its way
  ReplySent,       ///< a game server's reply went out
  ReplyLost,       ///< a game server's reply was lost on its way
  MasterReceived,  ///< bytes of a client of the master server
  MasterSent,      ///< bytes to a client of the master server; a long list is only described
  MasterNote,      ///< anything else that happened to a conversation with the master server
  WebReceived,     ///< a request to the web mirror
  WebSent,         ///< what it was answered, described
};

/// One thing that happened.
struct LogEntry {
  std::uint64_t milliseconds = 0;  ///< since the world's start
  LogEvent event = LogEvent::QueryReceived;
  std::string from;  ///< "address:port"
  std::string to;    ///< "address:port"
  std::string text;  ///< the bytes that travelled, cut after 256, or a description of them
};

/// The entry as one line of UTF-8 without a line end: time, the sandbox's side of the exchange, "<" for received, ">"
/// for sent, "x" for lost or "-" for a note, and the text: "0500 127.16.0.9:2302 < \status".
std::string lineOf(const LogEntry& entry);

/// Remembers what happened, in order. Every method may be called from any thread.
class QueryLog {
 public:
  /// Forgets all entries and starts the clock at 0.
  void restart();
  void add(LogEvent event, const Endpoint& from, const Endpoint& to, std::string_view text);

  /// A copy of the entries from number `first` on; empty if there are not as many.
  std::vector<LogEntry> entries(std::size_t first = 0) const;
  /// How many entries of a kind there are.
  std::size_t count(LogEvent event) const;

 private:
  mutable std::mutex mutex_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::vector<LogEntry> entries_;
  std::array<std::size_t, 9> counts_{};
};

}  // namespace vantrel::sandbox
