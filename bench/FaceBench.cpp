// What the buttons and the message that fades cost.

#include <QCoreApplication>
#include <QEnterEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "SweepBench.h"
#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/adapters/SettingsRegistry.h"
#include "desktop/controls/LvButton.h"
#include "desktop/window/PopMsgWindow.h"

namespace vantrel::bench {
namespace {

constexpr int buttons = 32;
constexpr int redraws = 2000;
constexpr int stay = 60;       // milliseconds on each button: a quick hand is over the row in two seconds
constexpr int passes = 3;      // over the whole row
constexpr int message = 3400;  // milliseconds from its first step to its last

double redrawMilliseconds(LvButton& button) {
  QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
  button.render(&image);
  const double before = threadCpuSeconds();
  for (int redraw = 0; redraw < redraws; ++redraw) {
    button.render(&image);
  }
  return (threadCpuSeconds() - before) * 1e3 / redraws;
}

void runEvents(int milliseconds) {
  runEventsUntil([] { return false; }, milliseconds);
}

// Percent of one core while the pointer goes over the row, or stays away from it for as long.
enum class Pointer { away, over };
double rowShare(const std::vector<LvButton*>& row, Pointer pointer) {
  const auto start = std::chrono::steady_clock::now();
  const double before = threadCpuSeconds();
  for (int pass = 0; pass < passes; ++pass) {
    for (LvButton* const button : row) {
      QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
      QEvent leave(QEvent::Leave);
      if (pointer == Pointer::over) {
        QCoreApplication::sendEvent(button, &enter);
      }
      runEvents(stay);
      if (pointer == Pointer::over) {
        QCoreApplication::sendEvent(button, &leave);
      }
    }
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  return (threadCpuSeconds() - before) / took.count() * 100;
}

// Percent of one core from the first step of a message to its last.
double fadeShare() {
  const QTemporaryDir folder;
  QtLoop loop;
  DiskFiles files;
  SettingsRegistry registry(files, loop, folder.path().toStdString(), nullptr);
  frmPopMsg model(loop, registry);
  PopMsgWindow window(model);
  const double before = threadCpuSeconds();
  model.ShowPopMsg("Joining Halo CE server 192.0.2.1:2302");
  runEvents(message);
  return (threadCpuSeconds() - before) / (message / 1e3) * 100;
}

}  // namespace

void benchFace(Report& report) {
  report.heading("Buttons and messages");
  QWidget window;
  QHBoxLayout line(&window);
  std::vector<LvButton*> row;
  for (int number = 0; number < buttons; ++number) {
    row.push_back(new LvButton(&window));
    row.back()->setText(QStringLiteral("&Button"));
    line.addWidget(row.back());
  }
  window.show();
  runEvents(100);
  report.target("redraw of one button", redrawMilliseconds(*row.front()), "ms", 0.2);
  const double idle = rowShare(row, Pointer::away);
  report.value("a row of buttons without the pointer", idle, "% of a core");
  report.target("more with the pointer over it", rowShare(row, Pointer::over) - idle, "% of a core", 2);
  report.target("a message, from its first step to its last", fadeShare(), "% of a core", 3);
}

}  // namespace vantrel::bench
