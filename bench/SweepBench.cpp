#include "SweepBench.h"

#include <QFileInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <chrono>

#include "app/Program.h"
#include "desktop/grid/ServerGridView.h"
#include "sandbox/SandboxWorld.h"

namespace vantrel::bench {
namespace {

constexpr const char* masterAddress = "127.41.0.1";

struct SweepFigures {
  int rows = 0;
  double seconds = 0;
  double cpuPerReply = 0;   // microseconds
  double writtenShare = 0;  // bytes written, as a multiple of the final size of servers.ini
  double slowestClick = 0;  // milliseconds
  double medianClick = 0;   // milliseconds
};

sandbox::WorldSettings everyoneAnswers(std::size_t servers) {
  sandbox::WorldSettings settings;
  settings.seed = 11;
  settings.servers = servers;
  settings.masterAddress = masterAddress;
  settings.gamePort = 0;
  settings.latencyLow = settings.latencyHigh = std::chrono::milliseconds(0);
  settings.silentShare = settings.closedShare = settings.loss = 0;
  return settings;
}

SweepFigures sweep(std::size_t servers) {
  sandbox::SandboxWorld world(everyoneAnswers(servers));
  world.start();
  QTemporaryDir folder;
  Program program({masterAddress, "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  auto* const get = program.window().findChild<QPushButton*>("cmdMenu32");
  auto* const view = program.window().findChild<ServerGridView*>();
  runEventsUntil([] { return false; }, 300);

  SweepFigures figures;
  const std::uint64_t writtenBefore = bytesWritten();
  const double cpuBefore = threadCpuSeconds();
  std::vector<double> latencies;
  {
    int clicks = 0;
    Clicker clicker(
        program.window(), [&] { clickRow(*view, ++clicks); }, 250);
    const auto start = std::chrono::steady_clock::now();
    auto last = start;
    // Behind the last row the pings begin, which are another matter.
    double cpuAtLast = cpuBefore;
    const Connection rows = program.sweep().rowAdded.connect([&](int) {
      last = std::chrono::steady_clock::now();
      cpuAtLast = threadCpuSeconds();
    });
    QTest::mouseClick(get, Qt::LeftButton);
    runEventsUntil(
        [&] {
          const bool quiet = std::chrono::steady_clock::now() - last > std::chrono::seconds(3);
          return quiet && !program.progress().walking.get();
        },
        300'000);
    figures.seconds = std::chrono::duration<double>(last - start).count();
    latencies = clicker.latencies();
    figures.rows = program.model().grdServers.rowCount();
    figures.cpuPerReply = (cpuAtLast - cpuBefore) * 1e6 / std::max(1, figures.rows);
  }
  const QString store = folder.filePath("servers.ini");
  figures.writtenShare =
      static_cast<double>(bytesWritten() - writtenBefore) / std::max(1.0, static_cast<double>(QFileInfo(store).size()));
  std::sort(latencies.begin(), latencies.end());
  figures.slowestClick = latencies.empty() ? 1e9 : latencies.back();
  figures.medianClick = latencies.empty() ? 1e9 : latencies[latencies.size() / 2];
  program.loop().beginEnding();
  return figures;
}

void print(Report& report, const std::string& name, const SweepFigures& figures) {
  report.value(name + "time", figures.seconds, "s");
  report.value(name + "CPU per reply", figures.cpuPerReply, "us");
  report.value(name + "written, times the final servers.ini", figures.writtenShare, "");
  report.value(name + "median click answered and painted", figures.medianClick, "ms");
  report.value(name + "slowest click answered and painted", figures.slowestClick, "ms");
}

}  // namespace

void clickRow(ServerGridView& view, int click) {
  QWidget* const viewport = view.table().viewport();
  const int rowHeight = 19;
  const QPoint place(40, rowHeight / 2 + rowHeight * (click % 12));
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, place);
  viewport->repaint();
}

void benchSweeps(Report& report) {
  constexpr double pause = 0.010;  // seconds, behind each query
  report.heading("Sweep of 500 servers that all answer");
  const SweepFigures small = sweep(500);
  report.exactly("500: rows", small.rows, 500);
  print(report, "500: ", small);

  report.heading("Sweep of 2,000 servers that all answer");
  const SweepFigures medium = sweep(2000);
  report.exactly("2,000: rows", medium.rows, 2000);
  print(report, "2,000: ", medium);
  report.target("2,000: time over that of the 10 ms pauses alone", medium.seconds / (2000 * pause), "", 1.05);

  report.heading("Sweep of 5,000 servers that all answer");
  const SweepFigures large = sweep(5000);
  report.exactly("5,000: rows", large.rows, 5000);
  print(report, "5,000: ", large);
  report.target("5,000: CPU per reply over that at 500 rows", large.cpuPerReply / small.cpuPerReply, "", 1.3);
  report.target("5,000: bytes written over the final size", large.writtenShare, "", 20);
  report.target("5,000: slowest click during the sweep", large.slowestClick, "ms", 50);
}

}  // namespace vantrel::bench
