#include "desktop/grid/NaturalOrder.h"

#include <cstddef>
#include <cstdint>

namespace vantrel {

namespace {

constexpr char markWithWords = 1;
constexpr char markWithoutWords = 2;
constexpr unsigned char longNumber = 0xFF;

bool isDigit(unsigned char c) {
  return c >= '0' && c <= '9';
}

unsigned char toLower(unsigned char c) {
  const bool capital = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
  if (capital) {
    return static_cast<unsigned char>(c + 0x20);
  }
  switch (c) {
    case 0x8A:
    case 0x8C:
    case 0x8E:
      return static_cast<unsigned char>(c + 0x10);
    case 0x9F:
      return 0xFF;
    default:
      return c;
  }
}

// Of a letter that is small already.
bool isLetter(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 0xDF && c != 0xF7) || c == 0x9A || c == 0x9C || c == 0x9E;
}

// Control characters are not shown, and so do not count.
bool isControl(unsigned char c) {
  return c < 0x20 || c == 0x7F || c == 0x81 || c == 0x8D || c == 0x8F || c == 0x90 || c == 0x9D;
}

// A number's key is the mark '0', which keeps it between the punctuation and the letters, the count of its digits and
// the digits: of two numbers without leading zeros the longer is the larger.
void appendNumber(std::string& key, std::string_view digits) {
  key += '0';
  if (digits.size() < longNumber) {
    key += static_cast<char>(digits.size());
  } else {
    key += static_cast<char>(longNumber);
    const auto count = static_cast<std::uint32_t>(digits.size());
    for (const int shift : {24, 16, 8, 0}) {
      key += static_cast<char>((count >> shift) & 0xFF);
    }
  }
  key += digits;
}

}  // namespace

std::string naturalKey(std::string_view text) {
  std::string key(1, markWithoutWords);
  key.reserve(text.size() + 8);
  for (std::size_t i = 0; i < text.size();) {
    const unsigned char c = toLower(static_cast<unsigned char>(text[i]));
    if (!isDigit(c)) {
      if (!isControl(c)) {
        key += static_cast<char>(c);
      }
      key[0] = isLetter(c) ? markWithWords : key[0];
      ++i;
      continue;
    }
    std::size_t end = i;
    while (end < text.size() && isDigit(static_cast<unsigned char>(text[end]))) {
      ++end;
    }
    while (i < end && text[i] == '0') {
      ++i;
    }
    appendNumber(key, text.substr(i, end - i));
    key[0] = markWithWords;
    i = end;
  }
  return key;
}

}  // namespace vantrel
