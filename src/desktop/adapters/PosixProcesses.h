// Programs as processes of their own. Each is handed over to the system's first process as soon as it runs, so that it
// outlives this program and leaves no zombie, whoever ends first.
#pragma once

#include <map>
#include <memory>

#include "desktop/adapters/ProcessWatch.h"
#include "platform/Processes.h"

namespace vantrel {

class PosixProcesses : public Processes {
 public:
  GameProcess start(const ProcessStart& start) override;
  ProcessWait wait(std::uint32_t process, int milliseconds) override;
  void close(std::uint32_t handle) override;

 private:
  enum class HandleOf { process, thread };
  struct Handle {
    HandleOf what = HandleOf::process;
    std::shared_ptr<const ProcessWatch> watch;  // shared by both handles of the process
  };

  std::uint32_t lastHandle_ = 0;
  std::map<std::uint32_t, Handle> handles_;
};

}  // namespace vantrel
