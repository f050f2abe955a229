#include "core/WineRegistryFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vantrel {
namespace {

char asciiLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool sameText(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

// One line of the file, which it is taken from; without its end.
std::string_view takeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) {
    line.remove_suffix(1);
  }
  return line;
}

int hexDigit(char character) {
  const char lower = asciiLower(character);
  return lower >= '0' && lower <= '9' ? lower - '0' : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// What a character of the file stands for, in UTF-8.
struct Character {
  std::array<char, 4> bytes{};
  std::size_t size = 0;

  void add(std::uint32_t byte) { bytes[size++] = static_cast<char>(byte); }
  std::string_view text() const { return {bytes.data(), size}; }
};

Character utf8(std::uint32_t point) {
  Character character;
  if (point < 0x80) {
    character.add(point);
    return character;
  }
  const int further = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
  constexpr std::array<std::uint32_t, 4> marks = {0, 0xC0, 0xE0, 0xF0};
  character.add(marks[static_cast<std::size_t>(further)] | point >> (6 * further));
  for (int i = further - 1; i >= 0; --i) {
    character.add(0x80 | (point >> (6 * i) & 0x3F));
  }
  return character;
}

// Takes "x" and one to four digits, a unit of UTF-16, from the text behind a backslash.
std::uint32_t takeUnit(std::string_view& text) {
  text.remove_prefix(1);
  std::uint32_t unit = 0;
  for (int i = 0; i < 4 && !text.empty() && hexDigit(text.front()) >= 0; ++i) {
    unit = unit * 16 + static_cast<std::uint32_t>(hexDigit(text.front()));
    text.remove_prefix(1);
  }
  return unit;
}

// One or two units; half of a pair becomes the character for what cannot be shown.
std::uint32_t takePoint(std::string_view& text) {
  const std::uint32_t unit = takeUnit(text);
  if (unit >= 0xD800 && unit < 0xDC00 && text.starts_with("\\x")) {
    std::string_view behind = text.substr(1);
    const std::uint32_t second = takeUnit(behind);
    if (second >= 0xDC00 && second < 0xE000) {
      text = behind;
      return 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00);
    }
  }
  return unit >= 0xD800 && unit < 0xE000 ? 0xFFFD : unit;
}

char meaningOf(char escaped) {
  switch (escaped) {
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    case '0':
      return '\0';
    default:
      return escaped;
  }
}

// Takes one character, or the escape that stands for one, from a text that is not empty.
Character takeCharacter(std::string_view& text) {
  Character character;
  char first = text.front();
  text.remove_prefix(1);
  if (first == '\\' && !text.empty()) {
    if (text.front() == 'x' && text.size() > 1 && hexDigit(text[1]) >= 0) {
      return utf8(takePoint(text));
    }
    first = meaningOf(text.front());
    text.remove_prefix(1);
  }
  character.add(static_cast<unsigned char>(first));
  return character;
}

// The text up to `end`, with its escapes resolved; `text` is left behind that character. Nothing when it does not come.
std::optional<std::string> takeEscaped(std::string_view& text, char end) {
  std::string result;
  while (!text.empty() && text.front() != end) {
    result += takeCharacter(text).text();
  }
  if (text.empty()) {
    return std::nullopt;
  }
  text.remove_prefix(1);
  return result;
}

// True when the text up to `end` stands for `wanted`. Sections are many, so none is copied to be compared.
bool standsFor(std::string_view text, char end, std::string_view wanted) {
  while (!text.empty() && text.front() != end) {
    const Character character = takeCharacter(text);
    if (!sameText(character.text(), wanted.substr(0, character.size))) {
      return false;
    }
    wanted.remove_prefix(character.size);
  }
  return !text.empty() && wanted.empty();
}

// The text that a line gives to the name: "name"="text", "name"=str(2):"text", @="text".
std::optional<std::string> valueOn(std::string_view line, std::string_view name) {
  if (line.starts_with('@')) {
    line.remove_prefix(1);
    if (!name.empty()) {
      return std::nullopt;
    }
  } else {
    line.remove_prefix(1);
    const std::optional<std::string> own = takeEscaped(line, '"');
    if (!own || name.empty() || !sameText(*own, name)) {
      return std::nullopt;
    }
  }
  for (const std::string_view start : {std::string_view("=\""), std::string_view("=str(2):\"")}) {
    if (line.starts_with(start)) {
      line.remove_prefix(start.size());
      std::optional<std::string> value = takeEscaped(line, '"');
      if (value) {
        value->resize(std::min(value->size(), value->find('\0')));
      }
      return value;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> wineRegistryValue(std::string_view file, std::string_view key, std::string_view name) {
  bool inKey = false;
  while (!file.empty()) {
    std::string_view line = takeLine(file);
    if (line.starts_with('[')) {
      line.remove_prefix(1);
      inKey = standsFor(line, ']', key);
    } else if (inKey && (line.starts_with('"') || line.starts_with('@'))) {
      if (std::optional<std::string> value = valueOn(line, name)) {
        return value;
      }
    }
  }
  return std::nullopt;
}

}  // namespace vantrel
