// Verifies one candidate start: does the pattern match here, and where does the match end?
//
// Algorithm: a backtracker with an explicit stack. It takes ICU's decisions in ICU's order, so it
// finds ICU's match. Patterns have no captures and no back references, so whether the rest of a
// pattern matches depends on (instruction, position) only. A memo table stores the pairs that
// failed, and in look-aheads those that succeeded, and no pair is explored twice. For each greedy
// loop, stretches of the text tell at once how far it reaches and where leaving it fails: the
// stretches of neighbouring starts overlap nearly everywhere. Memoization starts after 2048 + 2 n
// steps; most searches finish earlier.
// Bound: steps O(size of the program * n) for all starts of a search together; memory two bits for
// each pair, in pages, and 24 bytes for each row; no recursion except for nested look-aheads.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct, .AgreesWithIcuWhereItIsHard (stretches),
// .AgreesWithIcuOnEveryRule, .WhatALoopReachesIsPassedOnce, and
// .WorkGrowsLinearlyWithWhateverIsRepeated, which counts the steps.

#include "core/screening/match/PatternProgram.h"

#include <algorithm>
#include <utility>

namespace quillseal::screening {
namespace {

// Marks in a frame's instruction. Such a frame is popped when everything the instruction led to, or
// what follows the loop, has failed; the failure is then stored in the memo table.
constexpr std::uint32_t instructionFailed = 0x8000'0000;
constexpr std::uint32_t afterLoopFailed = 0x4000'0000;
constexpr std::uint32_t marks = instructionFailed | afterLoopFailed;

// Memoization starts after this many steps; most searches finish earlier.
constexpr std::uint64_t freeSteps = 2048;
constexpr std::uint64_t freeStepsPerCodePoint = 2;

/// One run of the program: to the end of a match, or of the body of a look-ahead.
class Backtracker {
 public:
  Backtracker(MatcherState& state, BacktrackStack& stack)
      : state_(state),
        program_(state.program),
        sets_(state.sets),
        text_(state.text),
        stack_(stack),
        base_(stack.size()) {}

  /// Where the preferred match ends. To be called once.
  std::optional<std::size_t> run(std::uint32_t instruction, std::size_t position) {
    instruction_ = instruction;
    position_ = position;
    for (;;) {
      countStep();
      Step step = execute(program_.code[instruction_]);
      while (step == Step::failed) {
        if (stack_.size() == base_) return std::nullopt;
        step = backtrack();
      }
      if (step == Step::accepted) {
        stack_.resize(base_);
        return position_;
      }
    }
  }

 private:
  enum class Step : std::uint8_t { advanced, failed, accepted };

  void countStep() {
    if (++state_.steps <= state_.stepsBeforeMemo || state_.isMemoizing || program_.memoRows == 0)
      return;
    state_.loops.resize(program_.memoRows);
    state_.isMemoizing = true;
  }

  Step execute(const Instruction& current) {
    switch (current.operation) {
      case Operation::accept:
        return Step::accepted;
      case Operation::acceptAhead:
        return acceptAhead();
      case Operation::set:
        return matchSet(current);
      case Operation::foldedText:
        return matchFoldedText(current);
      case Operation::jump:
        instruction_ = current.next;
        return Step::advanced;
      case Operation::wordBoundary:
        return assertThat(text_.isWordBoundary(position_));
      case Operation::noWordBoundary:
        return assertThat(!text_.isWordBoundary(position_));
      case Operation::textStart:
        return assertThat(position_ == 0);
      case Operation::textEnd:
        return assertThat(isAtTextEnd());
      case Operation::absoluteEnd:
        return assertThat(position_ == text_.size());
      case Operation::lookAhead:
        return lookAhead(current, true);
      case Operation::negativeLookAhead:
        return lookAhead(current, false);
      case Operation::precededBy:
        return assertThat(isPrecededBy(current.first));
      case Operation::notPrecededBy:
        return assertThat(!isPrecededBy(current.first));
      case Operation::precededByWord:
        return assertThat(isPrecededByWord(current));
      case Operation::choice:
      case Operation::greedyLoop:
      case Operation::lazyLoop:
        return branch(current);
    }
    return Step::failed;
  }

  // ---- Instructions that go one way

  // Successes are stored for these alone, since for a match it matters where it ends.
  Step acceptAhead() {
    if (state_.isMemoizing) storePath();
    return Step::accepted;
  }

  Step matchSet(const Instruction& current) {
    if (!sets_.contains(current.first, text_.classAt(position_))) return Step::failed;
    ++position_;
    instruction_ = current.next;
    return Step::advanced;
  }

