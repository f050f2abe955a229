#include "query/modGSAlgorithm.h"

#include <array>
#include <numeric>
#include <utility>

#include "platform/Failure.h"

namespace vantrel {
namespace {

constexpr std::size_t length = 6;  // of challenge and key, in bytes

using Table = std::array<std::uint8_t, 256>;
using Block = std::array<std::uint8_t, length>;

constexpr std::uint8_t byteOf(int value) {
  return static_cast<std::uint8_t>(value & 0xFF);
}

Block firstBytes(std::string_view text) {
  if (text.size() < length) {
    throw failures::subscriptOutOfRange();
  }
  Block block{};
  for (std::size_t i = 0; i < length; ++i) {
    block[i] = static_cast<std::uint8_t>(text[i]);
  }
  return block;
}

Table scheduleKey(const Block& key) {
  Table table{};
  std::iota(table.begin(), table.end(), std::uint8_t{0});
  std::uint8_t x = 0;
  for (std::size_t i = 0; i < table.size(); ++i) {
    x = byteOf(x + key[i % length] + table[i]);
    std::swap(table[i], table[x]);
  }
  return table;
}

// A step of the cipher moves by the plain byte, where the usual one would move by one.
void encrypt(Block& block, Table table) {
  std::uint8_t y = 0;
  std::uint8_t z = 0;
  for (std::uint8_t& byte : block) {
    y = byteOf(byte + y + 1);
    z = byteOf(table[y] + z);
    std::swap(table[y], table[z]);
    byte ^= table[byteOf(table[y] + table[z])];
  }
}

}  // namespace

char EncodeChar(std::uint8_t value) {
  // The small i stands for 34 and, where others have a plus sign, for 62.
  constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789i/";
  return alphabet[value & 63];
}

std::string GSValidate(std::string_view challenge, std::string_view key) {
  Block block = firstBytes(challenge);
  encrypt(block, scheduleKey(firstBytes(key)));
  std::string text;
  for (std::size_t i = 0; i < length; i += 3) {
    const std::uint8_t a = block[i];
    const std::uint8_t b = block[i + 1];
    const std::uint8_t c = block[i + 2];
    text += EncodeChar(byteOf(a >> 2));
    text += EncodeChar(byteOf(((a & 3) << 4) + (b >> 4)));
    text += EncodeChar(byteOf(((b & 15) << 2) + (c >> 6)));
    text += EncodeChar(byteOf(c & 63));
  }
  return text;
}

}  // namespace vantrel
