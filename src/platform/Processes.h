// Face of starting other programs and of learning that they have ended. A program that was started goes on by itself,
// also behind this one's end.
#pragma once

#include <cstdint>
#include <string>

namespace vantrel {

enum class ProcessPriority { normal = 32, high = 128 };

struct ProcessStart {
  std::string application;       // path of the program in the system's own bytes
  std::string commandLine = {};  // what stands behind the program's name, in code page 1252; Windows' rules part it
  std::string directory = {};    // the program's working folder; a separator at its end does no harm
  ProcessPriority priority = ProcessPriority::normal;
};

// What the platform knows of a program that it has started. The handles are not 0 and belong to who started it.
struct GameProcess {
  std::uint32_t process = 0;
  std::uint32_t thread = 0;
  std::uint32_t processId = 0;
  std::uint32_t threadId = 0;
};

enum class ProcessWait { ended, timeOut, failed };

class Processes {
 public:
  virtual ~Processes() = default;

  // Starts a program with this one's environment and returns as soon as it runs. Throws failure 53 when there is no
  // such program or nothing to run it with, 76 when the working folder is not there, 70 when the user may not run it,
  // 193 when it is no program, 7 when the system has no room for it; nothing runs then and no handle is open. A
  // priority that the system refuses is no failure. A zero byte ends the command line; a path has none.
  virtual GameProcess start(const ProcessStart& start) = 0;

  // Waits for the end of a process for up to `milliseconds` (0 or more, meant to be few: no event runs meanwhile). The
  // answer is `failed`, at once, for a number that is no open process handle.
  virtual ProcessWait wait(std::uint32_t process, int milliseconds) = 0;

  // Closes a handle; the program goes on. A number that is no open handle is ignored.
  virtual void close(std::uint32_t handle) = 0;
};

}  // namespace vantrel
