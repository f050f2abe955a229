#include "export/Tags.h"

#include <algorithm>

#include "core/Text.h"

namespace vantrel {

std::string stripBlanks(std::string_view text) {
  std::string stripped(text);
  std::erase(stripped, ' ');
  return stripped;
}

bool tagIs(std::string_view tag, std::string_view name) {
  return tag.size() == name.size() && tagStartsWith(tag, name);
}

bool tagStartsWith(std::string_view tag, std::string_view name) {
  const auto isSame = [](char left, char right) { return upperCase(left) == right; };
  return tag.size() >= name.size() && std::equal(name.begin(), name.end(), tag.begin(),
                                                 [&](char wanted, char given) { return isSame(given, wanted); });
}

bool tagIsNamed(std::string_view tag, std::string_view name) {
  return tagStartsWith(tag, name) && (tag.size() == name.size() || tag[name.size()] == ' ');
}

}  // namespace vantrel
