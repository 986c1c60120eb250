// Verifies one candidate start: does the pattern match here, and where does the match end?
//
// Algorithm: a backtracker with an explicit stack. It takes ICU's decisions in ICU's order, so it
// finds ICU's match. Patterns have no captures and no back references, so whether the rest of a
// pattern matches depends on (instruction, position) only. A memo table stores the pairs that
// failed, and in look-aheads those that succeeded, and no pair is explored twice. Memoization
// starts after 2048 + 2 n steps; most searches finish earlier.
// Bound: steps O(size of the program * n) for all starts of a search together; memory two bits for
// each pair, in pages; no recursion except for nested look-aheads.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct, .AgreesWithIcuOnEveryRule, and
// .WorkGrowsLinearlyWithWhateverIsRepeated, which counts the steps.

#include "core/screening/match/PatternProgram.h"

#include <algorithm>

#include "core/screening/match/WordBits.h"

namespace quillseal::screening {
namespace {

// Marks in a frame's instruction. Such a frame is met when everything the instruction led to, or
// what follows the loop, has failed: it says so to the memory.
constexpr std::uint32_t instructionFailed = 0x8000'0000;
constexpr std::uint32_t afterLoopFailed = 0x4000'0000;
constexpr std::uint32_t marks = instructionFailed | afterLoopFailed;

/// Most searches end within so many steps, and are spared what remembering costs.
constexpr std::uint64_t forgetfulSteps = 2048;
constexpr std::uint64_t forgetfulStepsPerCodePoint = 2;

/// Memory is claimed for one row and this many positions at a time.
constexpr std::size_t pagePositions = 4096;

}  // namespace

std::optional<std::size_t> Matcher::matchAt(const ProgramEntry& entry, std::size_t start,
                                            BacktrackStack& stack) {
  if (remembering_) forgetBefore(start);
  return run(entry.instruction, start, Purpose::match, stack);
}

bool Matcher::looksAhead(std::uint32_t instruction, std::size_t position, BacktrackStack& stack) {
  return run(instruction, position, Purpose::lookAhead, stack).has_value();
}

bool Matcher::loopTakes(const Instruction& loop, std::size_t position, BacktrackStack& stack) {
  if (sets_->contains(loop.set, text_->classAt(position))) return true;
  if (loop.exception == 0 || position == text_->size()) return false;
  const ProgramEntry& exception = program_->exceptions[loop.exception - std::size_t{1}];
  return exception.firstSet.allows(*text_, position, *sets_) &&
         looksAhead(exception.instruction, position, stack);
}

bool Matcher::isPrecededByWord(const Instruction& instruction, std::size_t position) const {
  for (std::size_t length = 1; length <= std::min<std::size_t>(instruction.max, position);
       ++length) {
    const std::size_t start = position - length;
    if (!sets_->contains(instruction.set, text_->classAt(start))) return false;
    if (length >= instruction.count && text_->isWordBoundary(start)) return true;
  }
  return false;
}

std::optional<std::size_t> Matcher::run(std::uint32_t instruction, std::size_t position,
                                        Purpose purpose, BacktrackStack& stack) {
  const PatternProgram<Stored>& program = *program_;
  const ClassSets& sets = *sets_;
  const ClassifiedText& text = *text_;
  const std::size_t base = stack.size();
  const std::uint64_t allowance = forgetfulSteps + forgetfulStepsPerCodePoint * text.size();

  const auto push = [&](std::uint32_t index, std::size_t at, std::size_t rest) {
    stack.push_back({index, static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(rest)});
  };
  // Goes to the first target from `which` on that may match here; false when there is none.
  const auto choose = [&](std::uint32_t index, std::uint32_t which) {
    const auto& choice = program.code[index];
    const auto nextAllowed = [&](std::uint32_t from) {
      while (from < choice.count &&
             !program.targets[choice.first + from].firstSet.allows(text, position, sets))
        ++from;
      return from;
    };
    which = nextAllowed(which);
    if (which == choice.count) return false;
    const std::uint32_t later = nextAllowed(which + 1);
    steps_ += later - which;
    if (later < choice.count) push(index, position, later);
    instruction = program.targets[choice.first + which].instruction;
    return true;
  };
  const auto leaveLoop = [&](std::uint32_t index, std::size_t at) {
    if (remembering_) push(index | afterLoopFailed, at, at);
    instruction = index + 1;
    position = at;
  };
  const auto mayLeaveLoop = [&](std::uint32_t index, std::size_t at) {
    const auto& loop = program.code[index];
    ++steps_;
    return program.firstSets[loop.first].allows(text, at, sets) &&
           !(remembering_ && known(loop.memo + 1, at) == Known::fails);
  };
  // A greedy loop leaves at the last place between the two from which the rest may match.
  const auto leaveFromLast = [&](std::uint32_t index, std::size_t low, std::size_t high) {
    for (std::size_t at = high;; --at) {
      if (mayLeaveLoop(index, at)) {
        if (at > low) push(index, at - 1, low);
        leaveLoop(index, at);
        return true;
      }
      if (at == low) return false;
    }
  };
  // A lazy loop leaves at the first such place.
  const auto leaveFromFirst = [&](std::uint32_t index, std::size_t at, std::uint32_t rest) {
    const auto& loop = program.code[index];
    while (!mayLeaveLoop(index, at)) {
      if (rest == 0 || !loopTakes(loop, at, stack)) return false;
      ++at;
      if (rest != unbounded) --rest;
      if (remembering_ && rest == unbounded && known(loop.memo, at) == Known::fails) return false;
    }
    push(index, at, rest);
    leaveLoop(index, at);
    return true;
  };

  for (;;) {
    if (++steps_ > allowance && program.memoRows > 0) remembering_ = true;
    const auto& current = program.code[instruction];
    bool advanced = true;
    switch (current.operation) {
      case Operation::accept:
        if (remembering_ && purpose == Purpose::lookAhead)
          rememberPath(std::span(stack).subspan(base));
        stack.resize(base);
        return position;
      case Operation::set:
        advanced = sets.contains(current.set, text.classAt(position));
        ++position;
        ++instruction;
        break;
      case Operation::foldedText: {
        const auto end = foldedTextEnd(current, position);
        steps_ += current.count;
        advanced = end.has_value();
        position = end.value_or(position);
        ++instruction;
        break;
      }
      case Operation::jump:
        instruction = current.first;
        break;
      case Operation::wordBoundary:
      case Operation::noWordBoundary:
        advanced = text.isWordBoundary(position) == (current.operation == Operation::wordBoundary);
        ++instruction;
        break;
      case Operation::textStart:
        advanced = position == 0;
        ++instruction;
        break;
      case Operation::textEnd:
        advanced = atTextEnd(position);
        ++instruction;
        break;
      case Operation::absoluteEnd:
        advanced = position == text.size();
        ++instruction;
        break;
      case Operation::lookAhead:
      case Operation::negativeLookAhead:
        advanced = looksAhead(instruction + 1, position, stack) ==
                   (current.operation == Operation::lookAhead);
        instruction = current.first;
        break;
      case Operation::precededBy:
      case Operation::notPrecededBy:
        advanced = (position > 0 && sets.contains(current.set, text.classAt(position - 1))) ==
                   (current.operation == Operation::precededBy);
        ++instruction;
        break;
      case Operation::precededByWord:
        advanced = isPrecededByWord(current, position);
        ++instruction;
        break;
      case Operation::choice:
      case Operation::greedyLoop:
      case Operation::lazyLoop: {
        const std::uint32_t index = instruction;
        const bool isLoop = current.operation != Operation::choice;
        const bool isEndless = isLoop && current.max == Instruction::endless;
        const bool remembers = remembering_;  // an exception of the loop may begin to
        if (remembers) {
          const Known outcome = known(current.memo, position);
          if (outcome == Known::succeeds) {
            stack.resize(base);
            return position;
          }
          if (outcome == Known::fails) {
            advanced = false;
            break;
          }
          push(index | instructionFailed, position, position);
        }
        if (!isLoop) {
          advanced = choose(index, 0);
          break;
        }
        if (current.operation == Operation::lazyLoop) {
          advanced = leaveFromFirst(index, position, isEndless ? unbounded : current.max);
          break;
        }
        const std::size_t low = position + current.count;
        std::size_t high = position;
        const std::size_t limit = isEndless ? text.size() : position + current.max;
        bool failsFromHigh = false;
        while (high < limit && loopTakes(current, high, stack)) {
          ++high;
          if (remembers && isEndless && known(current.memo, high) == Known::fails) {
            failsFromHigh = true;
            break;
          }
        }
        steps_ += high - position;
        if (failsFromHigh) --high;
        if (remembers && isEndless) stack.back().rest = static_cast<std::uint32_t>(high);
        advanced = high >= low && leaveFromLast(index, low, high);
        break;
      }
    }
    while (!advanced) {
      if (stack.size() == base) return std::nullopt;
      const BacktrackFrame frame = stack.back();
      stack.pop_back();
      ++steps_;
      const std::uint32_t index = frame.instruction & ~marks;
      const auto& tried = program.code[index];
      if ((frame.instruction & afterLoopFailed) != 0) {
        remember(tried.memo + 1, frame.position, Known::fails);
        continue;
      }
      if ((frame.instruction & instructionFailed) != 0) {
        remember(tried.memo, frame.position, Known::fails);
        if (tried.max == Instruction::endless) rememberRestOfRun(tried, frame, stack);
        continue;
      }
      position = frame.position;
      if (tried.operation == Operation::choice) {
        advanced = choose(index, frame.rest);
      } else if (tried.operation == Operation::greedyLoop) {
        advanced = leaveFromLast(index, frame.rest, frame.position);
      } else if (frame.rest > 0 && loopTakes(tried, position, stack)) {
        const std::uint32_t rest = frame.rest == unbounded ? unbounded : frame.rest - 1;
        advanced = leaveFromFirst(index, position + 1, rest);
      }
    }
  }
}

std::optional<std::size_t> Matcher::foldedTextEnd(const Instruction& instruction,
                                                  std::size_t position) const {
  const Letter* letter = program_->letters.data() + instruction.first;
  const Letter* const end = letter + instruction.count;
  while (letter != end) {
    for (const Letter folded : classes_->folding(text_->classAt(position))) {
      if (letter == end || *letter != folded) return std::nullopt;
      ++letter;
    }
    ++position;
  }
  return position;
}

// Before a line terminator at the end, and never between CR and LF (RegexMatcher, URX_DOLLAR).
bool Matcher::atTextEnd(std::size_t position) const {
  const std::size_t size = text_->size();
  if (position == size) return true;
  const auto isLineFeed = [&](std::size_t at) { return classes_->isLineFeed(text_->classAt(at)); };
  const auto isCarriageReturn = [&](std::size_t at) {
    return classes_->isCarriageReturn(text_->classAt(at));
  };
  if (position + 1 == size && classes_->isLineTerminator(text_->classAt(position)))
    return !(position > 0 && isLineFeed(position) && isCarriageReturn(position - 1));
  return position + 2 == size && isCarriageReturn(position) && isLineFeed(position + 1);
}

std::size_t Matcher::pageOf(std::uint32_t row, std::size_t position) const {
  return position / pagePositions * program_->memoRows + row;
}

Matcher::Known Matcher::known(std::uint32_t row, std::size_t position) const {
  const std::size_t page = pageOf(row, position);
  if (page >= pages_.size() || !pages_[page]) return Known::nothing;
  const std::size_t bit = position % pagePositions;
  if (hasBit(pages_[page], bit)) return Known::fails;
  return hasBit(pages_[page], bit + pagePositions) ? Known::succeeds : Known::nothing;
}

void Matcher::remember(std::uint32_t row, std::size_t position, Known what) {
  const std::size_t page = pageOf(row, position);
  if (page >= pages_.size()) pages_.resize(page + 1);
  if (!pages_[page]) pages_[page] = std::make_unique<std::uint64_t[]>(2 * pagePositions / 64);
  const std::size_t bit = position % pagePositions + (what == Known::succeeds ? pagePositions : 0);
  setBit(pages_[page], bit);
}

/// What stands on the stack when a look-ahead has succeeded is the path that led there.
void Matcher::rememberPath(std::span<const BacktrackFrame> path) {
  for (const BacktrackFrame& frame : path) {
    if ((frame.instruction & marks) == 0) continue;
    const std::uint32_t memo = program_->code[frame.instruction & ~marks].memo;
    const bool afterLoop = (frame.instruction & afterLoopFailed) != 0;
    remember(memo + (afterLoop ? 1 : 0), frame.position, Known::succeeds);
  }
}

/// An endless loop that fails somewhere fails from the rest of the same run, too.
void Matcher::rememberRestOfRun(const Instruction& loop, const BacktrackFrame& frame,
                                BacktrackStack& stack) {
  if (loop.operation == Operation::greedyLoop) {
    for (std::size_t at = frame.position + 1; at <= frame.rest; ++at)
      remember(loop.memo, at, Known::fails);
  } else if (loop.operation == Operation::lazyLoop) {
    for (std::size_t at = frame.position;
         loopTakes(loop, at, stack) && known(loop.memo, at + 1) != Known::fails; ++at)
      remember(loop.memo, at + 1, Known::fails);
  }
}

// Only speed depends on what is remembered, and starts go back by a few sentences at most.
void Matcher::forgetBefore(std::size_t position) {
  const std::size_t before = std::max(position, pagePositions) - pagePositions;
  for (const std::size_t end = pageOf(0, before); firstPage_ < std::min(end, pages_.size());
       ++firstPage_)
    pages_[firstPage_].reset();
}

}  // namespace quillseal::screening
