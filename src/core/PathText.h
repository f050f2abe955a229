// A path as the user is to read it.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// A path in the system's own bytes as a text in code page 1252. A character that the code page does not have becomes a
// question mark; bytes that are no UTF-8 stay as they are.
std::string pathText(std::string_view path);

}  // namespace vantrel
