#include <QApplication>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <ctime>
#include <iostream>

#include "SweepBench.h"
#include "desktop/controls/ProgramIcon.h"
#include "desktop/controls/Theme.h"

namespace vantrel::bench {
namespace {

double processCpuMilliseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// Sees when a window and all that is in it have been painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& window) { window.installEventFilter(this); }
  bool painted = false;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    painted = painted || event->type() == QEvent::Paint;
    return false;
  }
};

constexpr int pages[] = {9, 6, 1, 2, 3, 4, 7, 5, 16};

}  // namespace

Places placesIn(const QTemporaryDir& folder) {
  const std::string path = folder.path().toStdString();
  return {path, path + "/config", path + "/prefix"};
}

void startAtOnce(Program& program) {
  program.registry().SetRegValue(RegistryRoot::currentUser, parametersKey, "splash", RegistryType::text, "1");
  program.registry().SetRegValue(RegistryRoot::currentUser, settingsKey, "InitDir", RegistryType::text, "/games/halo");
  program.start();
}

// What this process has used since it began, so all of the loading of the libraries counts.
int coldStart(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setWindowIcon(programIcon());
  applyTheme(application);
  const QTemporaryDir folder;
  Program program({"127.41.0.9", "", ""}, {1, 0, 0}, placesIn(folder));
  PaintWatch watch(program.window());
  startAtOnce(program);
  runEventsUntil([&] { return watch.painted; }, 10'000);
  QApplication::processEvents();
  std::cout << processCpuMilliseconds() << std::endl;
  program.loop().beginEnding();
  return watch.painted ? 0 : 1;
}

void benchStart(Report& report) {
  report.heading("Start and pages");
  double slowestStart = 0;
  for (int run = 0; run < 5; ++run) {
    QProcess process;
    process.start(QApplication::applicationFilePath(), {"--cold-start"});
    process.waitForFinished();
    const QByteArray output = process.readAllStandardOutput();
    slowestStart = std::max(slowestStart, process.exitCode() == 0 && !output.isEmpty() ? output.toDouble() : 1e9);
  }
  report.target("cold start to the painted window, CPU, slowest of 5", slowestStart, "ms", 250);

  const QTemporaryDir folder;
  Program program({"127.41.0.9", "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  runEventsUntil([] { return false; }, 300);
  double slowestSwitch = 0;
  for (int round = 0; round < 5; ++round) {
    for (const int page : pages) {
      const double before = threadCpuSeconds();
      program.window().findChild<QPushButton*>(QStringLiteral("cmdMenu%1").arg(page))->click();
      program.window().repaint();
      QApplication::processEvents();
      slowestSwitch = std::max(slowestSwitch, (threadCpuSeconds() - before) * 1e3);
    }
  }
  report.target("switch of pages, clicked and painted, slowest of 45", slowestSwitch, "ms", 16);
  program.loop().beginEnding();
}

}  // namespace vantrel::bench
