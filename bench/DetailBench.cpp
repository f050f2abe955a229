// One server in detail, and the round trips of a whole list.

#include <QTemporaryDir>
#include <algorithm>
#include <chrono>

#include "SweepBench.h"
#include "core/modSGrid.h"
#include "query/DetailReply.h"

namespace vantrel::bench {
namespace {

constexpr int rows = 1000;
constexpr int replies = 500;
constexpr std::size_t replySize = 1400;  // bytes

struct Quiet : Notices {
  void ShowPopMsg(const std::string&) override {}
  void popUpBalloon(const std::string&, const std::string&) override {}
};

void benchPass(Report& report) {
  QTemporaryDir folder;
  Program program({"127.41.0.1", "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  ServerGrid& grid = program.model().grdServers;
  for (int row = 1; row <= rows; ++row) {
    grid.setCell(row, cName, "Server " + std::to_string(row));
    grid.setCell(row, cPing, "...");
    grid.setCell(row, cIP, "127.42." + std::to_string(row / 250) + "." + std::to_string(row % 250 + 1));
  }
  runEventsUntil([] { return false; }, 300);
  std::vector<double> latencies;
  double seconds = 0;
  double cpu = 0;  // seconds
  {
    Clicker clicker(
        program.window(), [] {}, 5);
    const auto start = std::chrono::steady_clock::now();
    const double cpuBefore = threadCpuSeconds();
    program.model().tmrPing.tick.fire();
    seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    cpu = threadCpuSeconds() - cpuBefore;
    latencies = clicker.latencies();
  }
  int answered = 0;
  for (int row = 1; row <= rows; ++row) {
    answered += grid.cellText(row, cPing).ends_with(" ms") ? 1 : 0;
  }
  report.heading("Pass over 1,000 servers that all answer");
  report.exactly("answered", answered, rows);
  report.value("CPU per row", cpu * 1e6 / rows, "us");
  report.target("time over that of the 10 ms pauses alone", seconds / (rows * 0.010), "", 1.2);
  report.target("slowest turn of the event loop", *std::max_element(latencies.begin(), latencies.end()), "ms", 16);
  program.loop().beginEnding();
}

std::string fullReply() {
  std::string reply =
      "\\hostname\\A server\\gamever\\01.00.10.0621\\hostport\\2302\\maxplayers\\16\\password\\0\\mapname\\bloodgulch"
      "\\dedicated\\1\\gamemode\\openplaying\\game_"
      "classic\\0\\numplayers\\16\\gametype\\CTF\\teamplay\\1\\gamevariant\\CTF"
      "\\fraglimit\\3\\player_flags\\1941966980,2";
  for (const char* group : {"player_", "score_", "ping_", "team_"}) {
    for (int i = 0; i < 16; ++i) {
      reply += "\\" + (group + std::to_string(i)) + "\\" + std::to_string(i % 2);
    }
  }
  reply += "\\team_t0\\Red\\team_t1\\Blue\\score_t0\\1\\score_t1\\2\\own\\";
  reply.resize(std::max(replySize, reply.size()), 'x');
  return reply;
}

void benchReply(Report& report) {
  QtLoop loop;
  frmMain window(loop);
  Quiet notices;
  Commands commands(window, notices);
  DetailView view(window, commands, {1, 0, 0});
  const std::string reply = fullReply();
  const double before = threadCpuSeconds();
  for (int i = 0; i < replies; ++i) {
    view.ClearDetail();
    DetailReply(reply, window, notices, view).show([](const std::string&) {});
  }
  const double each = (threadCpuSeconds() - before) * 1000 / replies;
  report.heading("A reply of 1,400 bytes in detail");
  report.exactly("players", window.ListView2.rowCount(), 16);
  report.target("CPU to clear the view and fill it", each, "ms", 1);
}

}  // namespace

void benchDetail(Report& report) {
  benchPass(report);
  benchReply(report);
}

}  // namespace vantrel::bench
