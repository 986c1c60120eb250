#pragma once

#include <cstdint>
#include <vector>

#include "core/screening/compile/ClassPartition.h"
#include "core/screening/match/ScreeningTables.h"

namespace quillseal::screening {

/// Folded letters that stand in a row somewhere in a match. A blank is any run of white space.
using Literal = std::vector<Letter>;
/// Alternatives, of which one stands there.
using Literals = std::vector<Literal>;

/// The bounds of two stretches that follow one another.
[[nodiscard]] Distance plus(const Distance& a, const Distance& b);
[[nodiscard]] Distance times(std::uint32_t count, const Distance& distance);
/// The larger bound in each measure.
[[nodiscard]] Distance larger(const Distance& a, const Distance& b);

/// Operations on literals that need to know what their letters are.
class LiteralAlphabet {
 public:
  explicit LiteralAlphabet(const ClassPartition& classes)
      : classes_(classes), space_(classes.spaceLetter()) {}

  [[nodiscard]] Letter space() const { return space_; }

  /// White space behind white space adds nothing.
  void append(Literal& literal, Letter letter) const;
  /// Each of `heads` with each of `tails` behind it.
  [[nodiscard]] Literals product(const Literals& heads, const Literals& tails) const;
  [[nodiscard]] Distance longest(const Literals& literals) const;
  /// Whether a literal says anything: not when it is empty or white space alone.
  [[nodiscard]] bool isSelective(const Literals& literals) const;
  /// How often one of them is met, for each code point of an ordinary text.
  [[nodiscard]] double frequencyOf(const Literals& literals) const;

  // The literal index knows only where a run of white space begins, not where in it the match does,
  // nor where the run ends.

  [[nodiscard]] bool anyStartsWithSpace(const Literals& literals) const;
  [[nodiscard]] bool anyEndsInSpace(const Literals& literals) const;
  /// Whether there was any.
  [[nodiscard]] bool dropLeadingSpace(Literals& literals) const;

  /// Cuts long literals. Returns how much was cut off at most.
  [[nodiscard]] Distance shorten(Literals& literals) const;

 private:
  [[nodiscard]] std::size_t keptLength(const Literal& literal) const;
  [[nodiscard]] bool isSpaceLetter(Letter letter) const;
  [[nodiscard]] bool isWordLetter(Letter letter) const;
  [[nodiscard]] bool isWithinExpansion(Letter letter, Letter next) const;
  [[nodiscard]] bool startsWithSpace(const Literal& literal) const {
    return !literal.empty() && literal.front() == space_;
  }

  const ClassPartition& classes_;
  Letter space_;
};

}  // namespace quillseal::screening
