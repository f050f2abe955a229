// Large files on the disk.
#pragma once

#include "platform/BinaryFiles.h"

namespace vantrel {

class DiskBinaryFiles : public BinaryFiles {
 public:
  std::unique_ptr<BinaryFile> openForBinary(const std::string& path, std::uint64_t position) override;
  bool makeSureDirectoryPathExists(const std::string& folder) override;
};

}  // namespace vantrel
