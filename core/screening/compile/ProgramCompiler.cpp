// Compiles a parsed pattern into instructions, their first sets and its prefix classes.
//
// Algorithm: one pass over the tree emits code. A loop whose body always takes one code point
// becomes one instruction over a set; other counted loops are unrolled. Instructions that do the
// same and lead to the same are then kept once. Each branch and loop exit gets its first set: the
// classes with which the rest can begin. The prefix classes follow from simulating all paths
// through the program for up to eight code points.
// Bound: code is linear in the unrolled pattern, at most 65,534 instructions, 256 kinds of
// repetition and 255 letters in a row; more throws PatternError.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (quantifiers, loops over one code point),
// ScreeningEngine.AgreesWithIcuWhereItIsHard (equal ends),
// ScreeningEngine.AgreesWithIcuOnEveryRule.

#include "core/screening/compile/ProgramCompiler.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <tuple>
#include <utility>

#include "core/screening/match/WordBits.h"

namespace quillseal::screening {
namespace {

void unite(ClassBits& bits, const ClassBits& others) {
  for (std::size_t i = 0; i < bits.size(); ++i)
    bits[i] |= others[i];
}

class ProgramCompiler {
 public:
  ProgramCompiler(const ClassPartition& classes, ClassSetPool& sets)
      : classes_(classes), sets_(sets) {}

  PatternProgram<Owned> compile(const Node& pattern) {
    program_.entries.push_back({.instruction = here(), .firstSet = {}});
    emit(pattern);
    add({.operation = Operation::accept});
    // Compiling an exception may add to the list.
    std::size_t compiled = 0;
    while (compiled < exceptions_.size()) {
      program_.exceptions.push_back({.instruction = here(), .firstSet = {}});
      emit(Node(exceptions_[compiled++]));
      add({.operation = Operation::acceptAhead});
    }
    shareEqualEnds();
    firstBits_.resize(program_.code.size());
    for (ProgramEntry& exception : program_.exceptions)
      exception.firstSet = kept(firstAt(exception.instruction));
    for (ProgramEntry& target : program_.targets)
      target.firstSet = kept(firstAt(target.instruction));
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      Instruction& instruction = program_.code[i];
      if (isLoop(instruction))
        instruction.next = kept(firstAt(static_cast<std::uint32_t>(i + 1))).bits();
    }
    ProgramEntry& whole = program_.entries.front();
    whole.firstSet = kept(firstAt(whole.instruction));
    if (pattern.kind == Node::Kind::alternatives)
      for (const ProgramEntry& alternative : targetsOf(program_.code[whole.instruction]))
        program_.entries.push_back(alternative);
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
      case Node::Kind::set:
        add({.operation = Operation::set, .first = setOf(node.set)});
        break;
      case Node::Kind::foldedText:
        add({.operation = Operation::foldedText,
             .count = small(node.text.size()),
             .first = lettersOf(node.text)});
        break;
      case Node::Kind::sequence:
        for (const Node* child : quickestOrder(node.children))
          emit(*child);
        break;
      case Node::Kind::alternatives:
        emitAlternatives(node);
        break;
      case Node::Kind::repetition:
        emitRepetition(node);
        break;
      case Node::Kind::wordBoundary:
        add({.operation = node.negative ? Operation::noWordBoundary : Operation::wordBoundary});
        break;
      case Node::Kind::textStart:
        add({.operation = Operation::textStart});
        break;
      case Node::Kind::textEnd:
        add({.operation = Operation::textEnd});
        break;
      case Node::Kind::absoluteEnd:
        add({.operation = Operation::absoluteEnd});
        break;
      case Node::Kind::lookAhead: {
        const std::uint32_t look =
            add({.operation = node.negative ? Operation::negativeLookAhead : Operation::lookAhead});
        emit(node.children.front());
        add({.operation = Operation::acceptAhead});
        program_.code[look].next = here();
        break;
      }
      case Node::Kind::precedingInSet:
        add({.operation = node.negative ? Operation::notPrecededBy : Operation::precededBy,
             .first = setOf(node.set)});
        break;
      case Node::Kind::precedingWord:
        add({.operation = Operation::precededByWord,
             .count = repetitionOf({.min = counted(node.min), .max = counted(node.max)}),
             .first = setOf(node.set)});
        break;
    }
  }

