#include "desktop/adapters/PosixProcesses.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <vector>

#include "desktop/adapters/ProgramStart.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr int highestPriority = -10;  // what "high" is on the system's scale of 19 down to -20
constexpr int firstOwnDescriptor = 3;
constexpr int lastLikelyDescriptor = 65535;

class Pipe {
 public:
  Pipe() {
    if (::pipe2(ends_.data(), O_CLOEXEC) != 0) {
      throw failures::outOfMemory();
    }
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    closeEnd(0);
    closeEnd(1);
  }

  int reading() const { return ends_[0]; }
  int writing() const { return ends_[1]; }
  void closeWriting() { closeEnd(1); }

 private:
  void closeEnd(std::size_t end) {
    if (ends_[end] >= 0) {
      ::close(ends_[end]);
      ends_[end] = -1;
    }
  }

  std::array<int, 2> ends_{-1, -1};
};

// False at the end of the pipe. A message is smaller than what a pipe takes in one piece.
template <class Message>
bool receive(int descriptor, Message& message) {
  ssize_t count = 0;
  do {
    count = ::read(descriptor, &message, sizeof message);
  } while (count < 0 && errno == EINTR);
  return count == static_cast<ssize_t>(sizeof message);
}

template <class Message>
bool send(int descriptor, const Message& message) {
  ssize_t count = 0;
  do {
    count = ::write(descriptor, &message, sizeof message);
  } while (count < 0 && errno == EINTR);
  return count == static_cast<ssize_t>(sizeof message);
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

Failure failureOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return failures::fileNotFound();
    case EACCES:
    case EPERM:
    case ETXTBSY:
      return failures::permissionDenied();
    case ENOMEM:
    case EAGAIN:
    case E2BIG:
    case EMFILE:
    case ENFILE:
      return failures::outOfMemory();
    default:
      return failures::notAProgram();
  }
}

// What the child needs, made before the fork: behind it another thread may hold the lock of the memory for ever.
struct Preparation {
  const char* file;
  const char* directory;
  char* const* arguments;
  char* const* environment;
  ProcessPriority priority;
};

// Everything from here on down to `runProgram` runs between fork and exec.
void takeDefaultSignals() {
  struct sigaction standard {};
  standard.sa_handler = SIG_DFL;
  for (int number = 1; number < NSIG; ++number) {
    ::sigaction(number, &standard, nullptr);
  }
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// A refusal is none of the user's concern; the highest that he may have is taken.
void takePriority(ProcessPriority priority) {
  if (priority != ProcessPriority::high) {
    return;
  }
  for (int nice = highestPriority; nice < 0 && ::setpriority(PRIO_PROCESS, 0, nice) != 0; ++nice) {
  }
}

// The others are marked to be closed by exec, so that one of them can still tell that exec has failed.
void keepStandardDescriptorsOnly() {
  const int nothing = ::open("/dev/null", O_RDONLY);
  if (nothing >= 0) {
    ::dup2(nothing, STDIN_FILENO);
  }
  constexpr unsigned markOnly = 1U << 2;
  if (::syscall(SYS_close_range, firstOwnDescriptor, ~0U, markOnly) == 0) {
    return;
  }
  for (int descriptor = firstOwnDescriptor; descriptor <= lastLikelyDescriptor; ++descriptor) {
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  }
}

[[noreturn]] void runProgram(const Preparation& preparation, int report) {
  takePriority(preparation.priority);
  keepStandardDescriptorsOnly();
  int error = 0;
  if (::chdir(preparation.directory) != 0) {
    error = errno;
  } else {
    takeDefaultSignals();
    ::execve(preparation.file, preparation.arguments, preparation.environment);
    error = errno;
  }
  send(report, error);
  ::_exit(127);
}

// Tells its number and waits until it is known by its descriptor, so that the number cannot be another's by then.
[[noreturn]] void runWhenKnown(const Preparation& preparation, const Pipe& report, const Pipe& go) {
  ::close(go.writing());
  char sign = 0;
  if (!send(report.writing(), ::getpid()) || !receive(go.reading(), sign)) {
    ::_exit(127);
  }
  runProgram(preparation, report.writing());
}

// In a session of its own the program is spared what a terminal sends to this one.
[[noreturn]] void runInBetween(const Preparation& preparation, const Pipe& report, const Pipe& go) {
  ::setsid();
  if (::_Fork() == 0) {
    runWhenKnown(preparation, report, go);
  }
  ::_exit(0);
}

class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;
  ~BlockedSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

}  // namespace

GameProcess PosixProcesses::start(const ProcessStart& start) {
  ProgramStart program = prepareStart(start);
  const std::vector<char*> arguments = pointersTo(program.arguments);
  const std::vector<char*> environment = pointersTo(program.environment);
  const Preparation preparation{program.file.c_str(), start.directory.c_str(), arguments.data(), environment.data(),
                                start.priority};
  Pipe report;
  Pipe go;
  pid_t between = 0;
  {
    // No handler of this program may run in the child.
    const BlockedSignals blocked;
    between = ::fork();
    if (between == 0) {
      runInBetween(preparation, report, go);
    }
  }
  if (between < 0) {
    throw failures::outOfMemory();
  }
  report.closeWriting();
  while (::waitpid(between, nullptr, 0) < 0 && errno == EINTR) {
  }
  pid_t number = -1;
  if (!receive(report.reading(), number)) {
    throw failures::outOfMemory();
  }
  const auto watch = std::make_shared<const ProcessWatch>(number);
  int error = 0;
  send(go.writing(), 'g');  // No signal comes of it if the process was killed: this program could read it too.
  if (receive(report.reading(), error)) {
    throw failureOf(error);
  }
  const std::uint32_t process = ++lastHandle_;
  const std::uint32_t thread = ++lastHandle_;
  handles_[process] = {HandleOf::process, watch};
  handles_[thread] = {HandleOf::thread, watch};
  const auto id = static_cast<std::uint32_t>(number);
  return {process, thread, id, id};
}

ProcessWait PosixProcesses::wait(std::uint32_t process, int milliseconds) {
  const auto found = handles_.find(process);
  if (found == handles_.end() || found->second.what != HandleOf::process) {
    return ProcessWait::failed;
  }
  return found->second.watch->wait(milliseconds);
}

void PosixProcesses::close(std::uint32_t handle) {
  handles_.erase(handle);
}

}  // namespace vantrel
