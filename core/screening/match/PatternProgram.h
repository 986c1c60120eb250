#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "core/screening/match/CharacterClasses.h"
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

enum class Operation : std::uint16_t {
  accept,
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
  lookAhead,          ///< the next instruction to an `accept`; then on at `first`
  negativeLookAhead,  ///< likewise
  precededBy,
  notPrecededBy,
  precededByWord,  ///< `count` to `max` code points of `set` behind a word boundary
};

/// Continues with the next one unless it says otherwise.
struct Instruction {
  Operation operation;
  std::uint16_t count = 0;  ///< of letters or targets; for a loop the least number of iterations
  std::uint16_t max = 0;
  std::uint16_t memo = 0;  ///< row in the memory of failures
  ClassSetId set = 0;
  std::uint16_t first = 0;  ///< for a loop: what follows it begins with, in `firstSets`
  /// For a loop: which of `exceptions`, counted from 1, takes code points that are not of `set`.
  std::uint16_t exception = 0;

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
  std::uint16_t memoRows = 0;  ///< of the memory of failures

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

/// Runs one program over one text. Tries alternatives in order and goes back on failure, as ICU
/// does; once it has taken more steps than a text of this size should need, it remembers which
/// (instruction, position) cannot lead to a match, so that no text takes more than linear time.
class Matcher {
 public:
  /// All four must outlive the matcher.
  Matcher(const PatternProgram<Stored>& program, const CharacterClasses& classes,
          const ClassSets& sets, const ClassifiedText& text)
      : program_(&program), classes_(&classes), sets_(&sets), text_(&text) {}

  /// Where the preferred match that starts at `start` ends, if there is one; `entry` belongs to the
  /// program. Cheapest when called with mostly ascending starts.
  [[nodiscard]] std::optional<std::size_t> matchAt(const ProgramEntry& entry, std::size_t start,
                                                   BacktrackStack& stack);

  /// Steps taken so far.
  [[nodiscard]] std::uint64_t steps() const { return steps_; }

 private:
  enum class Purpose : std::uint8_t { match, lookAhead };
  enum class Known : std::uint8_t { nothing, fails, succeeds };
  /// Of one row: a bit for each position that fails, then one for each that succeeds.
  using Page = std::unique_ptr<std::uint64_t[]>;

  std::optional<std::size_t> run(std::uint32_t instruction, std::size_t position, Purpose purpose,
                                 BacktrackStack& stack);
  [[nodiscard]] bool looksAhead(std::uint32_t instruction, std::size_t position,
                                BacktrackStack& stack);
  /// Whether an iteration of the loop takes the code point at `position`.
  [[nodiscard]] bool loopTakes(const Instruction& loop, std::size_t position,
                               BacktrackStack& stack);
  [[nodiscard]] bool isPrecededByWord(const Instruction& instruction, std::size_t position) const;
  [[nodiscard]] std::optional<std::size_t> foldedTextEnd(const Instruction& instruction,
                                                         std::size_t position) const;
  [[nodiscard]] bool atTextEnd(std::size_t position) const;
  [[nodiscard]] std::size_t pageOf(std::uint32_t row, std::size_t position) const;
  [[nodiscard]] Known known(std::uint32_t row, std::size_t position) const;
  void remember(std::uint32_t row, std::size_t position, Known what);
  void rememberPath(std::span<const BacktrackFrame> path);
  /// `frame`: met when everything that the loop led to from there has failed.
  void rememberRestOfRun(const Instruction& loop, const BacktrackFrame& frame,
                         BacktrackStack& stack);
  void forgetBefore(std::size_t position);

  const PatternProgram<Stored>* program_;
  const CharacterClasses* classes_;
  const ClassSets* sets_;
  const ClassifiedText* text_;
  std::uint64_t steps_ = 0;
  bool remembering_ = false;
  std::size_t firstPage_ = 0;
  std::vector<Page> pages_;  ///< by positions, then by row
};

}  // namespace quillseal::screening
