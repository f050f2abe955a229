#include "sandbox/WebFiles.h"

#include <sys/stat.h>

#include <algorithm>
#include <iterator>

namespace vantrel::sandbox {
namespace {

std::string keyOf(const std::string& path) {
  for (const std::string folder : kMirrorFolders) {
    if (path.starts_with(folder)) {
      return kMirrorFolders[0] + path.substr(folder.size());
    }
  }
  return path;
}

// A file on the disk as it is just now.
WebFile current(WebFile file) {
  if (!file.diskPath.empty()) {
    struct stat status {};
    file.isThere = stat(file.diskPath.c_str(), &status) == 0;
    file.size = static_cast<std::uint64_t>(status.st_size);
    file.changed = status.st_mtime;
  }
  return file;
}

}  // namespace

void WebFiles::put(const std::string& path, std::string bytes, std::time_t changed) {
  const auto shared = std::make_shared<const std::string>(std::move(bytes));
  const std::lock_guard lock(mutex_);
  files_[keyOf(path)] = {shared, "", shared->size(), changed, true};
}

void WebFiles::serve(const std::string& path, const std::string& diskPath) {
  const std::lock_guard lock(mutex_);
  files_[keyOf(path)] = {nullptr, diskPath, 0, 0, true};
}

void WebFiles::announce(const std::string& path, std::uint64_t size, std::time_t changed) {
  const std::lock_guard lock(mutex_);
  files_[keyOf(path)] = {nullptr, "", size, changed, false};
}

std::optional<WebFile> WebFiles::file(const std::string& path) const {
  const std::lock_guard lock(mutex_);
  const auto found = files_.find(keyOf(path));
  if (found == files_.end()) {
    return std::nullopt;
  }
  const WebFile file = current(found->second);
  return file.isThere ? std::optional(file) : std::nullopt;
}

std::optional<std::vector<WebEntry>> WebFiles::folder(const std::string& path) const {
  const std::string key = keyOf(path);
  std::vector<WebEntry> entries;
  const std::lock_guard lock(mutex_);
  for (auto file = files_.lower_bound(key); file != files_.end() && file->first.starts_with(key); ++file) {
    const std::string rest = file->first.substr(key.size());
    const std::size_t slash = rest.find('/');
    const WebFile now = current(file->second);
    WebEntry entry{rest.substr(0, slash), slash != std::string::npos, now.size, now.changed};
    if (!entry.isFolder || entries.empty() || !entries.back().isFolder || entries.back().name != entry.name) {
      entries.push_back(std::move(entry));
    }
  }
  if (entries.empty() && std::ranges::find(kMirrorFolders, path) == std::end(kMirrorFolders)) {
    return std::nullopt;
  }
  std::ranges::sort(entries, {}, &WebEntry::name);
  std::stable_partition(entries.begin(), entries.end(), [](const WebEntry& entry) { return entry.isFolder; });
  return entries;
}

void WebFiles::setFault(const std::string& path, const WebFault& fault) {
  const std::lock_guard lock(mutex_);
  if (fault.kind == WebFaultKind::None) {
    faults_.erase(path);
  } else {
    faults_[path] = fault;
  }
}

WebFault WebFiles::fault(const std::string& path) const {
  const std::lock_guard lock(mutex_);
  for (const std::string& affected : {path, std::string()}) {
    if (const auto found = faults_.find(affected); found != faults_.end()) {
      return found->second;
    }
  }
  return {};
}

}  // namespace vantrel::sandbox
