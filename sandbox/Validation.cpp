#include "sandbox/Validation.h"

#include <array>
#include <cstdint>
#include <numeric>
#include <utility>

namespace vantrel::sandbox {
namespace {

constexpr std::size_t kLength = 6;
// The letter i stands a second time where the usual alphabet has a plus sign.
constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789i/";

using Table = std::array<std::uint8_t, 256>;

std::uint8_t byteAt(std::string_view text, std::size_t position) {
  return static_cast<std::uint8_t>(text[position]);
}

Table keyedTable(std::string_view key) {
  Table table;
  std::iota(table.begin(), table.end(), std::uint8_t{0});
  std::uint8_t walker = 0;
  for (std::size_t i = 0; i < table.size(); ++i) {
    walker = static_cast<std::uint8_t>(walker + byteAt(key, i % kLength) + table[i]);
    std::swap(table[i], table[walker]);
  }
  return table;
}

}  // namespace

std::string validationString(std::string_view challenge, std::string_view key) {
  if (challenge.size() < kLength || key.size() < kLength) {
    return {};
  }
  Table table = keyedTable(key);
  std::uint8_t first = 0;
  std::uint8_t second = 0;
  std::string result;
  std::uint32_t group = 0;
  for (std::size_t i = 0; i < kLength; ++i) {
    // The plain character drives the walk; an ordinary stream cipher would count up by one here.
    first = static_cast<std::uint8_t>(first + byteAt(challenge, i) + 1);
    second = static_cast<std::uint8_t>(second + table[first]);
    std::swap(table[first], table[second]);
    const auto mask = table[static_cast<std::uint8_t>(table[first] + table[second])];
    group = group << 8 | static_cast<std::uint32_t>(byteAt(challenge, i) ^ mask);
    if (i % 3 == 2) {
      for (const int shift : {18, 12, 6, 0}) {
        result += kAlphabet[group >> shift & 63];
      }
      group = 0;
    }
  }
  return result;
}

}  // namespace vantrel::sandbox
