#include "support/FakeFiles.h"

#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {

void FakeFiles::require(const std::string& path) const {
  if (folders_.contains(path)) {
    throw failures::fileAccess();
  }
  if (!files_.contains(path)) {
    throw failures::fileNotFound();
  }
}

std::string FakeFiles::read(const std::string& path) const {
  require(path);
  if (unreadable.contains(path)) {
    throw failures::fileAccess();
  }
  return files_.at(path).bytes;
}

void FakeFiles::put(const std::string& path, const std::string& bytes, std::uint64_t identity) {
  files_[path] = {bytes, {bytes.size(), ++lastChange_, identity}};
}

void FakeFiles::replace(const std::string& path, const std::string& bytes) {
  if (!folders_.contains(path.substr(0, path.rfind(pathSeparator)))) {
    throw failures::pathNotFound();
  }
  if (folders_.contains(path) || unwritable.contains(path)) {
    throw failures::fileAccess();
  }
  if (full) {
    throw failures::diskFull();
  }
  put(path, bytes, ++lastIdentity_);
  replacedBytes += bytes.size();
  ++replacements;
}

void FakeFiles::changeOutside(const std::string& path, const std::string& bytes) {
  const auto found = files_.find(path);
  put(path, bytes, found == files_.end() ? ++lastIdentity_ : found->second.stamp.identity);
}

void FakeFiles::remove(const std::string& path) {
  require(path);
  files_.erase(path);
}

void FakeFiles::rename(const std::string& from, const std::string& to) {
  require(from);
  if (folders_.contains(to) || unwritable.contains(to)) {
    throw failures::fileAccess();
  }
  if (from != to) {
    files_[to] = files_.at(from);
    files_.erase(from);
  }
}

std::optional<FileStamp> FakeFiles::stamp(const std::string& path) const {
  const auto found = files_.find(path);
  return found == files_.end() ? std::nullopt : std::optional(found->second.stamp);
}

std::string FakeFiles::bytes(const std::string& path) const {
  const auto found = files_.find(path);
  return found == files_.end() ? std::string() : found->second.bytes;
}

std::optional<std::string> FakeFiles::find(const std::string& path) const {
  std::set<std::string> paths = folders_;
  for (const auto& [name, file] : files_) {
    paths.insert(name);
  }
  if (paths.contains(path)) {
    return path;
  }
  for (const std::string& candidate : paths) {
    if (lowerCase(candidate) == lowerCase(path)) {
      return candidate;
    }
  }
  return std::nullopt;
}

}  // namespace vantrel
