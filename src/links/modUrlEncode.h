// Names in links: blanks travel as "%20", and nothing else is changed.
#pragma once

#include <string>

namespace vantrel {

// The text with its blanks replaced and none at its ends; the argument becomes the same. A text with a placeholder of
// the server report in it gives nothing, and stays.
std::string URLEncode(std::string& text);

// The other way round.
std::string URLDecode(std::string& text);

}  // namespace vantrel
