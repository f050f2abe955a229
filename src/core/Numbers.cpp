#include "core/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/Text.h"
#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

// The number of digits that the text begins with.
std::size_t countDigits(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && isDigit(text[count])) {
    ++count;
  }
  return count;
}

// A half goes to the even neighbour.
template <class Whole>
Whole toWhole(double number) {
  const double whole = std::nearbyint(number);
  if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max())) {
    throw failures::overflow();
  }
  return static_cast<Whole>(whole);
}

}  // namespace

bool isNumeric(std::string_view text) {
  text = trimBlanks(text);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    text.remove_prefix(1);
  }
  const std::size_t whole = countDigits(text);
  if (whole == 0) {
    return false;
  }
  text.remove_prefix(whole);
  if (text.empty()) {
    return true;
  }
  return text.front() == '.' && countDigits(text.substr(1)) == text.size() - 1;
}

double toNumber(std::string_view text) {
  if (!isNumeric(text)) {
    throw failures::typeMismatch();
  }
  text = trimBlanks(text);
  if (text.front() == '+') {
    text.remove_prefix(1);
  }
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) {
    throw failures::overflow();
  }
  return number;
}

std::int16_t toInteger16(double number) {
  return toWhole<std::int16_t>(number);
}

std::int16_t toInteger16(std::string_view text) {
  return toInteger16(toNumber(text));
}

std::int32_t toInteger32(std::string_view text) {
  return toWhole<std::int32_t>(toNumber(text));
}

int toPort(std::string_view text) {
  return toWhole<std::uint16_t>(toNumber(text));
}

}  // namespace vantrel
