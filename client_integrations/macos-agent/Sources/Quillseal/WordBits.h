#pragma once

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

}  // namespace quillseal::screening
