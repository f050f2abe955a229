// The game rules that a server packs into the two numbers of its player flags, as the words that people read.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::modHaloFlags {

// One field of a number of flags: where it stands and the word for each of its values.
struct FlagField {
  const char* label;
  int lowestBit;
  int width;  // in bits
  std::span<const char* const> words;

  // The field's value in a number of flags; 0 to 2^width - 1.
  int value(std::int32_t flags) const;
  // Empty for a value that has no word.
  std::string word(int value) const;
};

// The fields of the player flags and of the vehicle flags, each in the order in which they are shown.
std::span<const FlagField> playerFields();
std::span<const FlagField> vehicleFields();
// The one that the game summary shows too.
const FlagField& teamKilling();

struct Flags {
  std::int32_t player = 0;
  std::int32_t vehicle = 0;
};

// Reads "<player flags>,<vehicle flags>"; what stands behind a second comma does not count. Throws failure 9 where
// there is no comma, 13 where a part is no number and 6 where it has more than 32 bits.
Flags readFlags(std::string_view text);

}  // namespace vantrel::modHaloFlags
