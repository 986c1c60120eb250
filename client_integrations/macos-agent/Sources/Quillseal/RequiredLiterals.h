#pragma once

#include <cstdint>
#include <vector>

#include "Quillseal/CharacterClasses.h"
#include "Quillseal/PatternSyntax.h"

namespace quillseal::screening {

/// How much text there is at most between two places, in two measures; either may be `unbounded`.
/// With the first `\s+` is a short gap like any other, with the second `\w+` is, too.
struct Distance {
  std::uint32_t steps = 0;  ///< code points, where a run of white space counts as one
  std::uint32_t runs = 0;   ///< likewise, and a run of word characters counts as one

  [[nodiscard]] bool isUnbounded() const { return steps == unbounded && runs == unbounded; }
};

struct LiteralLink {
  std::vector<std::vector<Letter>> literals{};  ///< one of them stands in every match
  bool boundaryBefore = false;                  ///< \b holds before it
  bool boundaryAfter = false;                   ///< behind it
  Distance distance{};  ///< from the end of the link before to the end of this one
};

/// What every match of one way through a pattern contains, in order. Never empty.
struct LiteralChain {
  std::size_t alternative = 0;  ///< of the pattern, when it is a choice
  Distance lead{};              ///< from the start of the match to that of the first link
  std::vector<std::uint64_t> leadClasses;  ///< all that may stand there, 64 to a word
  std::vector<LiteralLink> links;
  double cost = 0;  ///< of looking for it, for each code point of a text, on an arbitrary scale
};

/// How the starts of a pattern's matches can be found: every match starts before a completed chain,
/// or, with `atTextStart`, at the start of the text, or is one of an alternative without literals.
struct RequiredLiterals {
  std::vector<LiteralChain> chains;
  bool atTextStart = false;
  std::vector<std::size_t> withoutLiterals;  ///< alternatives that need no literal
};

/// The bounds of two stretches that follow one another.
[[nodiscard]] Distance plus(const Distance& a, const Distance& b);

[[nodiscard]] RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                                const CharacterClasses& classes);

}  // namespace quillseal::screening
