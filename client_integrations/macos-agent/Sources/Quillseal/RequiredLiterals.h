#pragma once

#include <cstdint>
#include <vector>

#include "Quillseal/CharacterClasses.h"
#include "Quillseal/PatternSyntax.h"

namespace quillseal::screening {

/// Distances are in steps: code points, where a run of white space counts as one. So `\s+` is a
/// short gap like any other.
struct LiteralLink {
  std::vector<std::vector<Letter>> literals{};  ///< one of them stands in every match
  bool boundaryBefore = false;                  ///< \b holds before it
  bool boundaryAfter = false;
  std::uint32_t distance = 0;  ///< at most, from the end of the link before to the end of this one
};

/// What every match of one way through a pattern contains, in order. Never empty.
struct LiteralChain {
  std::size_t alternative = 0;  ///< of the pattern, when it is a choice
  std::uint32_t lead = 0;  ///< steps at most, from the start of the match to that of the first link
  std::vector<std::uint64_t> leadClasses;  ///< all that may stand there, 64 to a word
  std::vector<LiteralLink> links;
};

/// How the starts of a pattern's matches can be found: every match starts before a completed chain,
/// or, with `atTextStart`, at the start of the text, or is one of an alternative without literals.
struct RequiredLiterals {
  std::vector<LiteralChain> chains;
  bool atTextStart = false;
  std::vector<std::size_t> withoutLiterals;  ///< alternatives that need no literal
};

[[nodiscard]] RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                                const CharacterClasses& classes);

}  // namespace quillseal::screening
