#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/screening/match/CharacterClasses.h"
#include "core/screening/match/Memo.h"
#include "core/screening/match/StoredTables.h"

namespace quillseal::screening {

/// What a match can begin with at some place of a pattern.
struct FirstSet {
  ClassSetId classes = 0;   ///< of the first code point
  bool isNullable = false;  ///< may match without a code point: no restriction
  bool atBoundary = false;  ///< only where \b holds

  bool operator==(const FirstSet&) const = default;

  /// Whether a match may begin at `position`.
  [[nodiscard]] bool allows(const ClassifiedText& text, std::size_t position,
                            const ClassSets& sets) const {
    if (atBoundary && !text.isWordBoundary(position)) return false;
    return isNullable || sets.contains(classes, text.classAt(position));
  }
};

enum class Operation : std::uint8_t {
  accept,       ///< the end of a match
  acceptAhead,  ///< the end of what is only looked at: of a look-ahead or an exception
  set,
  foldedText,  ///< `count` letters from `first`
  choice,      ///< `count` targets from `first`, in order
  greedyLoop,  ///< `count` to `max` code points of `set`
  lazyLoop,
  jump,
  wordBoundary,
  noWordBoundary,
  textStart,
  textEnd,
  absoluteEnd,
  lookAhead,          ///< the next instruction to an `acceptAhead`; then on at `first`
  negativeLookAhead,  ///< likewise
  precededBy,
  notPrecededBy,
  precededByWord,  ///< `count` to `max` code points of `set` behind a word boundary
};

/// Continues with the next one unless it says otherwise; a set and letters do where `max` says.
struct Instruction {
  Operation operation;
  /// For a loop: which of `exceptions`, counted from 1, takes code points that are not of `set`.
  std::uint8_t exception = 0;
  std::uint16_t count = 0;  ///< of letters or targets; for a loop the least number of iterations
  std::uint16_t max = 0;    ///< of iterations; for a set and letters the instruction to go on at
  std::uint16_t memo = 0;   ///< first row in the memo table
  ClassSetId set = 0;
  std::uint16_t first = 0;  ///< for a loop: what follows it begins with, in `firstSets`

  static constexpr std::uint16_t endless = 0xFFFF;  ///< as `max`
};

/// A place to start from.
struct ProgramEntry {
  std::uint16_t instruction = 0;
  FirstSet firstSet;
};

/// A compiled pattern for `Matcher`.
template <template <typename> typename Array>
struct PatternProgram {
  Array<Instruction> code;
  Array<Letter> letters;
  Array<ProgramEntry> targets;
  Array<FirstSet> firstSets;
  Array<ProgramEntry> entries;  ///< the whole, then the alternatives that it is a choice of
  /// Programs that match one code point where its neighbours allow it.
  Array<ProgramEntry> exceptions;
  std::uint16_t memoRows = 0;  ///< rows of the memo table

  void transfer(auto& archive) {
    archive(code, letters, targets, firstSets, entries, exceptions, memoRows);
  }

  [[nodiscard]] const ProgramEntry& whole() const { return entries.front(); }
  /// The alternative of that index; the whole when the pattern is no choice of alternatives.
  [[nodiscard]] const ProgramEntry& alternative(std::size_t index) const {
    return entries.size() == 1 ? entries.front() : entries[index + 1];
  }
};

/// Where to go on after a failure.
struct BacktrackFrame {
  std::uint32_t instruction;  ///< a choice or a loop; with the matcher's own marks in the top bits
  std::uint32_t position;     ///< of a code point
  /// Of a choice: the next target to try. Of a greedy loop: the first place where it may be left.
  /// Of a lazy loop: how many more iterations are allowed.
  std::uint32_t rest;
};
/// Shared by the matchers of one screening; each leaves it as it was.
using BacktrackStack = std::vector<BacktrackFrame>;

/// What the runs of one program over one text share.
struct MatcherState {
  const PatternProgram<Stored>& program;
  const CharacterClasses& classes;
  const ClassSets& sets;
  const ClassifiedText& text;
  std::uint64_t stepsBeforeMemo;
  Memo memo;
  std::uint64_t steps = 0;
  bool isMemoizing = false;
};

/// Runs one program over one text. Tries alternatives in order and backtracks on failure, as ICU
/// does; once it has taken more steps than most searches need, it memoizes which (instruction,
/// position) cannot lead to a match, so that no text takes more than linear time.
class Matcher {
 public:
  /// All four must outlive the matcher.
  Matcher(const PatternProgram<Stored>& program, const CharacterClasses& classes,
          const ClassSets& sets, const ClassifiedText& text);

  /// Where the preferred match that starts at `start` ends, if there is one; `entry` belongs to the
  /// program. Cheapest when called with mostly ascending starts.
  [[nodiscard]] std::optional<std::size_t> matchAt(const ProgramEntry& entry, std::size_t start,
                                                   BacktrackStack& stack);

  /// Steps taken so far.
  [[nodiscard]] std::uint64_t steps() const { return state_.steps; }

 private:
  MatcherState state_;
};

}  // namespace quillseal::screening
