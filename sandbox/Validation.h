#pragma once

#include <string>
#include <string_view>

namespace vantrel::sandbox {

/// The eight characters with which a client proves to the master server that it knows the six-character game key.
/// Only the first six characters of `challenge` count; a shorter challenge or key gives an empty text.
///
/// This is the master server's own implementation. It shares nothing with the client's, so that an error in one of
/// them shows in the conversation.
std::string validationString(std::string_view challenge, std::string_view key);

}  // namespace vantrel::sandbox
