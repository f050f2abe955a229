// The real file system.
#pragma once

#include "platform/Files.h"

namespace vantrel {

class DiskFiles : public Files {
 public:
  std::string read(const std::string& path) const override;
  void replace(const std::string& path, const std::string& bytes) override;
  void remove(const std::string& path) override;
  void rename(const std::string& from, const std::string& to) override;
  std::optional<FileStamp> stamp(const std::string& path) const override;
  std::optional<std::string> find(const std::string& path) const override;
  std::vector<FolderEntry> list(const std::string& folder) const override;
};

}  // namespace vantrel
