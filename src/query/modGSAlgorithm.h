// The answer to a master server's challenge.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

// The validation string, eight characters, of a challenge under a key: six bytes each, of which any further ones are
// not looked at. Throws failure 9 when either is shorter.
std::string GSValidate(std::string_view challenge, std::string_view key);

// A value of 0 to 63 as a character of the validation string's own alphabet.
char EncodeChar(std::uint8_t value);

}  // namespace vantrel
