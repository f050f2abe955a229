#include "sandbox/MapArchives.h"

#include <algorithm>
#include <string>

#include "sandbox/Names.h"
#include "sandbox/ZipWriter.h"

namespace vantrel::sandbox {
namespace {

constexpr std::time_t kChanged = 1'704'110'400;  // 1 January 2024, noon
constexpr std::time_t kDay = 86'400;

// Bytes that hardly repeat, behind a head that tells whose they are.
std::string mapOf(const std::string& name, std::size_t size) {
  std::string bytes = "map " + name + "\n";
  std::uint64_t state = 0x9E3779B97F4A7C15U ^ name.size();
  while (bytes.size() < size) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    bytes += static_cast<char>(state >> 56);
  }
  return bytes.substr(0, std::max<std::size_t>(size, 1));
}

}  // namespace

void putMaps(WebFiles& files, std::size_t mapBytes) {
  std::time_t changed = kChanged;
  for (const std::string& name : customMaps()) {
    files.put("/maps/" + name + ".zip", zipOf({{.name = name + ".map", .bytes = mapOf(name, mapBytes)}}), changed);
    changed += kDay;
  }
  files.put("/maps/readme.txt", "Maps to play on.\n", changed);
}

}  // namespace vantrel::sandbox
