// The text of a Wine prefix's registry file, as far as texts in it are looked up.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

// The text value of a key, in UTF-8; an empty name is the key's default value. `key` has single backslashes and, like
// the name, matches without regard to case. Nothing when there is no such value or it is no text. One pass over the
// file, whatever it holds.
std::optional<std::string> wineRegistryValue(std::string_view file, std::string_view key, std::string_view name);

}  // namespace vantrel
