// Files in memory, on a disk that the test can fill, lock and change behind the program's back.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "core/Text.h"
#include "platform/Failure.h"
#include "platform/Files.h"

namespace vantrel {

class FakeFiles : public Files {
 public:
  std::string read(const std::string& path) const override {
    require(path);
    if (unreadable.contains(path)) {
      throw failures::fileAccess();
    }
    return files_.at(path).bytes;
  }
  void replace(const std::string& path, const std::string& bytes) override {
    requireNoFolder(path);
    if (!folders_.contains(path.substr(0, path.rfind(pathSeparator)))) {
      throw failures::pathNotFound();
    }
    if (full) {
      throw failures::diskFull();
    }
    files_.erase(path);
    changeOutside(path, bytes);
    replacedBytes += bytes.size();
    ++replacements;
  }
  void remove(const std::string& path) override {
    require(path);
    files_.erase(path);
  }
  void rename(const std::string& from, const std::string& to) override {
    require(from);
    requireNoFolder(to);
    files_[to] = files_.at(from);
    files_.erase(from);
  }
  std::optional<FileStamp> stamp(const std::string& path) const override {
    return files_.contains(path) ? std::optional(files_.at(path).stamp) : std::nullopt;
  }
  std::optional<std::string> find(const std::string& path) const override {
    std::set<std::string> paths = folders_;
    for (const auto& [name, file] : files_) {
      paths.insert(name);
    }
    const auto isNamed = [&](const std::string& each) { return lowerCase(each) == lowerCase(path); };
    const auto found = paths.contains(path) ? paths.find(path) : std::find_if(paths.begin(), paths.end(), isNamed);
    return found == paths.end() ? std::nullopt : std::optional(*found);
  }

  std::vector<FolderEntry> list(const std::string& folder) const override {
    if (!folders_.contains(folder)) {
      throw failures::pathNotFound();
    }
    std::map<std::pair<std::string, std::string>, FolderEntry> entries;
    for (const auto& [path, file] : files_) {
      const std::string name = path.substr(path.rfind(pathSeparator) + 1);
      if (path == folder + pathSeparator + name) {
        const bool canRun = lowerCase(name).ends_with(".exe") || programs.contains(path);
        entries[{lowerCase(name), name}] = {name, canRun};
      }
    }
    std::vector<FolderEntry> listed;
    for (const auto& [key, entry] : entries) {
      listed.push_back(entry);
    }
    return listed;
  }

  void makeFolder(const std::string& path) { folders_.insert(path); }
  // What another program does: `bytes` become the content of the file, which stays the same file if there is one.
  void changeOutside(const std::string& path, const std::string& bytes) {
    ++lastChange_;
    const std::uint64_t identity = files_.contains(path) ? files_[path].stamp.identity : std::uint64_t{lastChange_};
    files_[path] = {bytes, {bytes.size(), static_cast<std::int64_t>(lastChange_), identity}};
  }
  // The content, also of an unreadable file; empty when there is none.
  std::string bytes(const std::string& path) const { return stamp(path) ? files_.at(path).bytes : std::string(); }

  bool full = false;
  std::set<std::string> unreadable;
  std::set<std::string> programs;  // files with the right to be executed
  std::size_t replacedBytes = 0;   // written by `replace`
  int replacements = 0;

 private:
  struct File {
    std::string bytes;
    FileStamp stamp;
  };
  void requireNoFolder(const std::string& path) const {
    if (folders_.contains(path)) {
      throw failures::fileAccess();
    }
  }
  void require(const std::string& path) const {
    requireNoFolder(path);
    if (!files_.contains(path)) {
      throw failures::fileNotFound();
    }
  }

  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::uint32_t lastChange_ = 0;
};

}  // namespace vantrel