  // Look-aheads side by side may be tried in any order. What must follow is mostly missing, and
  // what must not follow is, too, so the first kind settles more.
  static std::vector<const Node*> quickestOrder(const std::vector<Node>& nodes) {
    std::vector<const Node*> order;
    order.reserve(nodes.size());
    for (const Node& node : nodes)
      order.push_back(&node);
    const auto isLookAhead = [](const Node* node) { return node->kind == Node::Kind::lookAhead; };
    for (auto first = order.begin(); first != order.end();) {
      first = std::find_if(first, order.end(), isLookAhead);
      const auto last = std::find_if_not(first, order.end(), isLookAhead);
      std::stable_partition(first, last, [](const Node* node) { return !node->negative; });
      first = last;
    }
    return order;
  }

  /// The place of the letters; equal strings are stored once.
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

  // Most alternatives end alike, and keeping such ends once saves a quarter of the code. From the
  // end backwards, what follows an instruction is known before it, except for a loop's way back.
  void shareEqualEnds() {
    const auto& code = program_.code;
    std::vector<std::uint16_t> same(code.size());  // the instruction that is kept for each
    std::map<std::vector<std::uint32_t>, std::uint16_t> known;
    for (std::size_t i = code.size(); i-- > 0;) {
      const auto keptFor = [&](std::size_t index) { return index > i ? same[index] : index; };
      const Instruction& instruction = code[i];
      if (instruction.operation == Operation::jump) {
        same[i] = static_cast<std::uint16_t>(keptFor(instruction.next));
        continue;
      }
      const auto index = static_cast<std::uint16_t>(i);
      same[i] = known.try_emplace(describe(index, keptFor), index).first->second;
    }
    for (std::uint16_t& index : same)
      while (same[index] != index)
        index = same[index];
    keepOnly(same);
  }

  /// All that it does, with the instructions that it leads to as `keptFor` says.
  std::vector<std::uint32_t> describe(std::size_t index, const auto& keptFor) const {
    const Instruction& instruction = program_.code[index];
    std::vector<std::uint32_t> all{static_cast<std::uint32_t>(instruction.operation),
                                   instruction.count};
    const auto add = [&](std::size_t number) { all.push_back(static_cast<std::uint32_t>(number)); };
    if (instruction.operation == Operation::choice) {
      for (const ProgramEntry& target : targetsOf(instruction))
        add(keptFor(target.instruction));
      return all;
    }
    add(instruction.first);
    if (takesLetters(instruction) || goesOn(instruction)) add(keptFor(index + 1));
    if (looksAhead(instruction)) add(keptFor(instruction.next));
    return all;
  }

  /// Drops the instructions for which another one is kept, and most jumps: sets and letters lead to
  /// where those behind them would.
  void keepOnly(const std::vector<std::uint16_t>& same) {
    const std::vector<Instruction> code = std::exchange(program_.code, {});
    const std::vector<ProgramEntry> targets = std::exchange(program_.targets, {});
    std::vector<std::uint16_t> places(code.size());
    for (std::size_t i = 0; i < code.size(); ++i) {
      if (same[i] != i) continue;
      places[i] = here();
      add(code[i]);
      Instruction& kept = program_.code.back();
      if (takesLetters(kept)) kept.next = same[i + 1];
      if (looksAhead(kept)) kept.next = same[kept.next];
      if (kept.operation == Operation::choice) {
        kept.memo = memoRows(1);
        kept.first = counted(program_.targets.size());
        const auto from = targets.begin() + code[i].first;
        program_.targets.insert(program_.targets.end(), from, from + kept.next);
      } else if (isLoop(kept)) {
        kept.memo = memoRows(2);
      }
      if (goesOn(kept) && same[i + 1] != i + 1)
        add({.operation = Operation::jump, .next = same[i + 1]});
    }
    for (Instruction& instruction : program_.code)
      if (takesLetters(instruction) || looksAhead(instruction) ||
          instruction.operation == Operation::jump)
        instruction.next = places[instruction.next];
    for (auto* entries : {&program_.targets, &program_.entries, &program_.exceptions})
      for (ProgramEntry& entry : *entries)
        entry.instruction = places[same[entry.instruction]];
  }

  static bool takesLetters(const Instruction& instruction) {
    return instruction.operation == Operation::set ||
           instruction.operation == Operation::foldedText;
  }

  static bool looksAhead(const Instruction& instruction) {
    return instruction.operation == Operation::lookAhead ||
           instruction.operation == Operation::negativeLookAhead;
  }

