#pragma once

#include <random>
#include <span>
#include <string>
#include <string_view>

namespace quillseal::testing {

/// A way to write a text so that a person still reads it and a pattern does not.
struct Disguise {
  enum class Kind {
    letters,   ///< so many of the letters of `from`, each as its share of `to`
    inserted,  ///< `to` within so many of the words
    apart,     ///< `to` between all letters of so many of the words
  };
  std::string_view name;
  Kind kind;
  unsigned inHundred;
  std::string_view from;
  std::u32string_view to;
  /// Of the texts that are caught without it, those that must still be caught, in per cent.
  int promised = 90;

  [[nodiscard]] std::string apply(std::string_view text, std::mt19937& random) const;
};

[[nodiscard]] std::span<const Disguise> disguises();

}  // namespace quillseal::testing
