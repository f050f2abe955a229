#include "desktop/adapters/ZipTarget.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cstdio>
#include <random>

#include "desktop/adapters/ZipNames.h"

namespace vantrel {
namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr mode_t fileMode = 0666;    // less what the user's mask takes
constexpr mode_t folderMode = 0777;  // likewise
constexpr int tries = 100;           // for a name that nobody has
// A map that is there without its bytes after the power failed would count as installed. A small file is no map, and
// ten thousand of them would wait for the disk ten thousand times.
constexpr std::int64_t smallestSynced = 1 << 20;
// The disk writes while the rest is still unpacked, so that hardly anything is left to wait for at the end.
constexpr std::int64_t sendEvery = 8 << 20;

std::string sixLetters() {
  static constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  std::random_device random;
  std::string six;
  while (six.size() < 6) {
    six += letters[random() % letters.size()];
  }
  return six;
}

std::optional<struct stat> statusOf(const Descriptor& folder, const std::string& name) {
  struct stat status {};
  if (::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
    return std::nullopt;
  }
  return status;
}

// Renames within the root or from it into one of its folders, never over something. Not every file system can do both
// at once; on the others there is a moment between the look and the rename.
int renameIfFree(int from, const std::string& name, const Descriptor& to, const std::string& newName) {
  if (::renameat2(from, name.c_str(), to.get(), newName.c_str(), RENAME_NOREPLACE) == 0) {
    return 0;
  }
  if (errno != EINVAL && errno != ENOSYS) {
    return errno;
  }
  if (statusOf(to, newName)) {
    return EEXIST;
  }
  return ::renameat(from, name.c_str(), to.get(), newName.c_str()) == 0 ? 0 : errno;
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) {
    ::close(number_);
  }
}

ZipPartFile::ZipPartFile(const Descriptor& folder) : folder_(folder) {
  for (int attempt = 0; attempt < tries; ++attempt) {
    name_ = partName(sixLetters());
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file(::openat(folder_.get(), name_.c_str(), flags, fileMode));
    if (!file.isOpen() && errno != EEXIST) {
      throw targetTrouble("the folder cannot be written to", errno);
    }
    if (file.isOpen()) {
      file_.swap(file);
      if (isAlone()) {
        return;
      }
    }
  }
  throw targetTrouble("the folder cannot be written to", EEXIST);
}

ZipPartFile::~ZipPartFile() {
  if (!isPlaced_) {
    ::unlinkat(folder_.get(), name_.c_str(), 0);
  }
}

// Another copy may have taken the new file for a left-over before it was locked.
bool ZipPartFile::isAlone() {
  struct stat status {};
  ::flock(file_.get(), LOCK_EX | LOCK_NB);
  return ::fstat(file_.get(), &status) == 0 && status.st_nlink > 0;
}

void ZipPartFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file_.get(), bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) {
      throw targetTrouble("it could not be written", errno);
    }
    const std::size_t written = count > 0 ? static_cast<std::size_t>(count) : 0;
    bytes.remove_prefix(written);
    size_ += static_cast<std::int64_t>(written);
  }
  if (size_ - sent_ >= sendEvery) {
    ::sync_file_range(file_.get(), sent_, size_ - sent_, SYNC_FILE_RANGE_WRITE);
    sent_ = size_;
  }
}

void ZipPartFile::finish(std::time_t time) {
  const struct timespec times[2] = {{time, 0}, {time, 0}};
  ::futimens(file_.get(), times);
  if (size_ >= smallestSynced && ::fsync(file_.get()) != 0 && errno != EINVAL) {
    throw targetTrouble("it could not be written", errno);
  }
}

ZipTarget::ZipTarget(const std::string& folder) : root_(::open(folder.c_str(), folderFlags)) {
  if (!root_.isOpen()) {
    throw targetTrouble("the folder " + folder + " cannot be opened", errno);
  }
}

