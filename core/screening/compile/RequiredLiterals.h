#pragma once

#include <cstdint>
#include <vector>

#include "core/screening/compile/ClassPartition.h"
#include "core/screening/compile/LiteralAlphabet.h"
#include "core/screening/compile/PatternSyntax.h"

namespace quillseal::screening {

struct RequiredElement {
  Literals literals{};          ///< one of them stands in every match
  bool boundaryBefore = false;  ///< \b holds before it
  bool boundaryAfter = false;   ///< behind it
  Distance distance{};          ///< from the end of the element before to the end of this one
};

/// What every match of one path through a pattern contains, in order. Never empty.
struct RequiredSequence {
  std::size_t alternative = 0;  ///< of the pattern, when it is a choice
  Distance lead{};              ///< from the start of the match to that of the first element
  std::vector<std::uint64_t> leadClasses;  ///< all that may stand there, 64 to a word
  std::vector<RequiredElement> elements;
  double cost = 0;         ///< of looking for it, for each code point, in literals met in the text
  double costOfMatch = 0;  ///< of one run of the matcher, likewise
};

/// How the starts of a pattern's matches can be found: every match starts before a completed
/// sequence, or, with `atTextStart`, at the start of the text, or is one of an alternative without
/// literals.
struct RequiredLiterals {
  std::vector<RequiredSequence> sequences;
  bool atTextStart = false;
  std::vector<std::size_t> withoutLiterals;  ///< alternatives that need no literal
};

[[nodiscard]] RequiredLiterals requiredLiterals(const Node& pattern, const SetTable& sets,
                                                const ClassPartition& classes);

}  // namespace quillseal::screening
