// Real programs: how they are started, which of them cannot be, and that none is left behind.
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "desktop/adapters/PosixProcesses.h"
#include "support/ProcessesContract.h"

namespace vantrel {
namespace {

struct PosixProcessesHarness {
  Processes& processes() { return real; }
  ProcessStart program() const { return {.application = "/bin/sleep", .commandLine = "60", .directory = "/"}; }
  void end(const GameProcess& process) { ::kill(static_cast<pid_t>(process.processId), SIGKILL); }
  ProcessStart missing() const { return {.application = "/bin/no-such-program", .directory = "/"}; }

  PosixProcesses real;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, ProcessesContract, PosixProcessesHarness);

struct PosixProcessesTest : testing::Test {
  static std::ptrdiff_t descriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
  }
  void TearDown() override { EXPECT_EQ(descriptors(), before) << "a descriptor is left behind"; }
  std::string in(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
  std::string make(const std::string& name, const std::string& bytes, mode_t mode = 0755) const {
    std::filesystem::create_directories(std::filesystem::path(in(name)).parent_path());
    std::ofstream(in(name), std::ios::binary) << bytes;
    ::chmod(in(name).c_str(), mode);
    return in(name);
  }
  static std::string read(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // What a program noted in the file "note" of its working folder, once it has ended.
  std::string noteOf(const ProcessStart& start) {
    const GameProcess process = processes.start(start);
    EXPECT_EQ(processes.wait(process.process, 5000), ProcessWait::ended);
    processes.close(process.process);
    processes.close(process.thread);
    return read(start.directory + "/note");
  }

  const QTemporaryDir folder;
  const std::ptrdiff_t before = descriptors();
  PosixProcesses processes;
};

// As small as a Windows program can be for who only looks at its headers.
std::string windowsProgram(char lowFlags, char highFlags) {
  return "MZ" + std::string(0x3A, '\0') + "\x40" + std::string(3, '\0') + "PE" + std::string(20, '\0') + lowFlags +
         highFlags;
}

TEST_F(PosixProcessesTest, a_program_gets_arguments_folder_and_priority_and_nothing_else_of_ours) {
  make("game/haloce.exe",
       "#!/bin/sh\nexec > note\nprintf '[%s]\\n' \"$@\"\npwd -P\nnice\n"
       "ls /proc/self/fd | wc -l\ngrep 'Sig[BI]' /proc/self/status\nread line || echo end\n");
  std::filesystem::create_directory(in("game/run"));
  const auto here = std::filesystem::current_path();
  std::filesystem::current_path(in("game"));
  const int usual = ::getpriority(PRIO_PROCESS, 0);
  const int expected = ::setpriority(PRIO_PROCESS, 0, -10) == 0 ? -10 : usual;
  ::setpriority(PRIO_PROCESS, 0, usual);
  sigset_t some;
  sigemptyset(&some);
  sigaddset(&some, SIGTERM);
  ::sigprocmask(SIG_BLOCK, &some, nullptr);
  const auto handler = std::signal(SIGPIPE, SIG_IGN);
  const int ours = ::dup(0);
  EXPECT_EQ(noteOf({.application = "./haloce.exe",
                    .commandLine = std::string(" -a \"b c\" \xE4\0 x", 14),
                    .directory = in("game/run/"),
                    .priority = ProcessPriority::high}),
            "[-a]\n[b c]\n[\xC3\xA4]\n" + std::filesystem::canonical(in("game/run")).string() + "\n" +
                std::to_string(expected) + "\n4\nSigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\nend\n");
  ::close(ours);
  std::filesystem::current_path(here);
  std::signal(SIGPIPE, handler);
  ::sigprocmask(SIG_UNBLOCK, &some, nullptr);
}

TEST_F(PosixProcessesTest, a_program_that_cannot_run_fails_at_once_with_its_reason) {
  ::mkfifo(in("pipe").c_str(), 0755);
  const struct {
    std::string application;
    std::string directory;
    int failure;
  } cases[] = {
      {in("missing"), "/", 53},
      {in(""), "/", 70},
      {in("pipe"), "/", 70},
      {make("noright", "#!/bin/sh\n", 0644), "/", 70},
      {make("text", "just text\n"), "/", 193},
      {make("empty.exe", ""), "/", 193},
      {make("script", "#!/no/such/shell\n"), "/", 53},
      {make("broken.exe", "MZ, and nothing behind it"), "/", 193},
      {make("library.exe", windowsProgram(2, 0x20)), "/", 193},
      {"/bin/true", in("nowhere"), 76},
      {std::string("/bin/true\0x", 11), "/", 53},
  };
  for (const auto& each : cases) {
    const ProcessStart start{.application = each.application, .directory = each.directory};
    EXPECT_EQ(failureOf([&] { processes.start(start); }), each.failure) << each.application;
  }
}

TEST_F(PosixProcessesTest, a_windows_program_is_run_by_wine_in_the_prefix_of_its_path) {
  const std::string path = std::getenv("PATH");
  const ProcessStart game{.application = make("my prefix/Drive_C/Halo/haloce.exe", windowsProgram(2, 0), 0644),
                          .commandLine = "-console",
                          .directory = in("")};
  ::setenv("PATH", in("bin").c_str(), 1);
  ::setenv("WINEPREFIX", "/of/the/user", 1);
  EXPECT_EQ(failureOf([&] { processes.start(game); }), 53);
  make("bin/wine", "#!/bin/sh\necho \"$*\" > note\n/bin/grep -z ^WINEPREFIX= /proc/$$/environ >> note\n");
  EXPECT_EQ(noteOf(game), game.application + " -console\nWINEPREFIX=" + in("my prefix") + '\0');
  const ProcessStart loose{.application = make("tool.exe", windowsProgram(2, 0), 0644), .directory = in("")};
  EXPECT_EQ(noteOf(loose), loose.application + "\nWINEPREFIX=/of/the/user" + '\0');
  ::setenv("PATH", path.c_str(), 1);
  ::unsetenv("WINEPREFIX");
}

TEST_F(PosixProcessesTest, a_program_is_nobodys_child_here_and_goes_on_when_its_starter_has_ended) {
  ::mkfifo(in("asked").c_str(), 0600);
  ::mkfifo(in("answer").c_str(), 0600);
  const ProcessStart start{.application = make("program", "#!/bin/sh\nread line < asked\necho \"$line!\" > answer\n"),
                           .directory = in("")};
  const pid_t starter = ::fork();
  if (starter == 0) {
    processes.start(start);
    ::_exit(::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD ? 0 : 1);
  }
  int status = -1;
  ::waitpid(starter, &status, 0);
  EXPECT_EQ(status, 0) << "it has a child";
  std::ofstream(in("asked")) << "there\n";
  EXPECT_EQ(read(in("answer")), "there!\n");
}

}  // namespace
}  // namespace vantrel
