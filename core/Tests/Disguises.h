#pragma once

#include <random>
#include <span>
#include <string>
#include <string_view>

namespace quillseal::testing {

/// A way to write a text so that a person still reads it and a pattern does not.
struct Disguise {
  std::string_view name;
  std::string (*apply)(std::string_view text, std::mt19937& random);
  /// Of the texts that are caught without it, those that must still be caught, in per cent.
  int promised = 90;
};

[[nodiscard]] std::span<const Disguise> disguises();

}  // namespace quillseal::testing
