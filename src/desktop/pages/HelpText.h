// What the help beside the settings says.
#pragma once

#include <string>

namespace vantrel {

// Paragraphs, one a line. A line that ends with ":" is the heading of those below it.
std::string helpText();

}  // namespace vantrel
