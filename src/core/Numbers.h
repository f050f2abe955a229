// Numbers that travel as decimal text, and the whole numbers of 16 bits that counts and rows are, of 32 that flags are.
#pragma once

#include <cstdint>
#include <string_view>

namespace vantrel {

// True for: blanks, a sign or none, digits, a point and digits or none, blanks.
bool isNumeric(std::string_view text);

// The value of a numeric text. Throws failure 13 for any other text.
double toNumber(std::string_view text);

// A number as a 16-bit signed whole number, a half going to the even neighbour. Throws failure 6 outside its range.
std::int16_t toInteger16(double number);

// The value of a numeric text, likewise. Throws failure 13 for any other text, 6 outside the range.
std::int16_t toInteger16(std::string_view text);

// The value of a numeric text as a 32-bit signed whole number, rounded likewise. Throws failure 13 for any other text,
// 6 outside the range.
std::int32_t toInteger32(std::string_view text);

// The value of a numeric text as a port. Throws failure 13 for any other text, 6 unless it is 0 to 65535.
int toPort(std::string_view text);

// REQUIRES: the sum is meant to be a 16-bit number. Throws failure 6 when it is not in range.
inline std::int16_t addInteger16(std::int16_t left, int right) {
  return toInteger16(static_cast<double>(left) + right);
}

}  // namespace vantrel
