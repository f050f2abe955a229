// Folders that are made when they are missing.
#pragma once

#include <string>

#include "platform/BinaryFiles.h"
#include "platform/Files.h"

namespace vantrel {

// Makes a folder with all its missing parents; true when it is there afterwards.
inline bool MakeFolderPath(BinaryFiles& disk, const std::string& path) {
  return disk.makeSureDirectoryPathExists(path.ends_with(pathSeparator) ? path : path + pathSeparator);
}

}  // namespace vantrel
