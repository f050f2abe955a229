// A sweep in which players are searched for and buddies met, beside the same sweep without.

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <fstream>

#include "SweepBench.h"
#include "sandbox/SandboxWorld.h"

namespace vantrel::bench {
namespace {

constexpr const char* masterAddress = "127.41.0.2";
constexpr std::size_t servers = 2000;
constexpr int buddies = 200;
constexpr int buddiesOnline = 50;

struct Figures {
  double seconds = 0;
  int rewrites = 0;  // of buddies.ini
  int met = 0;       // buddies who have a server at the end
  int hits = 0;
};

// Of whole servers, nearly all of sixteen players.
sandbox::WorldSettings everyoneIsThere() {
  sandbox::WorldSettings settings;
  settings.seed = 17;
  settings.servers = servers;
  settings.masterAddress = masterAddress;
  settings.gamePort = 0;
  settings.latencyLow = settings.latencyHigh = std::chrono::milliseconds(0);
  settings.silentShare = settings.closedShare = settings.loss = settings.emptyShare = 0;
  settings.fullShare = 1;
  return settings;
}

// Buddies who are on-line, one on each fortieth server, and others whom nobody is called like.
void writeBuddies(const QTemporaryDir& folder, const sandbox::SandboxWorld& world) {
  std::ofstream file(folder.filePath("buddies.ini").toStdString(), std::ios::binary);
  file << "[VANTREL MOFOS]\r\n[MOFOCOUNT]\r\nBuddies=" << buddies << "\r\n";
  for (int number = 1; number <= buddies; ++number) {
    const auto server = static_cast<std::size_t>(number - 1) % buddiesOnline * (servers / buddiesOnline);
    const std::string name = number <= buddiesOnline ? world.servers()[server].players.front().name
                                                     : "nobody at all " + std::to_string(number);
    file << '[' << number << "]\r\nbuddyname=" << name << "\r\nlastserver=\r\n";
  }
}

Figures sweep(bool searching) {
  sandbox::SandboxWorld world(everyoneIsThere());
  world.start();
  QTemporaryDir folder;
  if (searching) {
    writeBuddies(folder, world);
  }
  const QString store = folder.filePath("buddies.ini");
  Program program({masterAddress, "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  program.model().txtPlayer.text.set(searching ? "ar" : "");
  runEventsUntil([] { return false; }, 300);
  Figures figures;
  QDateTime changed = QFileInfo(store).lastModified();
  const auto start = std::chrono::steady_clock::now();
  auto last = start;
  const Connection rows = program.sweep().rowAdded.connect([&](int) {
    last = std::chrono::steady_clock::now();
    const QDateTime now = QFileInfo(store).lastModified();
    figures.rewrites += now != changed ? 1 : 0;
    changed = now;
  });
  program.commands().clickIt(command::getServerList);
  runEventsUntil(
      [&] {
        return !program.progress().walking.get() && std::chrono::steady_clock::now() - last > std::chrono::seconds(3);
      },
      120'000);
  figures.seconds = std::chrono::duration<double>(last - start).count();
  for (int number = 1; number <= program.buddies().myFaves1.count(); ++number) {
    figures.met += program.buddies().myFaves1.at(number).hostname.empty() ? 0 : 1;
  }
  figures.hits = program.players().lstPlayers.count();
  program.loop().beginEnding();
  return figures;
}

}  // namespace

void benchBuddies(Report& report) {
  report.heading("Sweep of 2,000 full servers, 200 buddies and a search text");
  const Figures plain = sweep(false);
  const Figures searching = sweep(true);
  report.value("hits of the search", searching.hits, "");
  report.value("buddies met", searching.met, "");
  report.target("time over that of a sweep without", searching.seconds / plain.seconds, "", 1.05);
  report.target("rewrites of buddies.ini", searching.rewrites, "", 6);
}

}  // namespace vantrel::bench
