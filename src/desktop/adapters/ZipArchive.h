// A zip archive that is read. What it says of its members is checked against what comes out of them.
#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct zip;
struct zip_file;

namespace vantrel {

struct ZipMember {
  std::uint64_t index = 0;
  std::string name;  // as stored, in UTF-8
  std::uint64_t size = 0;
  std::uint64_t packedSize = 0;
  std::time_t time = 0;
  std::uint32_t crc = 0;
  int method = 0;
  bool isEncrypted = false;
  bool isLink = false;
};

class ZipReader;

class ZipArchive {
 public:
  // Throws ZipTrouble when it is not there or is no archive.
  explicit ZipArchive(const std::string& path);

  const std::vector<ZipMember>& members() const { return members_; }
  // Throws ZipTrouble when the member cannot be read. `password`: empty for none.
  std::unique_ptr<ZipReader> open(const ZipMember& member, const std::string& password) const;

 private:
  struct Close {
    void operator()(zip* archive) const;
  };

  void readMember(std::uint64_t index);

  std::unique_ptr<zip, Close> archive_;
  std::vector<ZipMember> members_;
};

class ZipReader {
 public:
  ZipReader(zip_file* file, std::uint64_t size) : file_(file), left_(size) {}

  // Replaces `block` with the next bytes; false at the end, which is where size and CRC are known to be right. Throws
  // ZipTrouble when the member is damaged, or longer than it says.
  bool read(std::string& block);

 private:
  struct Close {
    void operator()(zip_file* file) const;
  };

  std::unique_ptr<zip_file, Close> file_;
  std::uint64_t left_;  // bytes that it may still have
};

// "Stored", "Deflated" or the number.
std::string methodName(int method);

}  // namespace vantrel
