// The characters that a page names instead of writing them.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// What the text between "&" and ";" stands for, in code page 1252. Empty for a name or a code that there is none of,
// and for "quot".
std::string decodeEntity(std::string_view name);

}  // namespace vantrel