void ZipTarget::removeLeftOvers() {
  for (const auto& [folded, name] : namesIn("", root_)) {
    if (!isPartName(name)) {
      continue;
    }
    const Descriptor file(::openat(root_.get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (file.isOpen() && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
        ::flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
      ::unlinkat(root_.get(), name.c_str(), 0);
    }
  }
}

std::uint64_t ZipTarget::freeBytes() const {
  struct statvfs system {};
  if (::fstatvfs(root_.get(), &system) != 0) {
    return UINT64_MAX;  // A disk that does not tell is found out when it is full.
  }
  return static_cast<std::uint64_t>(system.f_bavail) * system.f_frsize;
}

ZipTarget::Names& ZipTarget::namesIn(const std::string& key, const Descriptor& folder) {
  const auto [found, isNew] = names_.try_emplace(key);
  if (isNew) {
    // A descriptor of its own, as the reading closes it and moves its position.
    DIR* const reading = ::fdopendir(::openat(folder.get(), ".", folderFlags));
    while (const dirent* const entry = reading != nullptr ? ::readdir(reading) : nullptr) {
      found->second.emplace(foldedName(entry->d_name), entry->d_name);
    }
    if (reading != nullptr) {
      ::closedir(reading);
    }
  }
  return found->second;
}

// The folder of the first `count` parts; a closed descriptor when one of them is missing and stays so.
Descriptor ZipTarget::open(const Parts& parts, std::size_t count, Missing missing) {
  Descriptor folder(::openat(root_.get(), ".", folderFlags));
  std::string key;
  for (std::size_t i = 0; i < count && folder.isOpen(); ++i) {
    Names& names = namesIn(key, folder);
    const auto [found, isNew] = names.try_emplace(foldedName(parts[i]), parts[i]);
    if (isNew && (missing == Missing::leave || ::mkdirat(folder.get(), parts[i].c_str(), folderMode) != 0)) {
      names.erase(found);
      if (missing == Missing::leave) {
        return Descriptor();
      }
      throw targetTrouble("its folder cannot be made", errno);
    }
    key += "/" + found->first;
    Descriptor next(::openat(folder.get(), found->second.c_str(), folderFlags | O_NOFOLLOW));
    if (!next.isOpen() && missing == Missing::make) {
      throw ZipTrouble{ZipCode::passedOver, "something that is no folder has the name of its folder"};
    }
    folder.swap(next);
  }
  return folder;
}

std::optional<ZipTarget::Found> ZipTarget::find(const Parts& place) {
  const Descriptor folder = open(place, place.size() - 1, Missing::leave);
  if (!folder.isOpen()) {
    return std::nullopt;
  }
  std::string key;
  for (std::size_t i = 0; i + 1 < place.size(); ++i) {
    key += "/" + foldedName(place[i]);
  }
  std::string name = place.back();
  auto status = statusOf(folder, name);
  if (!status) {
    const Names& names = namesIn(key, folder);
    const auto other = names.find(foldedName(name));
    if (other == names.end()) {
      return std::nullopt;
    }
    name = other->second;
    status = statusOf(folder, name);
  }
  return status ? std::optional(Found{name, status->st_mtim.tv_sec}) : std::nullopt;
}

bool ZipTarget::place(ZipPartFile& file, const Parts& place, const std::optional<Found>& found, IfThere ifThere) {
  const Descriptor folder = open(place, place.size() - 1, Missing::make);
  const std::string& name = found ? found->name : place.back();
  int error = 0;
  if (ifThere == IfThere::keep) {
    error = renameIfFree(root_.get(), file.name_, folder, name);
  } else if (::renameat(root_.get(), file.name_.c_str(), folder.get(), name.c_str()) != 0) {
    error = errno;
  }
  if (error == EEXIST && ifThere == IfThere::keep) {
    return false;
  }
  if (error != 0) {
    throw ZipTrouble{ZipCode::target,
                     "its place is taken by something else: " + std::generic_category().message(error)};
  }
  file.isPlaced_ = true;
  return true;
}

}  // namespace vantrel