  static bool isLoop(const Instruction& instruction) {
    return instruction.operation == Operation::greedyLoop ||
           instruction.operation == Operation::lazyLoop;
  }

  /// Whether it may go on with the instruction behind it.
  static bool goesOn(const Instruction& instruction) {
    return !takesLetters(instruction) && instruction.operation != Operation::jump &&
           instruction.operation != Operation::choice &&
           instruction.operation != Operation::accept &&
           instruction.operation != Operation::acceptAhead;
  }

  [[nodiscard]] std::span<const ProgramEntry> targetsOf(const Instruction& choice) const {
    return std::span(program_.targets).subspan(choice.first, choice.next);
  }

  void emitAlternatives(const Node& node) {
    const std::uint32_t choice = addChoice(node.children.size());
    std::vector<std::uint32_t> jumps;
    for (std::size_t i = 0; i < node.children.size(); ++i) {
      program_.targets[program_.code[choice].first + i].instruction = here();
      emit(node.children[i]);
      if (i + 1 < node.children.size()) jumps.push_back(add({.operation = Operation::jump}));
    }
    for (const std::uint32_t jump : jumps)
      program_.code[jump].next = here();
  }

  std::uint32_t addChoice(std::size_t targets) {
    const std::uint16_t first = counted(program_.targets.size());
    program_.targets.resize(first + targets);
    return add({.operation = Operation::choice, .next = counted(targets), .first = first});
  }