  Step matchFoldedText(const Instruction& current) {
    state_.steps += current.count;
    const Letter* letter = program_.letters.data() + current.first;
    const Letter* const end = letter + current.count;
    std::size_t position = position_;
    while (letter != end) {
      for (const Letter folded : state_.classes.folding(text_.classAt(position))) {
        if (letter == end || *letter != folded) return Step::failed;
        ++letter;
      }
      ++position;
    }
    position_ = position;
    instruction_ = current.next;
    return Step::advanced;
  }

  Step assertThat(bool holds) {
    ++instruction_;
    return holds ? Step::advanced : Step::failed;
  }

  Step lookAhead(const Instruction& current, bool expected) {
    if (matchesAhead(instruction_ + 1, position_) != expected) return Step::failed;
    instruction_ = current.next;
    return Step::advanced;
  }

  // ---- Instructions that may go several ways

  Step branch(const Instruction& current) {
    // Sampled once: a look-ahead of the loop may begin to memoize.
    const bool isMemoized = state_.isMemoizing;
    if (isMemoized) {
      switch (state_.memo.outcome(current.memo, position_)) {
        case Memo::Outcome::succeeds:
          return Step::accepted;
        case Memo::Outcome::fails:
          return Step::failed;
        case Memo::Outcome::unknown:
          push(instruction_ | instructionFailed, position_, position_);
      }
    }
    if (current.operation == Operation::choice) return choose(instruction_, 0);
    const std::uint16_t max = repetitionOf(current).max;
    const bool isEndless = max == Repetition::endless;
    if (current.operation == Operation::lazyLoop)
      return exitFromFirst(instruction_, position_, isEndless ? unbounded : max);
    return enterGreedyLoop(current, isMemoized && isEndless);
  }

  /// Goes to the first target from `which` on that may match here.
  Step choose(std::uint32_t index, std::uint32_t which) {
    const Instruction& choice = program_.code[index];
    which = nextTarget(choice, which);
    if (which == choice.next) return Step::failed;
    const std::uint32_t later = nextTarget(choice, which + 1);
    state_.steps += later - which;
    if (later < choice.next) push(index, position_, later);
    instruction_ = program_.targets[choice.first + which].instruction;
    return Step::advanced;
  }

  [[nodiscard]] std::uint32_t nextTarget(const Instruction& choice, std::uint32_t from) const {
    while (from < choice.next &&
           !program_.targets[choice.first + from].firstSet.allows(text_, position_, sets_))
      ++from;
    return from;
  }

  Step enterGreedyLoop(const Instruction& loop, bool usesMemo) {
    const std::uint32_t index = instruction_;
    const Repetition& repetition = repetitionOf(loop);
    const std::size_t low = position_ + repetition.min;
    const std::size_t limit =
        repetition.max == Repetition::endless ? text_.size() : position_ + repetition.max;
    const bool usesReach = state_.isMemoizing && !usesMemo;
    const std::size_t known =
        usesReach ? std::min(state_.loops[loop.memo].reachFrom(position_), limit) : position_;
    std::size_t high = usesMemo ? position_ : endOfRun(loop, known, limit);
    bool failsFromHigh = false;
    while (high < limit && !failsFromHigh && loopTakes(loop, high)) {
      ++high;
      failsFromHigh = usesMemo && state_.memo.hasFailed(loop.memo, high);
      if (!usesMemo) high = endOfRun(loop, high, limit);
    }
    state_.steps += high - known;
    if (usesReach) state_.loops[loop.memo].storeReach(position_, high);
    if (failsFromHigh) --high;
    if (usesMemo) stack_.back().rest = static_cast<std::uint32_t>(high);
    return high >= low ? exitFromLast(index, low, high) : Step::failed;
  }

  /// A greedy loop exits at the last place between the two from which the rest may match.
  Step exitFromLast(std::uint32_t index, std::size_t low, std::size_t high) {
    const Instruction& loop = program_.code[index];
    for (std::size_t at = high;; --at) {
      if (state_.isMemoizing && !state_.loops[loop.memo].passFailures(low, at)) return Step::failed;
      const std::size_t from = at;
      at = lastExit(loop, low, at);
      const bool exits = mayExit(index, at);
      const std::size_t failsFrom = exits ? at + 1 : at;
      if (state_.isMemoizing && failsFrom <= from)
        state_.loops[loop.memo].storeFailures(failsFrom, from);
      if (exits) {
        if (at > low) push(index, at - 1, low);
        exitLoop(index, at);
        return Step::advanced;
      }
      if (at == low) return Step::failed;
    }
  }

