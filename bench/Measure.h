// What the benchmarks read of their own process, and how they print what they found.
#pragma once

#include <QObject>
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace vantrel::bench {

double threadCpuSeconds();        // of the calling thread
std::uint64_t bytesWritten();     // by write calls of this process: files, not sockets
std::uint64_t peakMemoryBytes();  // resident, since the last reset
void resetPeakMemory();
void runEventsUntil(const std::function<bool()>& done, int timeoutMilliseconds);

// Clicks again and again while it lives: posts `click` from another thread every `interval` milliseconds and measures
// how long it takes until the event loop has run it to its end.
class Clicker {
 public:
  Clicker(QObject& receiver, std::function<void()> click, int interval);
  ~Clicker();
  std::vector<double> latencies() const { return latencies_; }  // milliseconds

 private:
  std::vector<double> latencies_;
  std::atomic<bool> stop_{false};
  std::atomic<bool> waiting_{false};
  std::thread thread_;
};

// One line of the table; remembers whether a target was missed.
class Report {
 public:
  void heading(const std::string& text);
  void value(const std::string& name, double value, const std::string& unit);
  void target(const std::string& name, double value, const std::string& unit, double atMost);
  void exactly(const std::string& name, double value, double wanted);
  bool allReached() const { return reached_; }

 private:
  bool reached_ = true;
};

}  // namespace vantrel::bench
