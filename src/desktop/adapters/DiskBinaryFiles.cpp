#include "desktop/adapters/DiskBinaryFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::size_t gathered = 256 * 1024;  // bytes, before the system is asked to write
constexpr mode_t fileMode = 0644;

class DiskBinaryFile : public BinaryFile {
 public:
  explicit DiskBinaryFile(int descriptor) : descriptor_(descriptor) { bytes_.reserve(gathered); }
  DiskBinaryFile(const DiskBinaryFile&) = delete;
  DiskBinaryFile& operator=(const DiskBinaryFile&) = delete;
  ~DiskBinaryFile() override {
    if (descriptor_ >= 0) {
      writeGathered();
      ::close(descriptor_);
    }
  }

  void write(std::string_view bytes) override {
    if (bytes_.size() + bytes.size() > gathered) {
      throwIf(writeGathered());
    }
    bytes_ += bytes;
  }

  void close() override {
    if (descriptor_ < 0) {
      return;
    }
    const int error = writeGathered();
    const bool isClosed = ::close(std::exchange(descriptor_, -1)) == 0;
    throwIf(error != 0 || isClosed ? error : errno);
  }

 private:
  static void throwIf(int error) {
    if (error == ENOSPC || error == EDQUOT) {
      throw failures::diskFull();
    }
    if (error != 0) {
      throw failures::fileAccess();
    }
  }

  // 0, or the system's error; what could be written before is.
  int writeGathered() {
    std::string_view left = bytes_;
    int error = 0;
    while (!left.empty() && error == 0) {
      const ssize_t count = ::write(descriptor_, left.data(), left.size());
      if (count >= 0) {
        left.remove_prefix(static_cast<std::size_t>(count));
      } else if (errno != EINTR) {
        error = errno;
      }
    }
    bytes_.clear();
    return error;
  }

  int descriptor_;
  std::string bytes_;
};

}  // namespace

// What is no ordinary file, a pipe for one, might never let go of who opens it.
std::unique_ptr<BinaryFile> DiskBinaryFiles::openForBinary(const std::string& path, std::uint64_t position) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, fileMode);
  if (descriptor < 0) {
    throw errno == ENOENT || errno == ENOTDIR ? failures::pathNotFound() : failures::fileAccess();
  }
  auto file = std::make_unique<DiskBinaryFile>(descriptor);
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
      ::lseek(descriptor, static_cast<off_t>(position), SEEK_SET) < 0) {
    throw failures::fileAccess();
  }
  return file;
}

bool DiskBinaryFiles::makeSureDirectoryPathExists(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return std::filesystem::is_directory(folder, error);
}

}  // namespace vantrel