  /// Where the code points of the loop's set end, from `position` up to `limit`.
  [[nodiscard]] std::size_t endOfRun(const Instruction& loop, std::size_t position,
                                     std::size_t limit) const {
    const ClassSetId set = loop.first;
    while (position < limit && sets_.contains(set, text_.classAt(position)))
      ++position;
    return position;
  }

  /// The last place down to `low` that has what follows the loop; `low` if there is none.
  [[nodiscard]] std::size_t lastExit(const Instruction& loop, std::size_t low, std::size_t high) {
    const FirstSet next(loop.next);
    std::size_t at = high;
    while (at > low && !next.allows(text_, at, sets_))
      --at;
    state_.steps += high - at;
    return at;
  }

  /// A lazy loop exits at the first such place; `rest`: how many more iterations are allowed.
  Step exitFromFirst(std::uint32_t index, std::size_t at, std::uint32_t rest) {
    const Instruction& loop = program_.code[index];
    while (!mayExit(index, at)) {
      if (rest == 0 || !loopTakes(loop, at)) return Step::failed;
      ++at;
      if (rest != unbounded) --rest;
      if (state_.isMemoizing && rest == unbounded && state_.memo.hasFailed(loop.memo, at))
        return Step::failed;
    }
    push(index, at, rest);
    exitLoop(index, at);
    return Step::advanced;
  }

  bool mayExit(std::uint32_t index, std::size_t at) {
    const Instruction& loop = program_.code[index];
    ++state_.steps;
    return FirstSet(loop.next).allows(text_, at, sets_) &&
           !(state_.isMemoizing && state_.memo.hasFailed(loop.memo + 1U, at));
  }

  void exitLoop(std::uint32_t index, std::size_t at) {
    if (state_.isMemoizing) push(index | afterLoopFailed, at, at);
    instruction_ = index + 1;
    position_ = at;
  }

  [[nodiscard]] const Repetition& repetitionOf(const Instruction& loop) const {
    return program_.repetitions[loop.count];
  }

  /// Whether an iteration of the loop takes the code point at `position`.
  [[nodiscard]] bool loopTakes(const Instruction& loop, std::size_t position) {
    if (sets_.contains(loop.first, text_.classAt(position))) return true;
    const std::size_t number = repetitionOf(loop).exception;
    if (number == 0 || position == text_.size()) return false;
    const ProgramEntry& exception = program_.exceptions[number - 1];
    return exception.firstSet.allows(text_, position, sets_) &&
           matchesAhead(exception.instruction, position);
  }

  // ---- Backtracking

  /// Pops a frame and goes on from there. REQUIRES: there is a frame of this run.
  Step backtrack() {
    const BacktrackFrame frame = stack_.back();
    stack_.pop_back();
    ++state_.steps;
    const std::uint32_t index = frame.instruction & ~marks;
    const Instruction& tried = program_.code[index];
    if ((frame.instruction & marks) != 0) {
      storeFailure(tried, frame);
      return Step::failed;
    }
    position_ = frame.position;
    if (tried.operation == Operation::choice) return choose(index, frame.rest);
    if (tried.operation == Operation::greedyLoop)
      return exitFromLast(index, frame.rest, frame.position);
    if (frame.rest == 0 || !loopTakes(tried, position_)) return Step::failed;
    const std::uint32_t rest = frame.rest == unbounded ? unbounded : frame.rest - 1;
    return exitFromFirst(index, position_ + 1, rest);
  }

  void push(std::uint32_t instruction, std::size_t position, std::size_t rest) {
    stack_.push_back(
        {instruction, static_cast<std::uint32_t>(position), static_cast<std::uint32_t>(rest)});
  }

  void storeFailure(const Instruction& tried, const BacktrackFrame& frame) {
    if ((frame.instruction & afterLoopFailed) != 0) {
      state_.memo.storeFailure(tried.memo + 1U, frame.position);
      if (tried.operation == Operation::greedyLoop)
        state_.loops[tried.memo].storeFailures(frame.position, frame.position);
      return;
    }
    state_.memo.storeFailure(tried.memo, frame.position);
    if (tried.operation != Operation::choice && repetitionOf(tried).max == Repetition::endless)
      storeRestOfRun(tried, frame);
  }

  /// An endless loop that fails somewhere fails from the rest of the same run, too.
  void storeRestOfRun(const Instruction& loop, const BacktrackFrame& frame) {
    Memo& memo = state_.memo;
    if (loop.operation == Operation::greedyLoop) {
      for (std::size_t at = frame.position + 1; at <= frame.rest; ++at)
        memo.storeFailure(loop.memo, at);
    } else if (loop.operation == Operation::lazyLoop) {
      for (std::size_t at = frame.position;
           loopTakes(loop, at) && !memo.hasFailed(loop.memo, at + 1); ++at)
        memo.storeFailure(loop.memo, at + 1);
    }
  }

