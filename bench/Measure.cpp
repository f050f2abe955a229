#include "Measure.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace vantrel::bench {
namespace {

// The number behind a key of a file of the process's own folder.
std::uint64_t processFigure(const char* file, const std::string& key) {
  std::ifstream stream(file);
  std::string word;
  while (stream >> word) {
    if (word == key) {
      std::uint64_t number = 0;
      stream >> number;
      return number;
    }
  }
  return 0;
}

}  // namespace

double threadCpuSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

std::uint64_t bytesWritten() {
  return processFigure("/proc/self/io", "wchar:");
}

std::uint64_t peakMemoryBytes() {
  return processFigure("/proc/self/status", "VmHWM:") * 1024;
}

void resetPeakMemory() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

void runEventsUntil(const std::function<bool()>& done, int timeoutMilliseconds) {
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (done()) {
      loop.quit();
    }
  });
  look.start(20);
  QTimer::singleShot(timeoutMilliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

Clicker::Clicker(QObject& receiver, std::function<void()> click, int interval)
    : thread_([this, &receiver, click = std::move(click), interval] {
        while (!stop_) {
          std::this_thread::sleep_for(std::chrono::milliseconds(interval));
          if (waiting_.exchange(true)) {
            continue;
          }
          const auto posted = std::chrono::steady_clock::now();
          QMetaObject::invokeMethod(
              &receiver,
              [this, posted, click] {
                click();
                const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - posted;
                latencies_.push_back(took.count());
                waiting_ = false;
              },
              Qt::QueuedConnection);
        }
      }) {}

Clicker::~Clicker() {
  stop_ = true;
  thread_.join();
  QCoreApplication::sendPostedEvents();
}

void Report::heading(const std::string& text) {
  std::printf("\n%s\n", text.c_str());
}

void Report::value(const std::string& name, double value, const std::string& unit) {
  std::printf("  %-52s %12.3f %-8s\n", name.c_str(), value, unit.c_str());
  std::fflush(stdout);
}

void Report::target(const std::string& name, double value, const std::string& unit, double atMost) {
  const bool reached = value <= atMost;
  reached_ = reached_ && reached;
  std::printf("  %-52s %12.3f %-8s at most %-9.3f %s\n", name.c_str(), value, unit.c_str(), atMost,
              reached ? "reached" : "MISSED");
  std::fflush(stdout);
}

void Report::exactly(const std::string& name, double value, double wanted) {
  const bool reached = value == wanted;
  reached_ = reached_ && reached;
  std::printf("  %-52s %12.0f %-8s wanted  %-9.0f %s\n", name.c_str(), value, "", wanted,
              reached ? "reached" : "MISSED");
  std::fflush(stdout);
}

}  // namespace vantrel::bench
