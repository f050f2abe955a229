// The text of a tag, that is what stands between "<" and ">". Letters count without regard to case, and a blank is the
// character of code 32 only.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// Without any blank, wherever it stands.
std::string stripBlanks(std::string_view text);

bool tagIs(std::string_view tag, std::string_view name);
bool tagStartsWith(std::string_view tag, std::string_view name);

// True for the bare name and for the name with a blank and attributes behind it.
bool tagIsNamed(std::string_view tag, std::string_view name);

}  // namespace vantrel
