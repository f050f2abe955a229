// A machine that starts every program, unless it is told not to, and lets each run until the test ends it.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "platform/Failure.h"
#include "platform/Processes.h"

namespace vantrel {

struct FakeProcesses : Processes {
  GameProcess start(const ProcessStart& what) override {
    starts.push_back(what);
    if (fails) {
      throw Failure(*fails);
    }
    const auto number = static_cast<std::uint32_t>(10 * (started.size() + 1));
    started.push_back({number + 1, number + 2, number + 3, number + 3});
    open_[number + 1] = true;
    open_[number + 2] = false;
    return started.back();
  }
  ProcessWait wait(std::uint32_t process, int /*milliseconds*/) override {
    if (!open_.contains(process) || process % 10 != 1) {
      return ProcessWait::failed;
    }
    return open_[process] ? ProcessWait::timeOut : ProcessWait::ended;
  }
  void close(std::uint32_t handle) override { open_.erase(handle); }

  void end(std::uint32_t process) { open_.at(process) = false; }
  int openHandles() const { return static_cast<int>(open_.size()); }

  std::optional<Failure> fails;
  std::vector<ProcessStart> starts;  // all that was asked for
  std::vector<GameProcess> started;

 private:
  std::map<std::uint32_t, bool> open_;  // handles, and whether it is of a process that runs
};

}  // namespace vantrel