  void emitRepetition(const Node& node) {
    const Node& body = node.children.front();
    const std::uint32_t optional = node.max == unbounded ? unbounded : node.max - node.min;
    if (const auto iteration = oneCodePointIteration(body)) {
      if (node.min == 1) {
        emit(body);
      } else if (node.min > 1) {
        addLoop(Operation::greedyLoop, *iteration, node.min, node.min);
      }
      if (optional > 0)
        addLoop(node.lazy ? Operation::lazyLoop : Operation::greedyLoop, *iteration, 0, optional);
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
      add({.operation = Operation::jump, .next = counted(choices.front())});
    for (const std::uint32_t choice : choices)
      targetOf(choice, node.lazy ? 0 : 1) = here();
  }

  /// An iteration that always takes exactly one code point.
  struct Iteration {
    ClassSetId set = 0;
    std::uint16_t exception = 0;
  };

  // Whichever alternative takes the code point, the loop goes on behind it: their order does not
  // matter, and those that ask nothing of the neighbours are one set.
  std::optional<Iteration> oneCodePointIteration(const Node& body) {
    if (body.kind == Node::Kind::set) return Iteration{.set = setOf(body.set)};
    if (body.kind != Node::Kind::alternatives) return std::nullopt;
    ClassBits free(sets_.words());
    Node conditional{.kind = Node::Kind::alternatives};
    for (const Node& child : body.children) {
      if (!takesOneCodePoint(child)) return std::nullopt;
      if (const Node* const only = onlyChild(child); only->kind == Node::Kind::set) {
        unite(free, sets_.bits(setOf(only->set)));
      } else {
        conditional.children.push_back(child);
      }
    }
    Iteration iteration{.set = sets_.intern(free)};
    if (!conditional.children.empty()) iteration.exception = exceptionOf(std::move(conditional));
    return iteration;
  }

  static const Node* onlyChild(const Node& node) {
    const bool isWrapped = node.kind == Node::Kind::sequence && node.children.size() == 1;
    return isWrapped ? &node.children.front() : &node;
  }

  static bool takesOneCodePoint(const Node& node) {
    const auto parts =
        node.kind == Node::Kind::sequence ? std::span(node.children) : std::span(&node, 1);
    const auto isSet = [](const Node& part) { return part.kind == Node::Kind::set; };
    const auto takesNone = [](const Node& part) {
      return part.kind == Node::Kind::lookAhead || part.kind == Node::Kind::wordBoundary ||
             part.kind == Node::Kind::precedingInSet || part.kind == Node::Kind::precedingWord;
    };
    return std::ranges::count_if(parts, isSet) == 1 &&
           std::ranges::all_of(parts,
                               [&](const Node& part) { return isSet(part) || takesNone(part); });
  }

  std::uint16_t exceptionOf(Node conditional) {
    auto known = std::find(exceptions_.begin(), exceptions_.end(), conditional);
    if (known == exceptions_.end())
      known = exceptions_.insert(exceptions_.end(), std::move(conditional));
    return counted(static_cast<std::size_t>(known - exceptions_.begin()) + 1);
  }

  void addLoop(Operation operation, const Iteration& iteration, std::uint32_t min,
               std::uint32_t max) {
    add({.operation = operation,
         .count = repetitionOf({.min = counted(min),
                                .max = max == unbounded ? Repetition::endless : counted(max),
                                .exception = iteration.exception}),
         .first = iteration.set});
  }

  /// Its place; equal ones are stored once.
  std::uint8_t repetitionOf(const Repetition& repetition) {
    auto& all = program_.repetitions;
    const auto known = std::find(all.begin(), all.end(), repetition);
    const std::uint8_t place = small(static_cast<std::size_t>(known - all.begin()));
    if (known == all.end()) all.push_back(repetition);
    return place;
  }

  static std::uint8_t small(std::size_t count) {
    if (count > std::numeric_limits<std::uint8_t>::max()) throw PatternError("pattern too long");
    return static_cast<std::uint8_t>(count);
  }

  static std::uint16_t counted(std::size_t count) {
    if (count >= Repetition::endless) throw PatternError("pattern too long");
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

  /// A `FirstSet` whose set need not be kept.
  struct FirstBits {
    ClassBits classes;
    bool isNullable = false;
    bool atBoundary = false;
  };

  // No cycle is followed: the body of a loop takes at least one code point.
  const FirstBits& firstAt(std::uint32_t index) {
    if (!firstBits_[index]) firstBits_[index] = firstOf(index);
    return *firstBits_[index];
  }

  FirstBits firstOf(std::uint32_t index) {
    const Instruction& instruction = program_.code[index];
    switch (instruction.operation) {
      case Operation::set:
        return {.classes = sets_.bits(instruction.first)};
      case Operation::foldedText: {
        FirstBits first{.classes = ClassBits(sets_.words())};
        for (const ClassId id : classes_.classesWith(program_.letters[instruction.first]))
          if (classes_.folding(id).front() == program_.letters[instruction.first])
            setBit(first.classes, id);
        return first;
      }
      case Operation::choice: {
        FirstBits all{.classes = ClassBits(sets_.words()), .atBoundary = true};
        for (const ProgramEntry& target : targetsOf(instruction))
          all = either(std::move(all), firstAt(target.instruction));
        return all;
      }
      case Operation::greedyLoop:
      case Operation::lazyLoop: {
        FirstBits body{.classes = sets_.bits(instruction.first)};
        const Repetition& repetition = program_.repetitions[instruction.count];
        if (repetition.exception != 0)
          unite(body.classes,
                firstAt(program_.exceptions[repetition.exception - std::size_t{1}].instruction)
                    .classes);
        return repetition.min > 0 ? body : either(std::move(body), firstAt(index + 1));
      }
      case Operation::jump:
      case Operation::lookAhead:
      case Operation::negativeLookAhead:
        return firstAt(instruction.next);
      case Operation::wordBoundary: {
        FirstBits first = firstAt(index + 1);
        first.atBoundary = true;
        return first;
      }
      case Operation::accept:
      case Operation::acceptAhead:
      case Operation::textEnd:
      case Operation::absoluteEnd:
        return {.classes = ClassBits(sets_.words()), .isNullable = true};
      default:
        return firstAt(index + 1);
    }
  }

  static FirstBits either(FirstBits one, const FirstBits& other) {
    unite(one.classes, other.classes);
    one.isNullable = one.isNullable || other.isNullable;
    one.atBoundary = one.atBoundary && other.atBoundary;
    return one;
  }

  FirstSet kept(const FirstBits& first) {
    if (first.isNullable) return FirstSet::ofAny(first.atBoundary);
    return FirstSet::of(sets_.intern(first.classes), first.atBoundary);
  }

  PatternProgram<Owned> program_;
  const ClassPartition& classes_;
  ClassSetPool& sets_;
  std::vector<std::optional<FirstBits>> firstBits_;
  std::vector<Node> exceptions_;
};

/// Follows all paths through a program at once, one code point after the other.
class PrefixWalk {
 public:
  PrefixWalk(const PatternProgram<Owned>& program, const ClassPartition& classes,
             const ClassSetPool& sets)
      : program_(program), classes_(classes), sets_(sets) {}

  std::vector<ClassBits> from(const ProgramEntry& entry, std::size_t longest) {
    std::vector<ClassBits> prefix;
    behind_ = {{.instruction = entry.instruction}};
    while (prefix.size() < longest) {
      here_ = std::exchange(behind_, {});
      step_.assign(sets_.words(), 0);
      std::vector<Place> open(here_.begin(), here_.end());
      while (!open.empty()) {
        const Place place = open.back();
        open.pop_back();
        if (!passes(place)) return prefix;
        for (const std::uint32_t instruction : std::exchange(reached_, {}))
          if (const Place next{.instruction = instruction}; here_.insert(next).second)
            open.push_back(next);
      }
      prefix.push_back(step_);
    }
    return prefix;
  }

 private:
  struct Place {
    std::uint32_t instruction = 0;
    std::uint32_t taken = 0;  ///< letters or iterations of it that lie behind

    bool operator<(const Place& other) const {
      return std::tie(instruction, taken) < std::tie(other.instruction, other.taken);
    }
  };

  /// Notes what code points lead on from here and where to. False when the match may end here, or
  /// when it is not certain that one code point is taken.
  bool passes(const Place& place) {
    const auto [index, taken] = place;
    const Instruction& instruction = program_.code[index];
    switch (instruction.operation) {
      case Operation::accept:
      case Operation::acceptAhead:
      case Operation::textEnd:
      case Operation::absoluteEnd:
        return false;
      case Operation::set:
        unite(step_, sets_.bits(instruction.first));
        behind_.insert({.instruction = instruction.next});
        break;
      case Operation::foldedText:
        return passesLetter(place);
      case Operation::greedyLoop:
      case Operation::lazyLoop:
        passesIteration(place);
        break;
      case Operation::choice:
        for (std::uint32_t i = 0; i < instruction.next; ++i)
          reached_.push_back(program_.targets[instruction.first + i].instruction);
        break;
      case Operation::jump:
      case Operation::lookAhead:
      case Operation::negativeLookAhead:
        reached_.push_back(instruction.next);
        break;
      default:
        reached_.push_back(index + 1);
        break;
    }
    return true;
  }

  bool passesLetter(const Place& place) {
    const auto [index, taken] = place;
    const Instruction& text = program_.code[index];
    const Letter letter = program_.letters[text.first + taken];
    for (const ClassId id : classes_.classesWith(letter)) {
      if (classes_.folding(id).front() != letter) continue;
      if (classes_.folding(id).size() > 1) return false;
      setBit(step_, id);
    }
    behind_.insert(taken + 1 < text.count ? Place{.instruction = index, .taken = taken + 1}
                                          : Place{.instruction = text.next});
    return true;
  }

  // A counted loop stays a few iterations; then it may go on after any of them.
  void passesIteration(const Place& place) {
    const auto [index, taken] = place;
    const Instruction& loop = program_.code[index];
    const Repetition& repetition = program_.repetitions[loop.count];
    unite(step_, sets_.bits(loop.first));
    if (repetition.exception != 0)
      unite(step_,
            sets_.bits(
                program_.exceptions[repetition.exception - std::size_t{1}].firstSet.classes()));
    if (repetition.min > taken + 1) {
      behind_.insert({.instruction = index, .taken = taken + 1});
    } else {
      behind_.insert({.instruction = index + 1});
      if (repetition.max > repetition.min) behind_.insert(place);
    }
    if (repetition.min == 0) reached_.push_back(index + 1);
  }

  const PatternProgram<Owned>& program_;
  const ClassPartition& classes_;
  const ClassSetPool& sets_;
  std::set<Place> here_;                ///< before the next code point
  std::set<Place> behind_;              ///< behind it
  std::vector<std::uint32_t> reached_;  ///< from the latest place, without a code point
  ClassBits step_;                      ///< what the next code point can be of
};

}  // namespace

PatternProgram<Owned> compileProgram(const Node& pattern, const ClassPartition& classes,
                                     ClassSetPool& sets) {
  return ProgramCompiler(classes, sets).compile(pattern);
}

std::vector<ClassBits> prefixClasses(const PatternProgram<Owned>& program,
                                     const ProgramEntry& entry, std::size_t longest,
                                     const ClassPartition& classes, const ClassSetPool& sets) {
  return PrefixWalk(program, classes, sets).from(entry, longest);
}

}  // namespace quillseal::screening