  /// What stands on the stack when a look-ahead has succeeded is the path that led there.
  void storePath() {
    for (std::size_t i = base_; i < stack_.size(); ++i) {
      const BacktrackFrame& frame = stack_[i];
      if ((frame.instruction & marks) == 0) continue;
      const std::uint32_t row = program_.code[frame.instruction & ~marks].memo;
      const bool isAfterLoop = (frame.instruction & afterLoopFailed) != 0;
      state_.memo.storeSuccess(row + (isAfterLoop ? 1 : 0), frame.position);
    }
  }

  // ---- Conditions

  [[nodiscard]] bool matchesAhead(std::uint32_t instruction, std::size_t position) {
    return Backtracker(state_, stack_).run(instruction, position).has_value();
  }

  [[nodiscard]] bool isPrecededBy(ClassSetId set) const {
    return position_ > 0 && sets_.contains(set, text_.classAt(position_ - 1));
  }

  [[nodiscard]] bool isPrecededByWord(const Instruction& current) const {
    const Repetition& repetition = repetitionOf(current);
    for (std::size_t length = 1; length <= std::min<std::size_t>(repetition.max, position_);
         ++length) {
      const std::size_t start = position_ - length;
      if (!sets_.contains(current.first, text_.classAt(start))) return false;
      if (length >= repetition.min && text_.isWordBoundary(start)) return true;
    }
    return false;
  }

  // Before a line terminator at the end, and never between CR and LF (RegexMatcher, URX_DOLLAR).
  [[nodiscard]] bool isAtTextEnd() const {
    const CharacterClasses& classes = state_.classes;
    const std::size_t size = text_.size();
    if (position_ == size) return true;
    const auto isLineFeed = [&](std::size_t at) { return classes.isLineFeed(text_.classAt(at)); };
    const auto isCarriageReturn = [&](std::size_t at) {
      return classes.isCarriageReturn(text_.classAt(at));
    };
    if (position_ + 1 == size && classes.isLineTerminator(text_.classAt(position_)))
      return !(position_ > 0 && isLineFeed(position_) && isCarriageReturn(position_ - 1));
    return position_ + 2 == size && isCarriageReturn(position_) && isLineFeed(position_ + 1);
  }

  MatcherState& state_;
  const PatternProgram<Stored>& program_;
  const ClassSets& sets_;
  const ClassifiedText& text_;
  BacktrackStack& stack_;
  const std::size_t base_;  ///< frames below belong to the runs around this one
  std::uint32_t instruction_ = 0;
  std::size_t position_ = 0;
};

}  // namespace

void LoopMemo::storeReach(std::size_t from, std::size_t to) {
  const Stretch reach{.low = static_cast<std::uint32_t>(from),
                      .high = static_cast<std::uint32_t>(to)};
  reach_ = reach_.contains(from) ? reach_.with(reach) : reach;
}

bool LoopMemo::passFailures(std::size_t low, std::size_t& at) const {
  for (bool isPassed = false; !isPassed;) {
    isPassed = true;
    for (const Stretch& failures : {latest_, known_}) {
      if (!failures.contains(at)) continue;
      if (failures.low <= low) return false;
      at = failures.low - 1;
      isPassed = false;
    }
  }
  return true;
}

void LoopMemo::storeFailures(std::size_t low, std::size_t high) {
  const Stretch failures{.low = static_cast<std::uint32_t>(low),
                         .high = static_cast<std::uint32_t>(high)};
  if (latest_.touches(failures)) {
    latest_ = latest_.with(failures);
  } else {
    if (latest_.size() > known_.size()) known_ = latest_;
    latest_ = failures;
  }
  if (latest_.touches(known_)) latest_ = latest_.with(std::exchange(known_, {}));
}

Matcher::Matcher(const PatternProgram<Stored>& program, const CharacterClasses& classes,
                 const ClassSets& sets, const ClassifiedText& text)
    : state_{.program = program,
             .classes = classes,
             .sets = sets,
             .text = text,
             .stepsBeforeMemo = freeSteps + freeStepsPerCodePoint * text.size(),
             .memo = Memo(program.memoRows)} {}

std::optional<std::size_t> Matcher::matchAt(const ProgramEntry& entry, std::size_t start,
                                            BacktrackStack& stack) {
  if (state_.isMemoizing) state_.memo.freeBefore(start);
  return Backtracker(state_, stack).run(entry.instruction, start);
}

}  // namespace quillseal::screening
