// Text of single bytes, which stand for Windows code page 1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// One character in the other case; a character without one comes back as it is.
char lowerCase(char character);
char upperCase(char character);

std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);

// Each word, as split by blanks and TABs, with a capital first character and the rest in lower case.
std::string capitalizeWords(std::string_view text);

// The parts between the separators: one more than there are separators, so an empty text has one empty part.
std::vector<std::string> split(std::string_view text, char separator);

// Without the blanks at both ends.
std::string_view trimSpaces(std::string_view text);

// Each `from` (not empty), from left to right, replaced; what that brings together stays.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);
// The same, unless the text would grow beyond `most` bytes: it then stays as it is.
std::string replaceUpTo(std::size_t most, std::string_view text, std::string_view from, std::string_view to);

// Without the blanks and TABs at both ends.
std::string_view trimBlanks(std::string_view text);

// True when the text has at least four parts between dots. The parts are not looked at.
bool IsDottedQuad(std::string_view text);

}  // namespace vantrel
