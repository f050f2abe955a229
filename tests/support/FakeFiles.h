// Files in memory, on a disk that the test can fill, lock and change behind the program's back.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/Files.h"

namespace vantrel {

class FakeFiles : public Files {
 public:
  std::string read(const std::string& path) const override;
  void replace(const std::string& path, const std::string& bytes) override;
  void remove(const std::string& path) override;
  void rename(const std::string& from, const std::string& to) override;
  std::optional<FileStamp> stamp(const std::string& path) const override;
  std::optional<std::string> find(const std::string& path) const override;

  void makeFolder(const std::string& path) { folders_.insert(path); }
  // What another program does: `bytes` become the file's content.
  void changeOutside(const std::string& path, const std::string& bytes);
  // The content, also of an unreadable file; empty when there is none.
  std::string bytes(const std::string& path) const;

  bool full = false;
  std::set<std::string> unreadable;
  std::set<std::string> unwritable;
  std::size_t replacedBytes = 0;  // written by `replace`
  int replacements = 0;

 private:
  struct File {
    std::string bytes;
    FileStamp stamp;
  };
  void require(const std::string& path) const;
  void put(const std::string& path, const std::string& bytes, std::uint64_t identity);

  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::int64_t lastChange_ = 0;
  std::uint64_t lastIdentity_ = 0;
};

}  // namespace vantrel
