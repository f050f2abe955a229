// How a Windows program takes its command line apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The arguments of a command line that begins behind the program's name. Blanks and TABs part them outside double
// quotes; a quote behind an odd number of backslashes is a character, two quotes inside a quoted part are one, and a
// quote that nothing closes reaches to the end.
std::vector<std::string> windowsArguments(std::string_view commandLine);

}  // namespace vantrel
