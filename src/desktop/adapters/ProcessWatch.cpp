#include "desktop/adapters/ProcessWatch.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <sstream>

namespace vantrel {
namespace {

// When the process began, which tells it from a later one of the same number; empty when it has ended, and also while
// its parent has not taken notice of that.
std::string beginOf(pid_t number) {
  std::ifstream file("/proc/" + std::to_string(number) + "/stat");
  const std::string line{std::istreambuf_iterator<char>(file), {}};
  const std::size_t name = line.rfind(')');  // The program's name stands in brackets and may hold anything.
  if (name == std::string::npos) {
    return "";
  }
  std::istringstream fields(line.substr(name + 1));
  std::string state;
  std::string field;
  fields >> state;
  constexpr int begin = 19;  // fields behind the state
  for (int i = 0; i < begin; ++i) {
    fields >> field;
  }
  return state == "Z" || state == "X" ? "" : field;
}

}  // namespace

ProcessWatch::ProcessWatch(pid_t number)
    : number_(number),
      descriptor_(static_cast<int>(::syscall(SYS_pidfd_open, number, 0))),
      began_(descriptor_ < 0 ? beginOf(number) : "") {}

ProcessWatch::~ProcessWatch() {
  if (descriptor_ >= 0) {
    ::close(descriptor_);
  }
}

ProcessWait ProcessWatch::wait(int milliseconds) const {
  if (descriptor_ >= 0) {
    pollfd ended{descriptor_, POLLIN, 0};
    return ::poll(&ended, 1, milliseconds) > 0 ? ProcessWait::ended : ProcessWait::timeOut;
  }
  for (int passed = 0; !began_.empty() && beginOf(number_) == began_; ++passed) {
    if (passed >= milliseconds) {
      return ProcessWait::timeOut;
    }
    ::poll(nullptr, 0, 1);
  }
  return ProcessWait::ended;
}

}  // namespace vantrel
