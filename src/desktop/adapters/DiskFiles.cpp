#include "desktop/adapters/DiskFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::uint64_t largestFile = 256 * 1024 * 1024;  // bytes; no store is near that
constexpr mode_t newFileMode = 0600;                      // favorites hold passwords

Failure failureOf(int error) {
  switch (error) {
    case ENOENT:
      return failures::fileNotFound();
    case ENOTDIR:
      return failures::pathNotFound();
    case ENOSPC:
    case EDQUOT:
      return failures::diskFull();
    default:
      return failures::fileAccess();
  }
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) {
      ::close(number_);
    }
  }
  int get() const { return number_; }

 private:
  int number_;
};

// 0, or the system's error.
int writeAll(int descriptor, const std::string& bytes) {
  std::size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t count = ::write(descriptor, bytes.data() + written, bytes.size() - written);
    if (count < 0 && errno != EINTR) {
      return errno;
    }
    written += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  return 0;
}

bool isLocked(const Descriptor& file, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 && ::fstat(file.get(), &opened) == 0 &&
         ::stat(path.c_str(), &named) == 0 && opened.st_ino == named.st_ino;
}

// Writes `bytes` to the new file and gives it the name of the target; 0, or the system's error. Another copy of the
// program may be writing the same store: then the new file is locked, or has its final name by now.
int replaceBy(const std::string& fresh, const std::string& target, mode_t mode, const std::string& bytes) {
  const Descriptor file(::open(fresh.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, mode));
  if (file.get() < 0) {
    return errno;
  }
  if (!isLocked(file, fresh)) {
    return EWOULDBLOCK;
  }
  int error = ::ftruncate(file.get(), 0) != 0 || ::fchmod(file.get(), mode) != 0 ? errno : 0;
  error = error != 0 ? error : writeAll(file.get(), bytes);
  if (error == 0 && (::fsync(file.get()) != 0 || ::rename(fresh.c_str(), target.c_str()) != 0)) {
    error = errno;
  }
  if (error != 0) {
    ::unlink(fresh.c_str());
  }
  return error;
}

// The file behind a link, so that a replacement leaves the link in place.
std::string realPath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path real = std::filesystem::canonical(path, error);
  return error ? path : real.string();
}

}  // namespace

std::string DiskFiles::read(const std::string& path) const {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (file.get() < 0 || ::fstat(file.get(), &status) != 0) {
    throw failureOf(errno);
  }
  if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > largestFile) {
    throw failures::fileAccess();
  }
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t count = ::read(file.get(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno != EINTR) {
      throw failures::fileAccess();
    }
    if (count == 0) {
      break;
    }
    filled += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  bytes.resize(filled);
  return bytes;
}

void DiskFiles::replace(const std::string& path, const std::string& bytes) {
  const std::string target = realPath(path);
  struct stat status {};
  const bool exists = ::stat(target.c_str(), &status) == 0;
  // A file without the right to be written stays as it is, though a rename could take its place.
  if (exists && (!S_ISREG(status.st_mode) || (status.st_mode & 0222) == 0 || ::access(target.c_str(), W_OK) != 0)) {
    throw failures::fileAccess();
  }
  const std::string fresh = target + ".new";
  const int error = replaceBy(fresh, target, exists ? status.st_mode & 07777 : newFileMode, bytes);
  if (error != 0) {
    throw error == ENOENT ? failures::pathNotFound() : failureOf(error);
  }
  // The new name is on the disk once its folder is.
  const Descriptor folder(
      ::open(std::filesystem::path(target).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.get() >= 0) {
    ::fsync(folder.get());
  }
}

void DiskFiles::remove(const std::string& path) {
  if (::unlink(path.c_str()) != 0) {
    throw failureOf(errno);
  }
}

void DiskFiles::rename(const std::string& from, const std::string& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) {
    throw failureOf(errno);
  }
}

std::optional<FileStamp> DiskFiles::stamp(const std::string& path) const {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return FileStamp{static_cast<std::uint64_t>(status.st_size),
                   static_cast<std::int64_t>(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec,
                   static_cast<std::uint64_t>(status.st_ino)};
}

std::optional<std::string> DiskFiles::find(const std::string& path) const {
  namespace fs = std::filesystem;
  std::error_code error;
  if (fs::exists(path, error)) {
    return path;
  }
  fs::path found;
  for (const fs::path& part : fs::path(path)) {
    const fs::path exact = found / part;
    if (part.empty() || fs::exists(exact, error)) {
      found = exact;
      continue;
    }
    const std::string wanted = lowerCase(part.string());
    const fs::path folder = found.empty() ? fs::path(".") : found;
    bool matched = false;
    for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
      if (lowerCase(entry->path().filename().string()) == wanted) {
        found /= entry->path().filename();
        matched = true;
        break;
      }
    }
    if (!matched) {
      return std::nullopt;
    }
  }
  return found.string();
}

std::vector<FolderEntry> DiskFiles::list(const std::string& folder) const {
  std::error_code error;
  std::vector<FolderEntry> entries;
  auto entry = std::filesystem::directory_iterator(folder, error);
  if (error) {
    const bool missing = error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
    throw missing ? failures::pathNotFound() : failures::fileAccess();
  }
  while (entry != std::filesystem::directory_iterator()) {
    std::error_code gone;
    if (entry->is_regular_file(gone)) {
      const std::string name = entry->path().filename().string();
      const bool forWine = lowerCase(name).ends_with(".exe");
      entries.push_back({name, forWine || ::access(entry->path().c_str(), X_OK) == 0});
    }
    entry.increment(error);
    if (error) {
      throw failures::fileAccess();
    }
  }
  std::sort(entries.begin(), entries.end(), [](const FolderEntry& one, const FolderEntry& other) {
    return std::pair(lowerCase(one.name), one.name) < std::pair(lowerCase(other.name), other.name);
  });
  return entries;
}

}  // namespace vantrel
