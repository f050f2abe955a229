#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "sandbox/WorldSettings.h"

namespace vantrel::sandbox {

/// What the user of the program asked for.
struct CommandLine {
  WorldSettings settings;
  std::string logFile;  ///< empty: no log; "-": standard output
  bool showsTable = false;
  bool showsHelp = false;
  std::optional<std::chrono::milliseconds> duration;  ///< how long to run; none: until a signal
};

/// Reads the arguments behind the program's name. Throws std::invalid_argument, with a text for the user, if an
/// argument is unknown, lacks its value or has one out of range.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

std::string usage();

}  // namespace vantrel::sandbox
