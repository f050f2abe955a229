#include <sys/socket.h>
#include <unistd.h>

#include <QPushButton>
#include <QTemporaryDir>
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

// Rows of which one and the same datagram wrote every cell: a flood's valid reply has all six texts, and garbage that
// has none of them has an empty map.
int rowsThatAreWhole(const ServerGrid& grid) {
  int whole = 0;
  for (int row = 1; row <= grid.rowCount(); ++row) {
    const bool addressed = !grid.cellText(row, 3).empty() && !grid.cellText(row, 4).empty();
    const std::string& password = grid.cellText(row, 8);
    whole += addressed && grid.cellText(row, 2) == "..." && (password == "Yes" || password == "No") ? 1 : 0;
  }
  return whole;
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
  Program program({masterAddress, "", ""}, folder.path().toStdString());
  program.window().show();
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
  ::close(socket);

  const ServerGrid& grid = program.model().grdServers;
  report.value("datagrams that the kernel took", static_cast<double>(sent), "");
  report.value("rows", grid.rowCount(), "");
  report.value("time until the last row", std::chrono::duration<double>(last - start).count(), "s");
  report.exactly("rows that are whole", rowsThatAreWhole(grid), grid.rowCount());
  report.target("memory above that before the flood", (static_cast<double>(peakMemoryBytes()) - memoryBefore) / 1e6,
                "MB", 100);
  const auto clicked = std::chrono::steady_clock::now();
  runEventsUntil([] { return true; }, 1000);
  const std::chrono::duration<double, std::milli> back = std::chrono::steady_clock::now() - clicked;
  report.target("the window is back within", back.count(), "ms", 50);
  program.loop().beginEnding();
}

}  // namespace vantrel::bench
