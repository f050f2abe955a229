#include "desktop/adapters/ProgramStart.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/Text.h"
#include "core/WindowsArguments.h"
#include "desktop/text/Cp1252.h"
#include "platform/Failure.h"

extern char** environ;  // NOLINT(readability-redundant-declaration): no header has it everywhere

namespace vantrel {
namespace {

// Of a Windows program.
constexpr off_t headerPlace = 0x3C;  // where its second header begins, in four bytes
constexpr off_t flagsPlace = 22;     // in the second header
constexpr int programFlag = 0x02;    // in the low byte of the flags
constexpr int libraryFlag = 0x20;    // in the high one

class OpenFile {
 public:
  // Neither a pipe nor a device holds this up.
  explicit OpenFile(const std::string& path) : number_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (number_ >= 0) {
      ::close(number_);
    }
  }

  template <std::size_t size>
  bool holds(off_t place, const std::array<unsigned char, size>& bytes) const {
    std::array<unsigned char, size> read{};
    return take(place, read) && read == bytes;
  }
  template <std::size_t size>
  bool take(off_t place, std::array<unsigned char, size>& bytes) const {
    return number_ >= 0 && ::pread(number_, bytes.data(), size, place) == static_cast<ssize_t>(size);
  }

 private:
  int number_;
};

enum class ProgramKind { native, windows };

ProgramKind kindOf(const std::string& path) {
  const OpenFile file(path);
  if (!file.holds(0, std::array<unsigned char, 2>{'M', 'Z'})) {
    return ProgramKind::native;
  }
  std::array<unsigned char, 4> place{};
  if (file.take(headerPlace, place)) {
    const off_t header = place[0] | place[1] << 8 | place[2] << 16 | off_t{place[3]} << 24;
    std::array<unsigned char, 2> flags{};
    if (file.holds(header, std::array<unsigned char, 4>{'P', 'E', 0, 0}) && file.take(header + flagsPlace, flags) &&
        (flags[0] & programFlag) != 0 && (flags[1] & libraryFlag) == 0) {
      return ProgramKind::windows;
    }
  }
  throw failures::notAProgram();
}

void requireProgram(const std::string& path) {
  struct stat status {};
  if (path.find('\0') != std::string::npos) {
    throw failures::fileNotFound();
  }
  if (::stat(path.c_str(), &status) != 0) {
    throw errno == EACCES ? failures::permissionDenied() : failures::fileNotFound();
  }
  if (!S_ISREG(status.st_mode)) {
    throw failures::permissionDenied();
  }
}

void requireFolder(const std::string& path) {
  struct stat status {};
  if (path.find('\0') != std::string::npos || ::stat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
    throw failures::pathNotFound();
  }
}

// A folder that PATH names by a relative path would be another one behind the change of folders.
std::string findWine() {
  const char* const path = std::getenv("PATH");
  for (const std::string& folder : split(path == nullptr ? "" : path, ':')) {
    const std::string file = folder + "/wine";
    struct stat status {};
    if (folder.starts_with('/') && ::access(file.c_str(), X_OK) == 0 && ::stat(file.c_str(), &status) == 0 &&
        S_ISREG(status.st_mode)) {
      return file;
    }
  }
  throw failures::fileNotFound();
}

// The folder above "drive_c" in a path; nothing when it has none.
std::optional<std::string> prefixOf(const std::string& path) {
  const std::size_t drive = lowerCase(path).find("/drive_c/");
  return drive == std::string::npos || drive == 0 ? std::nullopt : std::optional(path.substr(0, drive));
}

std::vector<std::string> environmentFor(const std::optional<std::string>& prefix) {
  std::vector<std::string> all;
  for (char** each = environ; each != nullptr && *each != nullptr; ++each) {
    if (!prefix || std::strncmp(*each, "WINEPREFIX=", 11) != 0) {
      all.emplace_back(*each);
    }
  }
  if (prefix) {
    all.push_back("WINEPREFIX=" + *prefix);
  }
  return all;
}

}  // namespace

ProgramStart prepareStart(const ProcessStart& start) {
  requireProgram(start.application);
  requireFolder(start.directory);
  const bool forWine = kindOf(start.application) == ProgramKind::windows;
  // A relative path is one from this program's folder, and the start changes to another.
  std::error_code error;
  const std::string application = std::filesystem::absolute(start.application, error).string();
  ProgramStart prepared;
  prepared.file = forWine ? findWine() : application;
  prepared.environment = environmentFor(forWine ? prefixOf(application) : std::nullopt);
  if (forWine) {
    prepared.arguments.push_back("wine");
  }
  prepared.arguments.push_back(application);
  // What stands behind a zero byte could not be handed over.
  const std::string line = start.commandLine.substr(0, start.commandLine.find('\0'));
  for (const std::string& argument : windowsArguments(line)) {
    prepared.arguments.push_back(fromCp1252(argument).toUtf8().toStdString());
  }
  return prepared;
}

}  // namespace vantrel
