#include "PatternCompiler/ProgramCompiler.h"

#include <algorithm>
#include <optional>
#include <set>

namespace quillseal::screening {
namespace {

void setClass(ClassBits& bits, std::size_t id) {
  bits[id / 64] |= std::uint64_t{1} << (id % 64);
}

void unite(ClassBits& bits, const ClassBits& others) {
  for (std::size_t i = 0; i < bits.size(); ++i)
    bits[i] |= others[i];
}

class Compiler {
 public:
  Compiler(const ClassPartition& classes, ClassSetPool& sets) : classes_(classes), sets_(sets) {}

  PatternProgram<Owned> compile(const Node& pattern) {
    emit(pattern);
    add({.operation = Operation::Accept});
    known_.resize(program_.code.size());
    for (ProgramEntry& target : program_.targets)
      target.beginning = kept(startAt(target.instruction));
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      Instruction& instruction = program_.code[i];
      if (instruction.operation == Operation::GreedyLoop ||
          instruction.operation == Operation::LazyLoop)
        instruction.first = numberOf(kept(startAt(static_cast<std::uint32_t>(i + 1))));
    }
    program_.entries.push_back({.instruction = 0, .beginning = kept(startAt(0))});
    if (pattern.kind == Node::Kind::Alternatives)
      for (std::size_t i = 0; i < pattern.children.size(); ++i)
        program_.entries.push_back(program_.targets[i]);
    return std::move(program_);
  }

 private:
  [[nodiscard]] std::uint16_t here() const { return counted(program_.code.size()); }

  std::uint32_t add(const Instruction& instruction) {
    program_.code.push_back(instruction);
    return here() - 1U;
  }

  void emit(const Node& node) {
    switch (node.kind) {
      case Node::Kind::Set:
        add({.operation = Operation::Set, .set = setOf(node.set)});
        break;
      case Node::Kind::FoldedText:
        add({.operation = Operation::FoldedText,
             .count = counted(node.text.size()),
             .first = lettersOf(node.text)});
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
        program_.code[look].first = here();
        break;
      }
      case Node::Kind::PrecedingInSet:
        add({.operation = node.negative ? Operation::NotPrecededBy : Operation::PrecededBy,
             .set = setOf(node.set)});
        break;
    }
  }

  /// Where the letters stand, which are kept once.
  std::uint16_t lettersOf(const std::u32string& text) {
    std::vector<Letter> letters;
    for (const char32_t c : text)
      letters.push_back(classes_.letterOf(c));
    auto& all = program_.letters;
    const auto known = std::search(all.begin(), all.end(), letters.begin(), letters.end());
    const std::uint16_t first = counted(static_cast<std::size_t>(known - all.begin()));
    if (known == all.end()) all.insert(all.end(), letters.begin(), letters.end());
    return first;
  }

  void emitAlternatives(const Node& node) {
    const std::uint32_t choice = addChoice(node.children.size());
    std::vector<std::uint32_t> jumps;
    for (std::size_t i = 0; i < node.children.size(); ++i) {
      program_.targets[program_.code[choice].first + i].instruction = here();
      emit(node.children[i]);
      if (i + 1 < node.children.size()) jumps.push_back(add({.operation = Operation::Jump}));
    }
    for (const std::uint32_t jump : jumps)
      program_.code[jump].first = here();
  }

