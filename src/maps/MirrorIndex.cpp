#include "maps/MirrorIndex.h"

#include <algorithm>
#include <string_view>

namespace vantrel {
namespace {

constexpr std::string_view zip = ".zip";

std::string withoutLineEnds(std::string_view text) {
  std::string line(text);
  std::erase_if(line, [](char character) { return character == '\r' || character == '\n'; });
  return line;
}

// Once from left to right: what the removal brings together stays.
std::string withoutZip(std::string_view word) {
  std::string name;
  for (std::size_t found = word.find(zip); found != std::string_view::npos; found = word.find(zip)) {
    name += word.substr(0, found);
    word.remove_prefix(found + zip.size());
  }
  return name.append(word);
}

// The text up to the next blank, which leaves `rest` with it.
std::string_view takeWord(std::string_view& rest) {
  const std::size_t length = std::min(rest.find(' '), rest.size());
  const std::string_view word = rest.substr(0, length);
  rest.remove_prefix(std::min(length + 1, rest.size()));
  return word;
}

}  // namespace

bool indexHasMap(const std::string& plainText, const std::string& someMap) {
  const std::string line = withoutLineEnds(plainText);
  const std::string wanted = someMap + std::string(zip);
  std::string_view rest = line;
  while (!rest.empty()) {
    if (takeWord(rest) == wanted) {
      return true;
    }
  }
  return false;
}

std::vector<std::string> indexMaps(const std::string& plainText) {
  std::vector<std::string> maps;
  std::string_view rest = plainText;
  takeWord(rest);
  while (!rest.empty()) {
    const std::string_view word = takeWord(rest);
    if (word.find(zip) != std::string_view::npos) {
      maps.push_back(withoutZip(withoutLineEnds(word)));
    }
  }
  return maps;
}

}  // namespace vantrel
