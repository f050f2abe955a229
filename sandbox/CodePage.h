#pragma once

#include <string>
#include <string_view>

namespace vantrel::sandbox {

/// Turns bytes of Windows code page 1252 into UTF-8 that fits on one line of a terminal: a control byte becomes its
/// control picture, and a byte without a meaning in the code page becomes the replacement character.
std::string visibleUtf8(std::string_view codePageText);

}  // namespace vantrel::sandbox
