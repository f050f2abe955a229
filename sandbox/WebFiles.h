#pragma once

#include <cstdint>
#include <ctime>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "sandbox/WebFault.h"

namespace vantrel::sandbox {

/// The folders that show one and the same files, each in the manner of another web server.
constexpr const char* kMirrorFolders[] = {"/maps/", "/apache/", "/apache-pre/", "/lighttpd/"};

/// A file of the web mirror: bytes in memory or a file on the disk.
struct WebFile {
  std::shared_ptr<const std::string> bytes;  ///< null: the file is on the disk
  std::string diskPath;
  std::uint64_t size = 0;
  std::time_t changed = 0;
  bool isThere = true;  ///< or it is in the list only, and whoever asks for it gets none
};

/// One line of a folder.
struct WebEntry {
  std::string name;
  bool isFolder = false;
  std::uint64_t size = 0;
  std::time_t changed = 0;
};

/// What the web mirror has and what is wrong with it just now. Paths begin with a slash, and a file that is put into
/// one of the mirror's folders is in all of them. Every method may be called from any thread.
class WebFiles {
 public:
  /// A file of these bytes, instead of any earlier one.
  void put(const std::string& path, std::string bytes, std::time_t changed);
  /// The file on the disk as it is when somebody asks for it.
  void serve(const std::string& path, const std::string& diskPath);
  /// A file that is in the list of its folder, and nowhere else.
  void announce(const std::string& path, std::uint64_t size, std::time_t changed);

  std::optional<WebFile> file(const std::string& path) const;
  /// What is in a folder, by name, folders first; nothing if there is no such folder. `path` ends with a slash.
  std::optional<std::vector<WebEntry>> folder(const std::string& path) const;

  /// From now on requests for exactly this path fail in this way; "": those for every path that has no fault of its
  /// own.
  void setFault(const std::string& path, const WebFault& fault);
  WebFault fault(const std::string& path) const;

 private:
  mutable std::mutex mutex_;
  std::map<std::string, WebFile> files_;
  std::map<std::string, WebFault> faults_;
};

}  // namespace vantrel::sandbox
