// Bit operations on arrays of 64-bit words.
//
// Bound: one word access for a bit; `setBits` takes one step for each word that it touches.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryRule, which activates elements with `setBits`.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// Single bits of anything that holds words of 64 bits: a vector, a span, an array.
namespace quillseal::screening {

constexpr bool hasBit(const auto& words, std::size_t bit) {
  return (words[bit / 64] >> (bit % 64) & 1) != 0;
}

constexpr void setBit(auto& words, std::size_t bit) {
  words[bit / 64] |= std::uint64_t{1} << (bit % 64);
}

constexpr void clearBit(auto& words, std::size_t bit) {
  words[bit / 64] &= ~(std::uint64_t{1} << (bit % 64));
}

/// Sets `count` bits from `first` on.
constexpr void setBits(auto& words, std::size_t first, std::size_t count) {
  for (const std::size_t end = first + count; first < end;) {
    const std::size_t within = first % 64;
    const std::size_t here = std::min(end - first, 64 - within);
    words[first / 64] |= ~std::uint64_t{0} >> (64 - here) << within;
    first += here;
  }
}

}  // namespace quillseal::screening
