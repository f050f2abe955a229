// What it takes to start a program: which file to run, with which arguments and which environment. A Windows program is
// run by Wine.
#pragma once

#include <string>
#include <vector>

#include "platform/Processes.h"

namespace vantrel {

struct ProgramStart {
  std::string file;  // what the system is to run
  std::vector<std::string> arguments;
  std::vector<std::string> environment;  // "NAME=value"
};

// Throws the failures of Processes::start, as far as they can be told before the start.
ProgramStart prepareStart(const ProcessStart& start);

}  // namespace vantrel
