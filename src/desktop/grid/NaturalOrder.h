// The order in which people expect texts: "9 ms" before "80 ms", capitals beside small letters.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// The sort key of a text in Windows code page 1252: texts stand in natural order when their keys stand in byte order,
// so that a key is made once and compared often. A run of digits counts as one number of any length, leading zeros
// aside; letters count without regard to case, control characters not at all; a text without any letter or digit ("",
// "...") comes after all others. Texts that differ in nothing else have the same key.
std::string naturalKey(std::string_view text);

}  // namespace vantrel