  std::uint32_t addChoice(std::size_t targets) {
    const std::uint16_t first = counted(program_.targets.size());
    program_.targets.resize(first + targets);
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
         .max = max == unbounded ? Instruction::endless : counted(max),
         .memo = memoRows(2),
         .set = setOf(body.set)});
  }

  static std::uint16_t counted(std::size_t count) {
    if (count >= Instruction::endless) throw PatternError("pattern too long");
    return static_cast<std::uint16_t>(count);
  }

  std::uint16_t memoRows(std::size_t count) {
    const std::uint16_t first = program_.memoRows;
    program_.memoRows = counted(first + count);
    return first;
  }

  std::uint16_t& targetOf(std::uint32_t choice, std::uint32_t which) {
    return program_.targets[program_.code[choice].first + which].instruction;
  }

  ClassSetId setOf(std::size_t tableIndex) {
    const auto bits = classes_.classesOf(tableIndex);
    return sets_.intern({bits.begin(), bits.end()});
  }

  /// A `Beginning` whose set need not be kept.
  struct Start {
    ClassBits classes;
    bool anything = false;
    bool atBoundary = false;
  };

  // No cycle is followed: the body of a loop takes at least one code point.
  const Start& startAt(std::uint32_t index) {
    if (!known_[index]) known_[index] = startOf(index);
    return *known_[index];
  }

  Start startOf(std::uint32_t index) {
    const Instruction& instruction = program_.code[index];
    switch (instruction.operation) {
      case Operation::Set:
        return {.classes = sets_.bits(instruction.set)};
      case Operation::FoldedText: {
        Start start{.classes = ClassBits(sets_.words())};
        for (const ClassId id : classes_.classesWith(program_.letters[instruction.first]))
          if (classes_.folding(id).front() == program_.letters[instruction.first])
            setClass(start.classes, id);
        return start;
      }
      case Operation::Choice: {
        Start all{.classes = ClassBits(sets_.words()), .atBoundary = true};
        for (std::uint32_t i = 0; i < instruction.count; ++i)
          all =
              either(std::move(all), startAt(program_.targets[instruction.first + i].instruction));
        return all;
      }
      case Operation::GreedyLoop:
      case Operation::LazyLoop: {
        Start body{.classes = sets_.bits(instruction.set)};
        return instruction.count > 0 ? body : either(std::move(body), startAt(index + 1));
      }
      case Operation::Jump:
      case Operation::LookAhead:
      case Operation::NegativeLookAhead:
        return startAt(instruction.first);
      case Operation::WordBoundary: {
        Start start = startAt(index + 1);
        start.atBoundary = true;
        return start;
      }
      case Operation::Accept:
      case Operation::TextEnd:
      case Operation::AbsoluteEnd:
        return {.classes = ClassBits(sets_.words()), .anything = true};
      default:
        return startAt(index + 1);
    }
  }

  static Start either(Start one, const Start& other) {
    unite(one.classes, other.classes);
    one.anything = one.anything || other.anything;
    one.atBoundary = one.atBoundary && other.atBoundary;
    return one;
  }

  Beginning kept(const Start& start) {
    const ClassBits& classes = start.anything ? ClassBits(sets_.words()) : start.classes;
    return {.classes = sets_.intern(classes),
            .anything = start.anything,
            .atBoundary = start.atBoundary};
  }

  /// Its place in `beginnings`.
  std::uint16_t numberOf(const Beginning& beginning) {
    auto& all = program_.beginnings;
    const auto found = std::find(all.begin(), all.end(), beginning);
    if (found != all.end()) return static_cast<std::uint16_t>(found - all.begin());
    all.push_back(beginning);
    return counted(all.size() - 1);
  }

  PatternProgram<Owned> program_;
  const ClassPartition& classes_;
  ClassSetPool& sets_;
  std::vector<std::optional<Start>> known_;
};

}  // namespace

PatternProgram<Owned> compileProgram(const Node& pattern, const ClassPartition& classes,
                                     ClassSetPool& sets) {
  return Compiler(classes, sets).compile(pattern);
}

std::vector<ClassBits> leadingClasses(const PatternProgram<Owned>& program,
                                      const ProgramEntry& entry, std::size_t longest,
                                      const ClassPartition& classes, const ClassSetPool& sets) {
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
      const Instruction& instruction = program.code[index];
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
          const Letter letter = program.letters[instruction.first + taken];
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
            reach(program.targets[instruction.first + i].instruction);
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

}  // namespace quillseal::screening
