// Any bytes can be searched for any key and name, and what is found does not depend on capitals nor on what stands
// before the key. A value behind the bytes is found as it was meant.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "core/WineRegistryFile.h"

using vantrel::wineRegistryValue;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::optional<std::string> path = wineRegistryValue(bytes, "Software\\Key", "Path");
  if (path != wineRegistryValue(bytes, "SOFTWARE\\KEY", "pATH") ||
      path != wineRegistryValue("WINE REGISTRY Version 2\n\n[Other]\n\"Path\"=\"x\"\n[]\n" + std::string(bytes),
                                "Software\\Key", "Path") ||
      (path && path->find('\0') != std::string::npos)) {
    std::abort();
  }
  wineRegistryValue(bytes, bytes.substr(0, size / 2), bytes.substr(size / 2));
  wineRegistryValue(bytes, "", "");
  const std::string behind = std::string(bytes) + "\n[Behind\\\\Them]\n\"Path\"=str(2):\"C:\\\\H\\x61lo\"\n";
  if (wineRegistryValue(behind, "Behind\\Them", "Path").value_or("") != "C:\\Halo" &&
      wineRegistryValue(bytes, "Behind\\Them", "Path") == std::nullopt) {
    std::abort();
  }
  return 0;
}
