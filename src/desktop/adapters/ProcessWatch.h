// The end of a process that is nobody's child here.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/Processes.h"

namespace vantrel {

class ProcessWatch {
 public:
  // `number`: of a process that was there a moment ago and whose number cannot have gone to another yet.
  explicit ProcessWatch(pid_t number);
  ProcessWatch(const ProcessWatch&) = delete;
  ProcessWatch& operator=(const ProcessWatch&) = delete;
  ~ProcessWatch();

  // Returns as soon as the process has ended.
  ProcessWait wait(int milliseconds) const;

 private:
  pid_t number_;
  int descriptor_;     // of the process; less than 0 when the system has none to give
  std::string began_;  // when, by the system's table of processes, which is asked instead; empty when it has ended
};

}  // namespace vantrel
