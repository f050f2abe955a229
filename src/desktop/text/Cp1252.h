// Between the program's texts, single bytes in Windows code page 1252, and the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vantrel {

// Each byte is one character. The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D) become the
// control characters of the same number, as Windows does it, and so come back unchanged.
QString fromCp1252(std::string_view text);

// A character that the code page does not have becomes '?', also one that takes two units of the QString.
std::string toCp1252(const QString& text);

}  // namespace vantrel
