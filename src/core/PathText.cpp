#include "core/PathText.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace vantrel {

#ifdef _WIN32

std::string pathText(std::string_view path) {
  return std::string(path);
}

#else

namespace {

// What the code page has in 0x80 to 0x9F; 0 where it has nothing.
constexpr std::uint32_t specials[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char byteOf(std::uint32_t character) {
  if (character >= 0xA0 && character <= 0xFF) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(std::begin(specials), std::end(specials), character);
  return found == std::end(specials) ? '?' : static_cast<char>(0x80 + (found - std::begin(specials)));
}

// How many bytes the character that begins with `first` has; 0 when none begins so.
std::size_t lengthOf(unsigned char first) {
  return first >= 0xF0 && first <= 0xF4 ? 4 : first >= 0xE0 ? (first < 0xF0 ? 3U : 0U) : first >= 0xC2 ? 2 : 0;
}

}  // namespace

std::string pathText(std::string_view path) {
  std::string text;
  for (std::size_t at = 0; at < path.size();) {
    const auto first = static_cast<unsigned char>(path[at]);
    const std::size_t length = first < 0x80 ? 0 : lengthOf(first);
    const std::string_view rest = path.substr(at + 1, length == 0 ? 0 : length - 1);
    const auto follows = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    if (length == 0 || rest.size() + 1 < length || !std::all_of(rest.begin(), rest.end(), follows)) {
      text += path[at++];
      continue;
    }
    std::uint32_t character = first & (0xFFU >> (length + 1));
    for (const char byte : rest) {
      character = character << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    text += byteOf(character);
    at += length;
  }
  return text;
}

#endif

}  // namespace vantrel
