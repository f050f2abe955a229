// The folder that the program keeps its files in.
#pragma once

#include <string>
#include <string_view>

#include "platform/Files.h"

namespace vantrel {

class AppFolder {
 public:
  // `AppDir`: path of the folder, with no separator at its end. `files` must outlive this.
  AppFolder(const Files& files, std::string AppDir) : files_(files), appDir_(std::move(AppDir)) {}

  // Path of a file in the folder. `name` begins with a backslash, and backslashes part the folders in it.
  std::string path(std::string_view name) const;

  // True when the file exists in the folder.
  bool AppFileExists(std::string_view name) const { return files_.stamp(path(name)).has_value(); }

 private:
  const Files& files_;
  std::string appDir_;
};

// True when a file or folder of that path exists; capitals do not matter.
inline bool PathExists(const Files& files, const std::string& path) {
  return files.find(path).has_value();
}

}  // namespace vantrel
