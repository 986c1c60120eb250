#include "Quillseal/PatternProgram.h"

#include <algorithm>
#include <set>

namespace quillseal::screening {
namespace {

using ClassBits = std::vector<std::uint64_t>;

// A frame that is met when everything an instruction led to has failed: it says so to the memory.
constexpr std::uint32_t instructionFailed = 0x8000'0000;
constexpr std::uint32_t afterLoopFailed = 0x4000'0000;
constexpr std::uint32_t marks = instructionFailed | afterLoopFailed;

constexpr std::size_t pagePositions = 4096;

void setClass(ClassBits& bits, std::size_t id) {
  bits[id / 64] |= std::uint64_t{1} << (id % 64);
}

void unite(ClassBits& bits, const ClassBits& others) {
  for (std::size_t i = 0; i < bits.size(); ++i)
    bits[i] |= others[i];
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Compilation

class PatternProgram::Compiler {
 public:
  Compiler(PatternProgram& program, const CharacterClasses& classes, ClassSets& sets)
      : program_(program), classes_(classes), sets_(sets) {}

  void compile(const Node& pattern) {
    emit(pattern);
    add({.operation = Operation::Accept});
    known_.resize(program_.code_.size());
    for (Entry& target : program_.targets_)
      target.beginning = beginningAt(target.instruction);
    for (std::size_t i = 0; i < program_.code_.size(); ++i) {
      Instruction& instruction = program_.code_[i];
      if (instruction.operation == Operation::GreedyLoop ||
          instruction.operation == Operation::LazyLoop)
        instruction.first = keep(beginningAt(static_cast<std::uint32_t>(i + 1)));
    }
    program_.entries_.push_back({.instruction = 0, .beginning = beginningAt(0)});
    if (pattern.kind == Node::Kind::Alternatives)
      for (std::size_t i = 0; i < pattern.children.size(); ++i)
        program_.entries_.push_back(program_.targets_[i]);
  }

 private:
  [[nodiscard]] std::uint32_t here() const {
    return static_cast<std::uint32_t>(program_.code_.size());
  }

  std::uint32_t add(const Instruction& instruction) {
    program_.code_.push_back(instruction);
    if (program_.code_.size() > afterLoopFailed / 2) throw PatternError("pattern too long");
    return here() - 1;
  }

  void emit(const Node& node) {
    switch (node.kind) {
      case Node::Kind::Set:
        add({.operation = Operation::Set, .set = setOf(node.set)});
        break;
      case Node::Kind::FoldedText:
        add({.operation = Operation::FoldedText,
             .count = counted(node.text.size()),
             .first = counted(program_.letters_.size())});
        for (const char32_t c : node.text)
          program_.letters_.push_back(classes_.letterOf(c));
        break;
      case Node::Kind::Sequence:
        for (const Node& child : node.children)
          emit(child);
        break;
      case Node::Kind::Alternatives:
        emitAlternatives(node);
        break;
      case Node::Kind::Repetition:
        emitRepetition(node);
        break;
      case Node::Kind::WordBoundary:
        add({.operation = node.negative ? Operation::NoWordBoundary : Operation::WordBoundary});
        break;
      case Node::Kind::TextStart:
        add({.operation = Operation::TextStart});
        break;
      case Node::Kind::TextEnd:
        add({.operation = Operation::TextEnd});
        break;
      case Node::Kind::AbsoluteEnd:
        add({.operation = Operation::AbsoluteEnd});
        break;
      case Node::Kind::LookAhead: {
        const std::uint32_t look =
            add({.operation = node.negative ? Operation::NegativeLookAhead : Operation::LookAhead});
        emit(node.children.front());
        add({.operation = Operation::Accept});
        program_.code_[look].first = counted(here());
        break;
      }
      case Node::Kind::PrecedingInSet:
        add({.operation = node.negative ? Operation::NotPrecededBy : Operation::PrecededBy,
             .set = setOf(node.set)});
        break;
    }
  }

  void emitAlternatives(const Node& node) {
    const std::uint32_t choice = addChoice(node.children.size());
    std::vector<std::uint32_t> jumps;
    for (std::size_t i = 0; i < node.children.size(); ++i) {
      program_.targets_[program_.code_[choice].first + i].instruction = here();
      emit(node.children[i]);
      if (i + 1 < node.children.size()) jumps.push_back(add({.operation = Operation::Jump}));
    }
    for (const std::uint32_t jump : jumps)
      program_.code_[jump].first = counted(here());
  }

  std::uint32_t addChoice(std::size_t targets) {
    const std::uint16_t first = counted(program_.targets_.size());
    program_.targets_.resize(first + targets);
    return add({.operation = Operation::Choice,
                .count = counted(targets),
                .memo = memoRows(1),
                .first = first});
  }

  void emitRepetition(const Node& node) {
    const Node& body = node.children.front();
    const std::uint32_t optional = node.max == unbounded ? unbounded : node.max - node.min;
    if (body.kind == Node::Kind::Set) {
      if (node.min == 1) {
        emit(body);
      } else if (node.min > 1) {
        addLoop(Operation::GreedyLoop, body, node.min, node.min);
      }
      if (optional > 0)
        addLoop(node.lazy ? Operation::LazyLoop : Operation::GreedyLoop, body, 0, optional);
      return;
    }
    for (std::uint32_t i = 0; i < node.min; ++i)
      emit(body);
    std::vector<std::uint32_t> choices;
    for (std::uint32_t i = 0; i < (optional == unbounded ? 1 : optional); ++i) {
      choices.push_back(addChoice(2));
      targetOf(choices.back(), node.lazy ? 1 : 0) = here();
      emit(body);
    }
    if (optional == unbounded)
      add({.operation = Operation::Jump, .first = counted(choices.front())});
    for (const std::uint32_t choice : choices)
      targetOf(choice, node.lazy ? 0 : 1) = here();
  }

  void addLoop(Operation operation, const Node& body, std::uint32_t min, std::uint32_t max) {
    add({.operation = operation,
         .count = counted(min),
         .max = max == unbounded ? endless : counted(max),
         .memo = memoRows(2),
         .set = setOf(body.set)});
  }

  static std::uint16_t counted(std::size_t count) {
    if (count >= endless) throw PatternError("pattern too long");
    return static_cast<std::uint16_t>(count);
  }

  std::uint16_t memoRows(std::size_t count) {
    const std::uint16_t first = program_.memoRows_;
    program_.memoRows_ = counted(first + count);
    return first;
  }

  std::uint32_t& targetOf(std::uint32_t choice, std::uint32_t which) {
    return program_.targets_[program_.code_[choice].first + which].instruction;
  }

  ClassSetId setOf(std::size_t tableIndex) {
    const auto bits = classes_.classesOf(tableIndex);
    return sets_.intern({bits.begin(), bits.end()});
  }

  // No cycle is followed: the body of a loop takes at least one code point.
  Beginning beginningAt(std::uint32_t index) {
    if (!known_[index]) known_[index] = beginningOf(index);
    return *known_[index];
  }

  Beginning beginningOf(std::uint32_t index) {
    const Instruction& instruction = program_.code_[index];
    switch (instruction.operation) {
      case Operation::Set:
        return {.classes = instruction.set};
      case Operation::FoldedText: {
        ClassBits classes(sets_.words());
        for (const ClassId id : classes_.classesWith(program_.letters_[instruction.first]))
          if (classes_.folding(id).front() == program_.letters_[instruction.first])
            setClass(classes, id);
        return {.classes = sets_.intern(classes)};
      }
      case Operation::Choice: {
        ClassBits classes(sets_.words());
        Beginning all{.atBoundary = true};
        for (std::uint32_t i = 0; i < instruction.count; ++i) {
          const Beginning one = beginningAt(program_.targets_[instruction.first + i].instruction);
          unite(classes, sets_.bits(one.classes));
          all.anything = all.anything || one.anything;
          all.atBoundary = all.atBoundary && one.atBoundary;
        }
        all.classes = sets_.intern(classes);
        return all;
      }
      case Operation::GreedyLoop:
      case Operation::LazyLoop: {
        const Beginning body{.classes = instruction.set};
        return instruction.count > 0 ? body : either(body, beginningAt(index + 1));
      }
      case Operation::Jump:
      case Operation::LookAhead:
      case Operation::NegativeLookAhead:
        return beginningAt(instruction.first);
      case Operation::WordBoundary: {
        Beginning beginning = beginningAt(index + 1);
        beginning.atBoundary = true;
        return beginning;
      }
      case Operation::Accept:
      case Operation::TextEnd:
      case Operation::AbsoluteEnd:
        return {.classes = sets_.intern(ClassBits(sets_.words())), .anything = true};
      default:
        return beginningAt(index + 1);
    }
  }

  Beginning either(const Beginning& one, const Beginning& other) {
    ClassBits classes = sets_.bits(one.classes);
    unite(classes, sets_.bits(other.classes));
    return {.classes = sets_.intern(classes),
            .anything = one.anything || other.anything,
            .atBoundary = one.atBoundary && other.atBoundary};
  }

  std::uint16_t keep(const Beginning& beginning) {
    auto& all = program_.beginnings_;
    const auto found = std::find(all.begin(), all.end(), beginning);
    if (found != all.end()) return static_cast<std::uint16_t>(found - all.begin());
    all.push_back(beginning);
    return counted(all.size() - 1);
  }

  PatternProgram& program_;
  const CharacterClasses& classes_;
  ClassSets& sets_;
  std::vector<std::optional<Beginning>> known_;
};

PatternProgram::PatternProgram(const Node& pattern, const CharacterClasses& classes,
                               ClassSets& sets) {
  Compiler(*this, classes, sets).compile(pattern);
  code_.shrink_to_fit();
  letters_.shrink_to_fit();
  targets_.shrink_to_fit();
  beginnings_.shrink_to_fit();
}

std::vector<ClassBits> PatternProgram::leadingClasses(const Entry& entry, std::size_t longest,
                                                      const CharacterClasses& classes,
                                                      const ClassSets& sets) const {
  using Place = std::pair<std::uint32_t, std::uint32_t>;  // instruction, letters taken of it
  std::vector<ClassBits> leading;
  std::set<Place> places{{entry.instruction, 0}};
  while (leading.size() < longest) {
    ClassBits step(sets.words());
    std::set<Place> after;
    std::vector<Place> open(places.begin(), places.end());
    while (!open.empty()) {
      const auto [index, taken] = open.back();
      open.pop_back();
      const Instruction& instruction = code_[index];
      const auto reach = [&](std::uint32_t target) {
        if (places.emplace(target, 0).second) open.emplace_back(target, 0);
      };
      switch (instruction.operation) {
        case Operation::Accept:
        case Operation::TextEnd:
        case Operation::AbsoluteEnd:
          return leading;
        case Operation::Set:
          unite(step, sets.bits(instruction.set));
          after.emplace(index + 1, 0);
          break;
        case Operation::FoldedText: {
          const Letter letter = letters_[instruction.first + taken];
          for (const ClassId id : classes.classesWith(letter)) {
            if (classes.folding(id).front() != letter) continue;
            if (classes.folding(id).size() > 1) return leading;
            setClass(step, id);
          }
          if (taken + 1 < instruction.count) {
            after.emplace(index, taken + 1);
          } else {
            after.emplace(index + 1, 0);
          }
          break;
        }
        case Operation::GreedyLoop:
        case Operation::LazyLoop:
          unite(step, sets.bits(instruction.set));
          // A counted loop stays a few rounds; then it may go on after any of them.
          if (instruction.count > taken + 1) {
            after.emplace(index, taken + 1);
          } else {
            after.emplace(index + 1, 0);
            if (instruction.max > instruction.count) after.emplace(index, taken);
          }
          if (instruction.count == 0) reach(index + 1);
          break;
        case Operation::Choice:
          for (std::uint32_t i = 0; i < instruction.count; ++i)
            reach(targets_[instruction.first + i].instruction);
          break;
        case Operation::Jump:
        case Operation::LookAhead:
        case Operation::NegativeLookAhead:
          reach(instruction.first);
          break;
        default:
          reach(index + 1);
          break;
      }
    }
    leading.push_back(std::move(step));
    places = std::move(after);
  }
  return leading;
}

std::size_t PatternProgram::memoryUse() const {
  return sizeof(*this) + code_.capacity() * sizeof(Instruction) +
         letters_.capacity() * sizeof(Letter) +
         (targets_.capacity() + entries_.capacity()) * sizeof(Entry) +
         beginnings_.capacity() * sizeof(Beginning);
}

// ---------------------------------------------------------------------------------------------
// Matching

std::optional<std::size_t> Matcher::matchAt(const PatternProgram::Entry& entry, std::size_t start,
                                            BacktrackStack& stack) {
  if (remembering_) forgetBefore(start);
  return run(entry.instruction, start, Purpose::Match, stack);
}

bool Matcher::looksAhead(std::uint32_t instruction, std::size_t position, BacktrackStack& stack) {
  return run(instruction, position, Purpose::LookAhead, stack).has_value();
}

std::optional<std::size_t> Matcher::run(std::uint32_t instruction, std::size_t position,
                                        Purpose purpose, BacktrackStack& stack) {
  using Operation = PatternProgram::Operation;
  const PatternProgram& program = *program_;
  const ClassSets& sets = *sets_;
  const ClassifiedText& text = *text_;
  const std::size_t base = stack.size();
  const std::uint64_t allowance = 2048 + 2 * text.size();

  const auto push = [&](std::uint32_t index, std::size_t at, std::size_t rest) {
    stack.push_back({index, static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(rest)});
  };
  // Goes to the first target from `which` on that may match here; false when there is none.
  const auto choose = [&](std::uint32_t index, std::uint32_t which) {
    const auto& choice = program.code_[index];
    const auto nextAllowed = [&](std::uint32_t from) {
      while (from < choice.count &&
             !program.targets_[choice.first + from].beginning.allows(text, position, sets))
        ++from;
      return from;
    };
    which = nextAllowed(which);
    if (which == choice.count) return false;
    const std::uint32_t later = nextAllowed(which + 1);
    steps_ += later - which;
    if (later < choice.count) push(index, position, later);
    instruction = program.targets_[choice.first + which].instruction;
    return true;
  };
  const auto leaveLoop = [&](std::uint32_t index, std::size_t at) {
    if (remembering_) push(index | afterLoopFailed, at, at);
    instruction = index + 1;
    position = at;
  };
  const auto mayLeaveLoop = [&](std::uint32_t index, std::size_t at) {
    const auto& loop = program.code_[index];
    ++steps_;
    return program.beginnings_[loop.first].allows(text, at, sets) &&
           !(remembering_ && known(loop.memo + 1, at) == Known::Fails);
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
    const auto& loop = program.code_[index];
    while (!mayLeaveLoop(index, at)) {
      if (rest == 0 || !sets.contains(loop.set, text.classAt(at))) return false;
      ++at;
      if (rest != unbounded) --rest;
      if (remembering_ && rest == unbounded && known(loop.memo, at) == Known::Fails) return false;
    }
    push(index, at, rest);
    leaveLoop(index, at);
    return true;
  };

  for (;;) {
    if (++steps_ > allowance && program.memoRows_ > 0) remembering_ = true;
    const auto& current = program.code_[instruction];
    bool advanced = true;
    switch (current.operation) {
      case Operation::Accept:
        // The unfinished frames are the path that led here.
        if (remembering_ && purpose == Purpose::LookAhead) {
          for (std::size_t i = base; i < stack.size(); ++i) {
            const auto& frame = stack[i];
            if ((frame.instruction & marks) == 0) continue;
            const auto& marked = program.code_[frame.instruction & ~marks];
            const bool afterLoop = (frame.instruction & afterLoopFailed) != 0;
            remember(marked.memo + (afterLoop ? 1 : 0), frame.position, Known::Succeeds);
          }
        }
        stack.resize(base);
        return position;
      case Operation::Set:
        advanced = sets.contains(current.set, text.classAt(position));
        ++position;
        ++instruction;
        break;
      case Operation::FoldedText: {
        const auto end = foldedTextEnd(current, position);
        steps_ += current.count;
        advanced = end.has_value();
        position = end.value_or(position);
        ++instruction;
        break;
      }
      case Operation::Jump:
        instruction = current.first;
        break;
      case Operation::WordBoundary:
      case Operation::NoWordBoundary:
        advanced = text.isWordBoundary(position) == (current.operation == Operation::WordBoundary);
        ++instruction;
        break;
      case Operation::TextStart:
        advanced = position == 0;
        ++instruction;
        break;
      case Operation::TextEnd:
        advanced = atTextEnd(position);
        ++instruction;
        break;
      case Operation::AbsoluteEnd:
        advanced = position == text.size();
        ++instruction;
        break;
      case Operation::LookAhead:
      case Operation::NegativeLookAhead:
        advanced = looksAhead(instruction + 1, position, stack) ==
                   (current.operation == Operation::LookAhead);
        instruction = current.first;
        break;
      case Operation::PrecededBy:
      case Operation::NotPrecededBy:
        advanced = (position > 0 && sets.contains(current.set, text.classAt(position - 1))) ==
                   (current.operation == Operation::PrecededBy);
        ++instruction;
        break;
      case Operation::Choice:
      case Operation::GreedyLoop:
      case Operation::LazyLoop: {
        const std::uint32_t index = instruction;
        const bool isLoop = current.operation != Operation::Choice;
        const bool isEndless = isLoop && current.max == PatternProgram::endless;
        if (remembering_) {
          const Known outcome = known(current.memo, position);
          if (outcome == Known::Succeeds) {
            stack.resize(base);
            return position;
          }
          if (outcome == Known::Fails) {
            advanced = false;
            break;
          }
          push(index | instructionFailed, position, position);
        }
        if (!isLoop) {
          advanced = choose(index, 0);
          break;
        }
        if (current.operation == Operation::LazyLoop) {
          advanced = leaveFromFirst(index, position, isEndless ? unbounded : current.max);
          break;
        }
        const std::size_t low = position + current.count;
        std::size_t high = position;
        const std::size_t limit = isEndless ? text.size() : position + current.max;
        bool failsFromHigh = false;
        while (high < limit && sets.contains(current.set, text.classAt(high))) {
          ++high;
          if (remembering_ && isEndless && known(current.memo, high) == Known::Fails) {
            failsFromHigh = true;
            break;
          }
        }
        steps_ += high - position;
        if (failsFromHigh) --high;
        if (remembering_ && isEndless) stack.back().rest = static_cast<std::uint32_t>(high);
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
      const auto& tried = program.code_[index];
      if ((frame.instruction & afterLoopFailed) != 0) {
        remember(tried.memo + 1, frame.position, Known::Fails);
        continue;
      }
      if ((frame.instruction & instructionFailed) != 0) {
        remember(tried.memo, frame.position, Known::Fails);
        if (tried.max != PatternProgram::endless) continue;
        // An endless loop that fails here fails from the rest of the same run, too.
        if (tried.operation == Operation::GreedyLoop) {
          for (std::size_t at = frame.position + 1; at <= frame.rest; ++at)
            remember(tried.memo, at, Known::Fails);
        } else if (tried.operation == Operation::LazyLoop) {
          for (std::size_t at = frame.position; sets.contains(tried.set, text.classAt(at)) &&
                                                known(tried.memo, at + 1) != Known::Fails;
               ++at)
            remember(tried.memo, at + 1, Known::Fails);
        }
        continue;
      }
      position = frame.position;
      if (tried.operation == Operation::Choice) {
        advanced = choose(index, frame.rest);
      } else if (tried.operation == Operation::GreedyLoop) {
        advanced = leaveFromLast(index, frame.rest, frame.position);
      } else if (frame.rest > 0 && sets.contains(tried.set, text.classAt(position))) {
        const std::uint32_t rest = frame.rest == unbounded ? unbounded : frame.rest - 1;
        advanced = leaveFromFirst(index, position + 1, rest);
      }
    }
  }
}

std::optional<std::size_t> Matcher::foldedTextEnd(const PatternProgram::Instruction& instruction,
                                                  std::size_t position) const {
  const Letter* letter = program_->letters_.data() + instruction.first;
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

Matcher::Known Matcher::known(std::uint32_t row, std::size_t position) const {
  const std::size_t page = position / pagePositions;
  if (page >= pages_.size() || !pages_[page]) return Known::Nothing;
  const std::size_t bit = (std::size_t{2} * row * pagePositions) + position % pagePositions;
  if ((pages_[page][bit / 64] >> (bit % 64) & 1) != 0) return Known::Fails;
  const std::size_t other = bit + pagePositions;
  return (pages_[page][other / 64] >> (other % 64) & 1) != 0 ? Known::Succeeds : Known::Nothing;
}

void Matcher::remember(std::uint32_t row, std::size_t position, Known what) {
  const std::size_t page = position / pagePositions;
  if (page >= pages_.size()) pages_.resize(page + 1);
  if (!pages_[page])
    pages_[page] = std::make_unique<std::uint64_t[]>(std::size_t{2} * program_->memoRows_ *
                                                     pagePositions / 64);
  const std::size_t bit =
      (2 * row + (what == Known::Succeeds ? 1 : 0)) * pagePositions + position % pagePositions;
  pages_[page][bit / 64] |= std::uint64_t{1} << (bit % 64);
}

// Only speed depends on what is remembered, and starts go back by a few sentences at most.
void Matcher::forgetBefore(std::size_t position) {
  const std::size_t keep = position / pagePositions;
  for (; firstPage_ + 1 < keep && firstPage_ < pages_.size(); ++firstPage_)
    pages_[firstPage_].reset();
}

}  // namespace quillseal::screening
