#include "sandbox/SandboxWorld.h"

#include <algorithm>
#include <optional>
#include <thread>

#include "sandbox/EventLoop.h"
#include "sandbox/GameServers.h"
#include "sandbox/MapArchives.h"
#include "sandbox/StatusReply.h"
#include "sandbox/WebMirror.h"

namespace vantrel::sandbox {
namespace {

const WorldSettings& checked(const WorldSettings& settings) {
  checkSettings(settings);
  return settings;
}

}  // namespace

// Everything that lives from start to stop. The thread comes last, so that nothing goes before it has ended.
struct SandboxWorld::Running {
  Running(const WorldSettings& settings, const FaultSwitch& faults, const WebFiles& files, QueryLog& log)
      : gameServers(settings, loop, log), masterServer(settings, faults, loop, log) {
    if (settings.webPort) {
      webMirror.emplace(settings, files, loop, log);
    }
  }
  ~Running() {
    loop.stop();
    if (thread.joinable()) {
      thread.join();
    }
  }

  EventLoop loop;
  GameServers gameServers;
  MasterServer masterServer;
  std::optional<WebMirror> webMirror;
  std::thread thread;
};

SandboxWorld::SandboxWorld(const WorldSettings& settings)
    : settings_(checked(settings)),
      masterPort_(settings.masterPort),
      webPort_(settings.webPort),
      servers_(planServers(settings, wantedPorts(settings))) {
  if (settings.webPort) {
    putMaps(webFiles_, settings.mapBytes);
  }
}

SandboxWorld::~SandboxWorld() {
  stop();
}

void SandboxWorld::start() {
  if (running_) {
    return;
  }
  auto running = std::make_unique<Running>(settings_, faults_, webFiles_, log_);
  if (settings_.gamePort == 0) {
    servers_ = planServers(settings_, running->gameServers.ports());
  }
  masterPort_ = running->masterServer.endpoint().port;
  running->gameServers.serve(servers_);
  running->masterServer.serve(servers_);
  if (running->webMirror) {
    webPort_ = running->webMirror->endpoint().port;
    running->webMirror->serve();
  }
  log_.restart();
  running->thread = std::thread([&loop = running->loop] { loop.run(); });
  running_ = std::move(running);
}

void SandboxWorld::stop() {
  running_.reset();
}

std::size_t SandboxWorld::answeringServers() const {
  return static_cast<std::size_t>(std::ranges::count(servers_, Behaviour::Answers, &GameServer::behaviour));
}

std::string SandboxWorld::replyOf(const GameServer& server) const {
  return statusReply(server);
}

}  // namespace vantrel::sandbox
