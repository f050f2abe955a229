#include "sandbox/ZipWriter.h"

#include <array>

namespace vantrel::sandbox {
namespace {

constexpr std::uint16_t kEncryptedFlag = 1;
constexpr std::uint16_t kUtf8Flag = 0x800;
constexpr std::uint16_t kVersion = 20;
constexpr std::uint16_t kMadeByUnix = 0x0314;
constexpr std::uint16_t kTime = 0x6000;  // 12:00
constexpr std::uint16_t kDate = 0x5821;  // 1 January 2024
constexpr std::uint32_t kFileMode = 0100644U << 16;
constexpr std::uint32_t kLinkMode = 0120777U << 16;

std::array<std::uint32_t, 256> crcTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0);
    }
    table.at(byte) = crc;
  }
  return table;
}

std::uint32_t crcOf(std::string_view bytes) {
  static const std::array<std::uint32_t, 256> table = crcTable();
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    crc = (crc >> 8) ^ table.at((crc ^ static_cast<unsigned char>(byte)) & 0xFF);
  }
  return ~crc;
}

void add16(std::string& out, std::uint32_t number) {
  out += static_cast<char>(number & 0xFF);
  out += static_cast<char>((number >> 8) & 0xFF);
}

void add32(std::string& out, std::uint64_t number) {
  add16(out, static_cast<std::uint32_t>(number & 0xFFFF));
  add16(out, static_cast<std::uint32_t>((number >> 16) & 0xFFFF));
}

// What the header in front of a member and its line in the list at the end have in common.
void addCommon(std::string& out, const ZipEntry& entry) {
  add16(out, kVersion);
  add16(out, kUtf8Flag | (entry.isEncrypted ? kEncryptedFlag : 0));
  add16(out, 0);
  add16(out, kTime);
  add16(out, kDate);
  add32(out, crcOf(entry.bytes) ^ (entry.hasWrongCrc ? 1 : 0));
  add32(out, entry.bytes.size());
  add32(out, entry.toldSize != 0 ? entry.toldSize : entry.bytes.size());
  add16(out, static_cast<std::uint32_t>(entry.name.size()));
  add16(out, 0);
}

}  // namespace

std::string zipOf(const std::vector<ZipEntry>& entries) {
  std::string archive;
  std::string list;
  for (const ZipEntry& entry : entries) {
    list += "PK\1\2";
    add16(list, kMadeByUnix);
    addCommon(list, entry);
    add16(list, 0);
    add16(list, 0);
    add16(list, 0);
    add32(list, entry.isLink ? kLinkMode : kFileMode);
    add32(list, archive.size());
    list += entry.name;
    archive += "PK\3\4";
    addCommon(archive, entry);
    archive += entry.name;
    archive += entry.bytes;
  }
  const std::size_t start = archive.size();
  archive += list;
  archive += "PK\5\6";
  add32(archive, 0);
  add16(archive, static_cast<std::uint32_t>(entries.size()));
  add16(archive, static_cast<std::uint32_t>(entries.size()));
  add32(archive, list.size());
  add32(archive, start);
  add16(archive, 0);
  return archive;
}

}  // namespace vantrel::sandbox
