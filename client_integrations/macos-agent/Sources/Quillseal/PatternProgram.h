#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "Quillseal/CharacterClasses.h"
#include "Quillseal/PatternSyntax.h"

namespace quillseal::screening {

/// What a match can begin with at some place of a pattern.
struct Beginning {
  ClassSetId classes = 0;   ///< of the first code point
  bool anything = false;    ///< may match without a code point: no restriction
  bool atBoundary = false;  ///< only where \b holds

  bool operator==(const Beginning&) const = default;

  /// Whether a match may begin at `position`.
  [[nodiscard]] bool allows(const ClassifiedText& text, std::size_t position,
                            const ClassSets& sets) const {
    if (atBoundary && !text.isWordBoundary(position)) return false;
    return anything || sets.contains(classes, text.classAt(position));
  }
};

/// A compiled pattern for `Matcher`. Immutable.
class PatternProgram {
 public:
  /// Keeps its sets in `sets`.
  PatternProgram(const Node& pattern, const CharacterClasses& classes, ClassSets& sets);

  /// A place to start from: the whole pattern, or one of the alternatives it consists of.
  struct Entry {
    std::uint32_t instruction = 0;
    Beginning beginning;
  };
  [[nodiscard]] const Entry& whole() const { return entries_.front(); }
  /// The alternative of that index; the whole when the pattern is no choice of alternatives.
  [[nodiscard]] const Entry& alternative(std::size_t index) const {
    return entries_.size() == 1 ? entries_.front() : entries_[index + 1];
  }

  /// For each of the first code points of every match from `entry`, the classes it can be of; ends
  /// early where a match may end or the number of code points is not certain. At most `longest`
  /// elements.
  [[nodiscard]] std::vector<std::vector<std::uint64_t>> leadingClasses(
      const Entry& entry, std::size_t longest, const CharacterClasses& classes,
      const ClassSets& sets) const;

  [[nodiscard]] std::size_t memoryUse() const;

 private:
  friend class Matcher;

  enum class Operation : std::uint8_t {
    Accept,
    Set,
    FoldedText,  ///< `count` letters from `first`
    Choice,      ///< `count` targets from `first`, in order
    GreedyLoop,  ///< `count` to `max` code points of `set`
    LazyLoop,
    Jump,
    WordBoundary,
    NoWordBoundary,
    TextStart,
    TextEnd,
    AbsoluteEnd,
    LookAhead,          ///< the next instruction to an Accept; then on at `first`
    NegativeLookAhead,  ///< likewise
    PrecededBy,
    NotPrecededBy,
  };

  /// Continues with the next one unless it says otherwise.
  struct Instruction {
    Operation operation;
    std::uint16_t count = 0;  ///< of letters or targets; for a loop the least number of rounds
    std::uint16_t max = 0;
    std::uint16_t memo = 0;  ///< row in the memory of failures
    ClassSetId set = 0;
    std::uint16_t first = 0;  ///< for a loop: what follows it begins with, in `beginnings_`
  };

  static constexpr std::uint16_t endless = 0xFFFF;  ///< as `max`

  class Compiler;

  std::vector<Instruction> code_;
  std::vector<Letter> letters_;
  std::vector<Entry> targets_;
  std::vector<Beginning> beginnings_;
  std::vector<Entry> entries_;  ///< the whole, then its alternatives
  std::uint16_t memoRows_ = 0;
};

/// Frames of abandoned alternatives, shared by the matchers of one screening.
struct BacktrackFrame {
  std::uint32_t instruction;
  std::uint32_t position;
  std::uint32_t rest;
};
using BacktrackStack = std::vector<BacktrackFrame>;

/// Runs one program over one text. Tries alternatives in order and goes back on failure, as ICU
/// does; once it has taken more steps than a text of this size should need, it remembers which
/// (instruction, position) cannot lead to a match, so that no text takes more than linear time.
class Matcher {
 public:
  /// All four must outlive the matcher.
  Matcher(const PatternProgram& program, const CharacterClasses& classes, const ClassSets& sets,
          const ClassifiedText& text)
      : program_(&program), classes_(&classes), sets_(&sets), text_(&text) {}

  /// Where the preferred match that starts at `start` ends, if there is one; `entry` belongs to the
  /// program. Cheapest when called with mostly ascending starts.
  [[nodiscard]] std::optional<std::size_t> matchAt(const PatternProgram::Entry& entry,
                                                   std::size_t start, BacktrackStack& stack);

  /// Steps taken so far.
  [[nodiscard]] std::uint64_t steps() const { return steps_; }

 private:
  enum class Purpose : std::uint8_t { Match, LookAhead };
  enum class Known : std::uint8_t { Nothing, Fails, Succeeds };
  using Page = std::unique_ptr<std::uint64_t[]>;

  std::optional<std::size_t> run(std::uint32_t instruction, std::size_t position, Purpose purpose,
                                 BacktrackStack& stack);
  [[nodiscard]] bool looksAhead(std::uint32_t instruction, std::size_t position,
                                BacktrackStack& stack);
  [[nodiscard]] std::optional<std::size_t> foldedTextEnd(
      const PatternProgram::Instruction& instruction, std::size_t position) const;
  [[nodiscard]] bool atTextEnd(std::size_t position) const;
  [[nodiscard]] Known known(std::uint32_t row, std::size_t position) const;
  void remember(std::uint32_t row, std::size_t position, Known what);
  void forgetBefore(std::size_t position);

  const PatternProgram* program_;
  const CharacterClasses* classes_;
  const ClassSets* sets_;
  const ClassifiedText* text_;
  std::uint64_t steps_ = 0;
  bool remembering_ = false;
  std::size_t firstPage_ = 0;
  std::vector<Page> pages_;
};

}  // namespace quillseal::screening
