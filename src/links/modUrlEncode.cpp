#include "links/modUrlEncode.h"

#include <string_view>

#include "core/Text.h"

namespace vantrel {

std::string URLEncode(std::string& text) {
  if (text.find("%SERVER_") != std::string::npos) {
    return {};
  }
  return text = std::string(trimSpaces(replaceAll(text, " ", "%20")));
}

std::string URLDecode(std::string& text) {
  return text = std::string(trimSpaces(replaceAll(text, "%20", " ")));
}

}  // namespace vantrel
