#include "sandbox/CodePage.h"

#include <array>

namespace vantrel::sandbox {
namespace {

constexpr char16_t kNone = 0xFFFD;
constexpr std::array<char16_t, 32> kFrom0x80 = {0x20AC, kNone,  0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, kNone,  0x017D, kNone,
                                                kNone,  0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, kNone,  0x017E, 0x0178};

unsigned visibleCharacter(unsigned byte) {
  if (byte < 0x20) {
    return 0x2400 + byte;
  }
  if (byte == 0x7F) {
    return 0x2421;
  }
  return byte >= 0x80 && byte < 0xA0 ? kFrom0x80[byte - 0x80] : byte;
}

}  // namespace

std::string visibleUtf8(std::string_view codePageText) {
  std::string result;
  for (const char character : codePageText) {
    const unsigned code = visibleCharacter(static_cast<unsigned char>(character));
    if (code < 0x80) {
      result += static_cast<char>(code);
    } else if (code < 0x800) {
      result += static_cast<char>(0xC0 | code >> 6);
      result += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      result += static_cast<char>(0xE0 | code >> 12);
      result += static_cast<char>(0x80 | (code >> 6 & 0x3F));
      result += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return result;
}

}  // namespace vantrel::sandbox
