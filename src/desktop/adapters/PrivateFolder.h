// A folder of the user's own.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace vantrel {

// Makes the folder and its parents, open to the user alone, where it is missing. A failure shows when it is used.
inline void makePrivateFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
  ::mkdir(path.c_str(), 0700);
}

}  // namespace vantrel
