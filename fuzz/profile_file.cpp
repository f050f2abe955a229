// A store of any bytes comes back to the byte, and a value that is set can be read in it, also after it was written.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/ProfileFile.h"

using vantrel::ProfileFile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ProfileFile file(bytes);
  if (file.bytes() != bytes || file.size() != size) {
    std::abort();
  }
  std::string value(bytes.substr(0, std::min<std::size_t>(size, 300)));
  file.set("FAVECOUNT", "Favorites", "7");
  file.set("1", "name", value);
  std::replace_if(
      value.begin(), value.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
  const ProfileFile again(file.bytes());
  for (const ProfileFile* const each : {static_cast<const ProfileFile*>(&file), &again}) {
    if (each->value("favecount", "FAVORITES") != "7" || each->value("1", "NAME") != value ||
        each->size() != each->bytes().size()) {
      std::abort();
    }
  }
  return 0;
}
