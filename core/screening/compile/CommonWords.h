#pragma once

#include <span>
#include <string_view>

namespace quillseal::screening {

/// A word that is far more common than its letters.
struct CommonWord {
  std::u32string_view word;
  double frequency = 0;  ///< of its start, at one place of a text
};

/// Those of English, and above all of letters that speak of business.
[[nodiscard]] std::span<const CommonWord> commonWords();

}  // namespace quillseal::screening
