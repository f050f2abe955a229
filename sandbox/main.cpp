#include <signal.h>

#include <chrono>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "sandbox/CommandLine.h"
#include "sandbox/SandboxWorld.h"
#include "sandbox/WorldTable.h"

namespace {

using namespace vantrel::sandbox;

// Waits up to a tenth of a second and returns whether one of the signals that end the program has come.
bool endSignalComes(const sigset_t& endSignals) {
  const timespec timeout{0, 100'000'000};
  return sigtimedwait(&endSignals, nullptr, &timeout) > 0;
}

void writeNews(const SandboxWorld& world, std::size_t& written, std::ostream& output) {
  for (const LogEntry& entry : world.log().entries(written)) {
    output << lineOf(entry) << "\n";
    ++written;
  }
  output.flush();
}

void run(const CommandLine& line) {
  // The signals are taken here, one after another, and never interrupt the world's thread.
  sigset_t endSignals;
  sigemptyset(&endSignals);
  sigaddset(&endSignals, SIGINT);
  sigaddset(&endSignals, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &endSignals, nullptr);

  std::ofstream file;
  if (!line.logFile.empty() && line.logFile != "-") {
    file.open(line.logFile);
    if (!file) {
      throw std::runtime_error("the log file \"" + line.logFile + "\" cannot be written");
    }
  }
  SandboxWorld world(line.settings);
  world.start();
  if (line.showsTable) {
    std::cout << worldTable(world.servers());
  }
  std::cout << "sandbox ready: master " << world.masterAddress() << ":" << world.masterPort() << ", "
            << world.servers().size() << " servers, " << world.answeringServers() << " answer";
  if (world.webPort()) {
    std::cout << ", maps at http://" << line.settings.webAddress << ":" << *world.webPort() << "/maps/";
  }
  std::cout << std::endl;

  const auto start = std::chrono::steady_clock::now();
  std::size_t written = 0;
  bool ends = false;
  while (!ends) {
    ends = endSignalComes(endSignals) || (line.duration && std::chrono::steady_clock::now() - start >= *line.duration);
    if (!line.logFile.empty()) {
      writeNews(world, written, line.logFile == "-" ? std::cout : file);
    }
  }
}

}  // namespace

int main(int count, char** values) {
  try {
    const CommandLine line = parseCommandLine({values + 1, values + count});
    if (line.showsHelp) {
      std::cout << usage();
    } else {
      run(line);
    }
    return 0;
  } catch (const std::exception& problem) {
    std::cerr << "vantrel-sandbox: " << problem.what() << "\n";
    return 1;
  }
}
