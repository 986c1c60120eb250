#pragma once

#include <string_view>

namespace quillseal::screening {

/// How often a code point stands at one place of an ordinary text, roughly: Latin letters as in
/// English mail, those of other scripts as in the average of texts of all scripts. Only the speed
/// of a search depends on these figures, never what it finds.
[[nodiscard]] double expectedFrequency(char32_t c);

/// The same for a text of case-folded letters, which is more likely when common words contain it.
[[nodiscard]] double expectedFrequency(std::u32string_view literal);

}  // namespace quillseal::screening
