#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/screening/match/CharacterClasses.h"
#include "core/screening/match/Memo.h"
#include "core/screening/match/StoredTables.h"

namespace quillseal::screening {

/// What a match can begin with at some place of a pattern.
class FirstSet {
 public:
  FirstSet() = default;
  explicit FirstSet(std::uint16_t bits) : bits_(bits) {}
  /// That of a match with at least one code point, the first of them from a set.
  /// REQUIRES: classes < anything.
  static FirstSet of(ClassSetId classes, bool atBoundary) {
    return FirstSet(static_cast<std::uint16_t>(classes | (atBoundary ? boundaryFlag : 0)));
  }
  /// That of a match that may be empty, for which any code point may follow.
  static FirstSet ofAny(bool atBoundary) { return of(anything, atBoundary); }

  bool operator==(const FirstSet&) const = default;

  /// Whether a match may begin at `position`.
  [[nodiscard]] bool allows(const ClassifiedText& text, std::size_t position,
                            const ClassSets& sets) const {
    if ((bits_ & boundaryFlag) != 0 && !text.isWordBoundary(position)) return false;
    return isAny() || sets.contains(classes(), text.classAt(position));
  }

  /// Whether the match may be empty.
  [[nodiscard]] bool isAny() const { return classes() == anything; }
  /// Of the first code point. REQUIRES: not isAny().
  [[nodiscard]] ClassSetId classes() const { return bits_ & anything; }
  [[nodiscard]] std::uint16_t bits() const { return bits_; }

  static constexpr ClassSetId anything = maxClassSets;

 private:
  static constexpr std::uint16_t boundaryFlag = 0x8000;  ///< only where \b holds

  std::uint16_t bits_ = 0;
};

enum class Operation : std::uint8_t {
  accept,       ///< the end of a match
  acceptAhead,  ///< the end of what is only looked at: of a look-ahead or an exception
  set,
  foldedText,
  choice,  ///< the first of some targets that leads to a match
  greedyLoop,
  lazyLoop,
  jump,
  wordBoundary,
  noWordBoundary,
  textStart,
  textEnd,
  absoluteEnd,
  lookAhead,          ///< the instructions behind it, to an `acceptAhead`
  negativeLookAhead,  ///< likewise
  precededBy,
  notPrecededBy,
  precededByWord,  ///< code points of a set behind a word boundary
};

/// Goes on at `next` where that is said below, and with the instruction behind it otherwise. It has
/// eight bytes, since a field has another meaning for each kind of operation.
struct Instruction {
  Operation operation;
  std::uint8_t count = 0;  ///< of letters; for a loop and a word, which of `repetitions`
  /// Of a set, letters, a jump and a look-ahead: where to go on. Of a choice: how many targets. Of
  /// a loop: the bits of a `FirstSet`, that of what follows.
  std::uint16_t next = 0;
  std::uint16_t memo = 0;   ///< of a choice and a loop: the first row in the memo table
  std::uint16_t first = 0;  ///< the set; the first of the letters or targets
};
static_assert(sizeof(Instruction) == 8);

/// How often a loop goes round, or how long a preceding word is.
struct Repetition {
  std::uint16_t min = 0;
  std::uint16_t max = 0;
  /// Which of `exceptions`, counted from 1, takes code points that are not of the set; 0 for none.
  std::uint16_t exception = 0;

  static constexpr std::uint16_t endless = 0xFFFF;  ///< as `max`

  bool operator==(const Repetition&) const = default;
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
  Array<Repetition> repetitions;
  Array<ProgramEntry> entries;  ///< the whole, then the alternatives that it is a choice of
  /// Programs that match one code point where its neighbours allow it.
  Array<ProgramEntry> exceptions;
  std::uint16_t memoRows = 0;  ///< rows of the memo table

  void transfer(auto& archive) {
    archive(code, letters, targets, repetitions, entries, exceptions, memoRows);
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

/// Adjacent places of a text, both ends included; empty at first.
struct Stretch {
  std::uint32_t low = 1;
  std::uint32_t high = 0;

  [[nodiscard]] bool contains(std::size_t place) const { return low <= place && place <= high; }
  [[nodiscard]] bool touches(const Stretch& other) const {
    return low <= high && other.low <= other.high && low <= other.high + 1 && other.low <= high + 1;
  }
  [[nodiscard]] Stretch with(const Stretch& other) const {
    return {.low = std::min(low, other.low), .high = std::max(high, other.high)};
  }
  [[nodiscard]] std::uint32_t size() const { return high + 1 - low; }
};

/// What is known of a greedy loop, as stretches of the text, so that what overlaps is passed at
/// once.
class LoopMemo {
 public:
  /// The end of what the loop is known to take from `position` on; `position` if nothing is known.
  [[nodiscard]] std::size_t reachFrom(std::size_t position) const {
    return reach_.contains(position) ? reach_.high : position;
  }
  void storeReach(std::size_t from, std::size_t to);

  /// Moves `at` down, at most to `low`, to the next place where leaving the loop is not known to
  /// fail. False when there is none.
  [[nodiscard]] bool passFailures(std::size_t low, std::size_t& at) const;
  void storeFailures(std::size_t low, std::size_t high);

 private:
  Stretch reach_;   ///< the loop takes all code points from the first place to the last
  Stretch latest_;  ///< leaving the loop fails; grows downwards, since exits are tried from the end
  Stretch known_;   ///< likewise, of earlier entries
};

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
  std::vector<LoopMemo> loops{};  ///< by the first row of the loop; from then on
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
