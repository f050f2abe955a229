#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace vantrel::sandbox {

/// A small random generator whose values are the same on every platform and with every standard library, so that a
/// seed means the same world everywhere.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A generator for one thing among many: the same `seed`, `kind` and `number` always give the same values.
  Random(std::uint64_t seed, std::uint64_t kind, std::uint64_t number) : state_(seed) {
    state_ = next() ^ kind;
    state_ = next() ^ number;
  }

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t value = state_;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
    return value ^ (value >> 31);
  }

  /// A number from 0 to `limit` - 1. REQUIRES: limit > 0.
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(next() % limit); }

  /// A number from `low` to `high`, both included. REQUIRES: low <= high.
  int between(int low, int high) { return low + static_cast<int>(below(static_cast<std::size_t>(high - low) + 1)); }

  /// True with the given probability, 0 to 1.
  bool chance(double probability) { return static_cast<double>(next() >> 11) * 0x1.0p-53 < probability; }

  template <class List>
  const auto& pick(const List& list) {
    return list[below(std::size(list))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace vantrel::sandbox
