#include "core/Text.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr bool isBlank(char character) {
  return character == ' ' || character == '\t';
}

// The pairs outside ASCII that do not lie 32 apart.
struct CasePair {
  unsigned char upper;
  unsigned char lower;
};
constexpr CasePair oddPairs[] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};

constexpr bool hasRegularPair(unsigned char upper) {
  return (upper >= 'A' && upper <= 'Z') || (upper >= 0xC0 && upper <= 0xDE && upper != 0xD7);
}

}  // namespace

char lowerCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (hasRegularPair(byte)) {
    return static_cast<char>(byte + 32);
  }
  for (const CasePair& pair : oddPairs) {
    if (byte == pair.upper) {
      return static_cast<char>(pair.lower);
    }
  }
  return character;
}

char upperCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 32 && hasRegularPair(static_cast<unsigned char>(byte - 32))) {
    return static_cast<char>(byte - 32);
  }
  for (const CasePair& pair : oddPairs) {
    if (byte == pair.lower) {
      return static_cast<char>(pair.upper);
    }
  }
  return character;
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) { return lowerCase(character); });
  return lower;
}

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char character) { return upperCase(character); });
  return upper;
}

std::string capitalizeWords(std::string_view text) {
  std::string cased(text);
  bool startsWord = true;
  for (char& character : cased) {
    character = startsWord ? upperCase(character) : lowerCase(character);
    startsWord = isBlank(character);
  }
  return cased;
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator, start)) {
    parts.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

std::string_view trimSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from)) {
    replaced.append(text.substr(0, at)).append(to);
    text.remove_prefix(at + from.size());
  }
  return replaced.append(text);
}

std::string replaceUpTo(std::size_t most, std::string_view text, std::string_view from, std::string_view to) {
  std::size_t count = 0;
  for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from, at + from.size())) {
    ++count;
  }
  const bool grows = to.size() > from.size();
  const std::size_t room = most > text.size() ? most - text.size() : 0;
  if (count == 0 || (grows && count > room / (to.size() - from.size()))) {
    return std::string(text);
  }
  return replaceAll(text, from, to);
}

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

bool IsDottedQuad(std::string_view text) {
  return std::count(text.begin(), text.end(), '.') >= 3;
}

}  // namespace vantrel
