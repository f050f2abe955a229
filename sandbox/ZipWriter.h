#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::sandbox {

/// A member of an archive, with the lies that are told of it.
struct ZipEntry {
  std::string name;
  std::string bytes = {};
  std::uint32_t toldSize = 0;  ///< instead of the size; 0: the truth
  bool hasWrongCrc = false;
  bool isLink = false;       ///< to what the bytes say
  bool isEncrypted = false;  ///< or says so
};

/// A zip archive whose members are stored as they are.
std::string zipOf(const std::vector<ZipEntry>& entries);

}  // namespace vantrel::sandbox
