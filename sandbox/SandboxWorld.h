#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "sandbox/MasterServer.h"
#include "sandbox/QueryLog.h"
#include "sandbox/WebFiles.h"
#include "sandbox/WorldPlan.h"
#include "sandbox/WorldSettings.h"

namespace vantrel::sandbox {

/// A simulated network on the loopback addresses: one master server and many game servers, run by a thread of its own.
/// The same settings make the same world again. Every method but start() and stop() may be called from any thread
/// while the world runs.
class SandboxWorld {
 public:
  /// Plans the world; nothing is opened yet. Throws std::invalid_argument if a setting is out of its range.
  explicit SandboxWorld(const WorldSettings& settings);
  SandboxWorld(const SandboxWorld&) = delete;
  SandboxWorld& operator=(const SandboxWorld&) = delete;
  /// Stops the world.
  ~SandboxWorld();

  /// Takes the ports and begins to answer. When it returns, a query can be sent. Throws std::system_error that names
  /// the port if one is taken, and the world is then as before. Clears the log. Does nothing if the world runs.
  void start();
  /// Ends all conversations and frees the ports; replies still under way are never sent. The world can start again.
  void stop();

  std::string masterAddress() const { return settings_.masterAddress; }
  /// The port in use; the one of the settings while the world has not been started.
  std::uint16_t masterPort() const { return masterPort_; }

  /// Every game server, in the order of the master list. If the settings ask for any free ports, the ports (here and
  /// in the replies) are 0 until the world has been started.
  const std::vector<GameServer>& servers() const { return servers_; }
  /// How many of them answer a query that is not lost.
  std::size_t answeringServers() const;
  /// The one datagram that the server answers to either query.
  std::string replyOf(const GameServer& server) const;

  /// From now on the master server fails in this way; a conversation under way meets it at its next step.
  void setMasterFault(const MasterFault& fault) { faults_.set(fault); }

  /// The port of the web mirror in use; none if the settings name none.
  std::optional<std::uint16_t> webPort() const { return webPort_; }
  /// What the web mirror has: the custom maps, each as a zip file. May be changed at any time.
  WebFiles& webFiles() { return webFiles_; }

  const QueryLog& log() const { return log_; }

 private:
  struct Running;

  const WorldSettings settings_;
  FaultSwitch faults_;
  QueryLog log_;
  std::uint16_t masterPort_;
  std::optional<std::uint16_t> webPort_;
  WebFiles webFiles_;
  std::vector<GameServer> servers_;
  std::unique_ptr<Running> running_;
};

}  // namespace vantrel::sandbox
