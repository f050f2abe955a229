#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <thread>

#include "SweepBench.h"
#include "app/Program.h"
#include "sandbox/Flood.h"
#include "sandbox/SandboxWorld.h"

namespace vantrel::bench {
namespace {

constexpr const char* masterAddress = "127.41.0.2";
constexpr std::size_t floodSize = 100'000;

// The local port of the program's sweep socket, as the world saw it.
int sweepPort(const sandbox::SandboxWorld& world) {
  for (const sandbox::LogEntry& entry : world.log().entries()) {
    if (entry.event == sandbox::LogEvent::QueryReceived) {
      return std::stoi(entry.from.substr(entry.from.find(':') + 1));
    }
  }
  return 0;
}

// The local port of a socket that has sent something.
std::string portOf(int socket) {
  sockaddr_in address{};
  socklen_t length = sizeof address;
  ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length);
  return std::to_string(ntohs(address.sin_port));
}

// Rows that were written to their end: with the address of the flood or of a server of the world, and the players in
// red exactly when sixteen play.
int rowsThatAreRight(const ServerGrid& grid, const std::string& floodPort) {
  int right = 0;
  for (int row = 1; row <= grid.rowCount(); ++row) {
    const bool flooded = grid.cellText(row, 3) == "127.0.0.1" && grid.cellText(row, 4) == floodPort;
    const bool asked = grid.cellText(row, 3).starts_with("127.") && grid.cellText(row, 3) != "127.0.0.1";
    const std::string& password = grid.cellText(row, 8);
    const std::string& players = grid.cellText(row, 6);
    const bool red = grid.cell(row, 6).color == colors::red;
    const bool whole = (password == "Yes" || password == "No") && red == (players.substr(0, players.find('/')) == "16");
    right += (flooded || asked) && whole && grid.cellText(row, 2) == "..." ? 1 : 0;
  }
  return right;
}

}  // namespace

void benchFlood(Report& report) {
  report.heading("100,000 datagrams thrown at the sweep socket in a burst");
  sandbox::WorldSettings settings;
  settings.servers = 20;
  settings.masterAddress = masterAddress;
  settings.gamePort = 0;
  sandbox::SandboxWorld world(settings);
  world.start();
  QTemporaryDir folder;
  Program program({masterAddress, "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  runEventsUntil([] { return false; }, 300);
  resetPeakMemory();
  const double memoryBefore = static_cast<double>(peakMemoryBytes());
  program.window().findChild<QPushButton*>("cmdMenu32")->click();
  runEventsUntil([&] { return sweepPort(world) != 0 && !program.progress().walking.get(); }, 10'000);

  const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const auto port = static_cast<std::uint16_t>(sweepPort(world));
  std::size_t sent = 0;
  const auto start = std::chrono::steady_clock::now();
  std::thread thrower([&] { sent = sandbox::sendFlood(socket, "127.0.0.1", port, floodSize); });
  int rows = -1;
  int quiet = 0;
  auto last = start;
  runEventsUntil(
      [&] {
        const int now = program.model().grdServers.rowCount();
        quiet = now == rows ? quiet + 1 : 0;
        last = now == rows ? last : std::chrono::steady_clock::now();
        rows = now;
        return quiet >= 100;
      },
      120'000);
  thrower.join();
  const std::string floodPort = portOf(socket);
  ::close(socket);

  const ServerGrid& grid = program.model().grdServers;
  report.value("datagrams that the kernel took", static_cast<double>(sent), "");
  report.value("rows", grid.rowCount(), "");
  report.value("time until the last row", std::chrono::duration<double>(last - start).count(), "s");
  report.exactly("rows that are right", rowsThatAreRight(grid, floodPort), grid.rowCount());
  report.target("memory above that before the flood", (static_cast<double>(peakMemoryBytes()) - memoryBefore) / 1e6,
                "MB", 100);
  double slowest = 0;
  {
    auto* const view = program.window().findChild<ServerGridView*>();
    int clicks = 0;
    const Clicker clicker(
        program.window(), [&] { clickRow(*view, ++clicks); }, 50);
    runEventsUntil([&] { return clicks >= 10; }, 5000);
    for (const double latency : clicker.latencies()) {
      slowest = std::max(slowest, latency);
    }
    slowest = clicks >= 10 && program.model().grdServers.currentRow() > 0 ? slowest : 1e9;
  }
  report.target("slowest of ten clicks behind the flood", slowest, "ms", 50);
  program.loop().beginEnding();
}

}  // namespace vantrel::bench
