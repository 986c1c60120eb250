// Compiles many patterns to the tables of one `ScreeningEngine`.
//
// Algorithm: parse all patterns, split those that consist of look-aheads over the whole text into
// independent searches, make the alternatives that several patterns have a search that these share,
// build one partition of classes, one program for each search and one literal index for all. For
// each alternative of a search, the cheaper prefilter is taken: its required-literal sequences, or
// the prefix classes of its first eight code points.
// Bound: three seconds for 217 patterns; at build time only.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (look-aheads over the whole text, shared
// alternatives), ScreeningEngine.WhatPatternsShareIsSearchedForOnce,
// ScreeningEngine.ReportsPatternsItCannotUseAndKeepsTheOthers.

#include "core/screening/compile/TableCompiler.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <unordered_map>
#include <utility>

#include "core/screening/compile/ClassPartition.h"
#include "core/screening/compile/CommonWords.h"
#include "core/screening/compile/LiteralIndexBuilder.h"
#include "core/screening/compile/PatternSyntax.h"
#include "core/screening/compile/ProgramCompiler.h"
#include "core/screening/compile/RequiredLiterals.h"
#include "core/screening/compile/TextFrequency.h"
#include "core/screening/match/ScreeningTables.h"
#include "core/screening/match/WordBits.h"

namespace quillseal::screening {
namespace {

/// How many of a match's first code points the prefix-class search looks at.
constexpr std::size_t maxPrefixLength = 8;

// In units of one literal met in the text.
constexpr double costOfPrefixBit = 0.002;  ///< of advancing one first class at each code point
/// Expected frequency of a class beyond ASCII.
constexpr double rareClass = 0.0001;

template <typename Number>
Number narrowed(std::size_t value) {
  if (value >= std::numeric_limits<Number>::max()) throw PatternError("too many patterns");
  return static_cast<Number>(value);
}

// ---- From patterns to searches

/// A pattern, or a part of one or several that is searched for by itself.
struct Part {
  Node node;
  bool anyMatch = false;  ///< whether there is a match is all that matters
  std::vector<std::size_t> patterns{};
  /// Of the alternatives that are left to the pattern alone, their places among all of its `all`.
  std::optional<std::vector<std::size_t>> places{};
  std::size_t all = 0;
};

/// How the matches of a pattern follow from those of its parts.
struct Composition {
  std::vector<Node> required{};   ///< must all have a match
  std::vector<Node> forbidden{};  ///< must have none
  std::optional<Node> main{};     ///< its first match is the pattern's
  bool fromTextStart = false;     ///< the match starts at 0 wherever the main one starts
};

bool isEverything(const Node& node, const SetTable& sets) {
  return node.kind == Node::Kind::set && sets[node.set] == CodePointRanges{{0, 0x10FFFF}};
}

bool isAnyText(const Node& node, const SetTable& sets) {
  return node.kind == Node::Kind::repetition && node.min == 0 && node.max == unbounded &&
         isEverything(node.children.front(), sets);
}

/// `node` without its first `count` children.
Node withoutFirst(const Node& node, std::size_t count) {
  Node rest{.kind = Node::Kind::sequence};
  rest.children.assign(node.children.begin() + static_cast<std::ptrdiff_t>(count),
                       node.children.end());
  return rest;
}

/// A look-ahead over [\s\S]* says that its body is found somewhere from here on. At the start of
/// the text that is anywhere; and where it fails at the start it fails behind it. Nothing when the
/// pattern is not made of such look-aheads.
std::optional<Composition> lookAheadsOf(const Node& node, const SetTable& sets) {
  if (node.kind == Node::Kind::lookAhead) {
    Node sequence{.kind = Node::Kind::sequence};
    sequence.children.push_back(node);
    return lookAheadsOf(sequence, sets);
  }
  if (node.kind != Node::Kind::sequence || node.children.empty()) return std::nullopt;
  const auto& children = node.children;
  const bool anchored = children.front().kind == Node::Kind::textStart;
  std::size_t next = anchored ? 1 : 0;
  Composition composition{.fromTextStart = true};
  for (; next < children.size() && children[next].kind == Node::Kind::lookAhead; ++next) {
    const Node& body = children[next].children.front();
    if (body.kind != Node::Kind::sequence || body.children.size() < 2 ||
        !isAnyText(body.children.front(), sets))
      return std::nullopt;
    (children[next].negative ? composition.forbidden : composition.required)
        .push_back(withoutFirst(body, 1));
  }
  if (composition.required.empty() && composition.forbidden.empty()) return std::nullopt;
  if (next == children.size())
    return anchored || composition.forbidden.empty() ? std::optional(composition) : std::nullopt;
  if (!anchored || !isAnyText(children[next], sets) || !children[next].lazy ||
      next + 1 == children.size())
    return std::nullopt;
  composition.main = withoutFirst(node, next + 1);
  return composition;
}

// ---- Alternatives that patterns share

bool hasTextStart(const Node& node) {
  return node.kind == Node::Kind::textStart || std::ranges::any_of(node.children, hasTextStart);
}

struct NodeHash {
  std::size_t operator()(const Node* node) const {
    std::size_t hash = std::hash<std::u32string>()(node->text);
    const auto add = [&hash](std::size_t value) { hash = hash * 1'000'003 + value; };
    for (const std::size_t value : {static_cast<std::size_t>(node->kind), node->set,
                                    std::size_t{node->min}, std::size_t{node->max}})
      add(value);
    for (const Node& child : node->children)
      add((*this)(&child));
    return hash;
  }
};

struct NodeEqual {
  bool operator()(const Node* one, const Node* other) const { return *one == *other; }
};

/// Where an alternative stands: the part, and its number there.
struct Place {
  std::size_t part = 0;
  std::size_t alternative = 0;

  [[nodiscard]] Place after(std::size_t count) const { return {part, alternative + count}; }
  bool operator==(const Place&) const = default;
};

/// Finds the runs of alternatives that stand side by side in the same parts.
class SharedAlternatives {
 public:
  explicit SharedAlternatives(std::span<const Part> parts) : parts_(parts) {
    for (std::size_t part = 0; part < parts.size(); ++part) {
      mayShare_.push_back(mayShare(parts[part]));
      if (!mayShare_.back()) continue;
      const std::vector<Node>& alternatives = parts[part].node.children;
      for (std::size_t i = 0; i < alternatives.size(); ++i) {
        std::vector<Place>& places = places_[&alternatives[i]];
        if (places.empty() || places.back().part != part) places.push_back({part, i});
      }
    }
  }

  /// All parts that have this alternative, each once; fewer than two if it is not shared.
  [[nodiscard]] std::vector<Place> placesOf(const Place& place) const {
    if (!mayShare_[place.part]) return {};
    const auto& alternatives = parts_[place.part].node.children;
    if (place.alternative >= alternatives.size()) return {};
    const std::vector<Place>& places = places_.at(&alternatives[place.alternative]);
    return std::ranges::find(places, place) == places.end() ? std::vector<Place>() : places;
  }

  /// How many alternatives from `places` on stand side by side in all of them and nowhere else.
  [[nodiscard]] std::size_t runFrom(const std::vector<Place>& places) const {
    std::size_t count = 1;
    const auto areNext = [&](const std::vector<Place>& next) {
      return std::ranges::equal(places, next, [&](const Place& first, const Place& later) {
        return first.after(count) == later;
      });
    };
    while (areNext(placesOf(places.front().after(count))))
      ++count;
    return count;
  }

 private:
  // A search that may match at the start of the text tries its alternatives together there.
  static bool mayShare(const Part& part) {
    return part.node.kind == Node::Kind::alternatives && !part.anyMatch && !hasTextStart(part.node);
  }

  std::span<const Part> parts_;
  std::vector<bool> mayShare_;  ///< by part
  std::unordered_map<const Node*, std::vector<Place>, NodeHash, NodeEqual> places_;
};

// ---- The literals that lead to a search

/// Collects the sequences of all searches and the index of their literals.
class SequenceTables {
 public:
  explicit SequenceTables(ClassSetPool& sets) : sets_(sets) {}

  void add(std::uint32_t search, const RequiredSequence& sequence) {
    const auto number = narrowed<std::uint16_t>(sequences_.size());
    sequences_.emplace_back();
    LiteralSequence added{.search = search,
                          .lead = sequence.lead,
                          .alternative = narrowed<std::uint16_t>(sequence.alternative),
                          .leadClasses = sets_.intern(sequence.leadClasses)};
    std::size_t previousElements = variants_.size();  // where its variants begin
    for (std::size_t i = 0; i < sequence.elements.size(); ++i) {
      const RequiredElement& element = sequence.elements[i];
      const bool isFirst = i == 0;
      if (!isFirst) added.span = plus(added.span, element.distance);
      const std::size_t variants = variants_.size();
      addElement(element, {.distance = ShortDistance(isFirst ? sequence.lead : element.distance),
                           .sequence = number,
                           .search = narrowed<std::uint16_t>(search),
                           .element = narrowed<std::uint16_t>(elementCount_++),
                           .properties = static_cast<std::uint8_t>(
                               (isFirst ? ElementVariant::first : 0) |
                               (element.boundaryBefore ? ElementVariant::boundaryBefore : 0) |
                               (element.boundaryAfter ? ElementVariant::boundaryAfter : 0))});
      for (std::size_t variant = previousElements; variant < variants; ++variant) {
        variants_[variant].nextVariant = narrowed<std::uint16_t>(variants);
        variants_[variant].nextCount = narrowed<std::uint16_t>(variants_.size() - variants);
      }
      previousElements = variants;
    }
    sequences_[number] = added;
  }

  [[nodiscard]] LiteralIndexTable<Owned> index(const ClassPartition& classes) const {
    return index_.build(classes);
  }

  void moveInto(ScreeningTable<Owned>& table) {
    table.firstVariants.resize(variants_.size() / 64 + 1);
    for (std::size_t variant = 0; variant < variants_.size(); ++variant)
      if (variants_[variant].has(ElementVariant::first)) setBit(table.firstVariants, variant);
    table.variants = std::move(variants_);
    table.sequences = std::move(sequences_);
    table.elementCount = elementCount_;
  }

 private:
  /// Literals of one length share a variant.
  void addElement(const RequiredElement& element, ElementVariant variant) {
    std::map<std::size_t, std::uint16_t> variantOfLength;
    for (const Literal& literal : element.literals) {
      const auto [known, isNew] =
          variantOfLength.try_emplace(literal.size(), narrowed<std::uint16_t>(variants_.size()));
      if (isNew) {
        variant.length = narrowed<std::uint8_t>(literal.size());
        variants_.push_back(variant);
      }
      index_.add(literal, known->second);
    }
  }

  ClassSetPool& sets_;
  LiteralIndexBuilder index_;
  std::vector<ElementVariant> variants_;
  std::vector<LiteralSequence> sequences_;
  std::size_t elementCount_ = 0;
};

// ---- The first classes of those that no literal leads to

class PrefixTables {
 public:
  PrefixTables(const ClassPartition& classes, const ClassSetPool& sets)
      : classes_(classes), sets_(sets) {
    frequencies_.assign(classes.count(), rareClass);
    for (char32_t c = 0; c < 0x80; ++c)
      frequencies_[classes.classOf(c)] += expectedFrequency(c);
  }

  /// Whether an alternative is found more cheaply by its first classes than by these sequences.
  [[nodiscard]] bool isCheaper(const PatternProgram<Owned>& program,
                               std::span<const RequiredSequence> sequences) const {
    const auto prefix = prefixClasses(program, program.alternative(sequences.front().alternative),
                                      maxPrefixLength, classes_, sets_);
    if (prefix.empty()) return false;
    const double cost = sequences.front().costOfMatch * frequencyOf(prefix) +
                        costOfPrefixBit * static_cast<double>(prefix.size());
    double costOfSequences = 0;
    for (const RequiredSequence& sequence : sequences)
      costOfSequences += sequence.cost;
    return cost < costOfSequences;
  }

  void add(std::uint32_t search, std::uint32_t alternative, const PatternProgram<Owned>& program) {
    const ProgramEntry& entry = program.alternative(alternative);
    auto prefix = prefixClasses(program, entry, maxPrefixLength, classes_, sets_);
    if (prefix.empty()) {
      if (entry.firstSet.isAny()) {
        prefix.emplace_back(sets_.words(), ~std::uint64_t{0});
        maybeEmpty_.push_back({.search = search, .alternative = alternative});
      } else {
        prefix.push_back(sets_.bits(entry.firstSet.classes()));
      }
    }
    std::size_t bit = ends_.size();
    if (bit % 64 + prefix.size() > 64) bit += 64 - bit % 64;
    ends_.resize(bit + prefix.size());
    classesOfBits_.resize(ends_.size());
    initial_.resize(words());
    final_.resize(words());
    setBit(initial_, bit);
    std::move(prefix.begin(), prefix.end(),
              classesOfBits_.begin() + static_cast<std::ptrdiff_t>(bit));
    bit += prefix.size() - 1;
    setBit(final_, bit);
    ends_[bit] = {.search = search,
                  .alternative = alternative,
                  .length = static_cast<std::uint32_t>(prefix.size())};
  }

  void moveInto(ScreeningTable<Owned>& table) {
    table.prefixMasks.resize(classes_.count() * words());
    for (std::size_t bit = 0; bit < classesOfBits_.size(); ++bit) {
      const ClassBits& members = classesOfBits_[bit];
      if (members.empty()) continue;
      for (std::size_t id = 0; id < classes_.count(); ++id)
        if (hasBit(members, id))
          setBit(table.prefixMasks, (bit / 128 * classes_.count() + id) * 128 + bit % 128);
    }
    table.prefixInitial = std::move(initial_);
    table.prefixFinal = std::move(final_);
    table.prefixEnds = std::move(ends_);
    table.maybeEmpty = std::move(maybeEmpty_);
  }

 private:
  /// How often a text has these classes side by side, by letters and by common words.
  [[nodiscard]] double frequencyOf(std::span<const ClassBits> prefix) const {
    std::vector<double> each;
    for (const ClassBits& bits : prefix) {
      double frequency = 0;
      for (std::size_t id = 0; id < classes_.count(); ++id)
        if (hasBit(bits, id)) frequency += frequencies_[id];
      each.push_back(std::min(frequency, 1.0));
    }
    const auto timesRest = [&each](double frequency, std::size_t from) {
      return std::accumulate(each.begin() + static_cast<std::ptrdiff_t>(from), each.end(),
                             frequency, std::multiplies<>());
    };
    double sum = timesRest(1, 0);
    for (const CommonWord& word : commonWords()) {
      const std::u32string_view start = word.word.substr(0, prefix.size());
      const bool isMet = std::ranges::equal(
          start, prefix.first(start.size()),
          [this](char32_t c, const ClassBits& bits) { return hasBit(bits, classes_.classOf(c)); });
      if (isMet) sum += timesRest(word.frequency, start.size());
    }
    return std::min(sum, 1.0);
  }

  /// Words are advanced in pairs.
  [[nodiscard]] std::size_t words() const { return (classesOfBits_.size() + 127) / 128 * 2; }

  const ClassPartition& classes_;
  const ClassSetPool& sets_;
  std::vector<double> frequencies_;  ///< of the members of a class, in an ordinary text
  std::vector<ClassBits> classesOfBits_;
  std::vector<std::uint64_t> initial_;
  std::vector<std::uint64_t> final_;
  std::vector<PrefixEnd> ends_;
  std::vector<PrefixEnd> maybeEmpty_;
};

// ---- All together

class TableCompiler {
 public:
  CompiledPatterns compile(std::span<const Pattern> patterns) {
    for (std::size_t i = 0; i < patterns.size(); ++i) {
      table_.forms.emplace_back();
      try {
        addPattern(i, parsePattern(patterns[i], sets_));
      } catch (const PatternError& error) {
        leaveOut(i, error);
      }
    }
    std::vector<SearchTraits> searches = shareAlternatives();
    std::vector<char32_t> alphabet;
    for (const Part& part : parts_)
      collectAlphabet(part.node, sets_, alphabet);
    ClassPartition classes(sets_, std::move(alphabet));
    ClassSetPool classSets(classes.count());
    SequenceTables sequences(classSets);
    PrefixTables prefix(classes, classSets);
    for (const Part& part : parts_) {
      table_.searches.push_back(searches[programs_.size()]);
      programs_.emplace_back();
      try {
        programs_.back() = compileProgram(part.node, classes, classSets);
        spreadEntries(part);
        addWaysToFind(part, classes, sequences, prefix);
      } catch (const PatternError& error) {
        for (const std::size_t pattern : part.patterns)
          leaveOut(pattern, error);
      }
    }

    LiteralIndexTable<Owned> index = sequences.index(classes);
    sequences.moveInto(table_);
    prefix.moveInto(table_);
    // These come first, so that `unusablePatterns` reads nothing else.
    TableWriter writer;
    writer(unusable());
    classes.table().transfer(writer);
    classSets.table().transfer(writer);
    index.transfer(writer);
    table_.transfer(writer);
    for (PatternProgram<Owned>& program : programs_)
      program.transfer(writer);
    return {.tables = writer.bytes(), .problems = std::move(problems_)};
  }

 private:
  void addPattern(std::size_t pattern, Node node) {
    Composition composition;
    if (auto lookAheads = lookAheadsOf(node, sets_)) {
      composition = std::move(*lookAheads);
    } else {
      composition.main = std::move(node);
    }
    Form& form = table_.forms[pattern];
    form = {.firstSearch = narrowed<std::uint16_t>(table_.formSearches.size()),
            .required = narrowed<std::uint16_t>(composition.required.size()),
            .forbidden = narrowed<std::uint16_t>(composition.forbidden.size()),
            .fromTextStart = composition.fromTextStart};
    const auto addPart = [&](Node part, bool anyMatch) {
      parts_.push_back({.node = std::move(part), .anyMatch = anyMatch, .patterns = {pattern}});
      return narrowed<std::uint16_t>(parts_.size() - 1);
    };
    for (std::vector<Node>* parts : {&composition.required, &composition.forbidden})
      for (Node& part : *parts)
        table_.formSearches.push_back(addPart(std::move(part), true));
    if (composition.main) form.main = addPart(std::move(*composition.main), false);
  }

  /// Makes each run of shared alternatives a part of its own. Returns the traits of all searches.
  std::vector<SearchTraits> shareAlternatives() {
    const std::size_t own = parts_.size();
    std::vector<std::vector<std::size_t>> kept(own);
    std::vector<std::vector<std::uint16_t>> shared(own);
    std::vector<Part> added;
    std::vector<SearchTraits> traits(own);
    const SharedAlternatives all(parts_);
    for (std::size_t part = 0; part < own; ++part) {
      traits[part].anyMatch = parts_[part].anyMatch;
      for (std::size_t i = 0; i < parts_[part].node.children.size();) {
        const std::vector<Place> places = all.placesOf({part, i});
        if (places.size() < 2) {
          kept[part].push_back(i++);
          continue;
        }
        const std::size_t count = all.runFrom(places);
        if (places.front().part == part) {
          const auto& alternatives = parts_[part].node.children;
          const auto first = alternatives.begin() + static_cast<std::ptrdiff_t>(i);
          Part run{.node = {.kind = Node::Kind::alternatives}};
          run.node.children.assign(first, first + static_cast<std::ptrdiff_t>(count));
          traits.push_back({.firstUser = narrowed<std::uint16_t>(table_.users.size()),
                            .users = narrowed<std::uint16_t>(places.size())});
          for (const Place& place : places) {
            table_.users.push_back(
                {.search = narrowed<std::uint16_t>(place.part),
                 .firstAlternative = narrowed<std::uint16_t>(place.alternative)});
            run.patterns.push_back(parts_[place.part].patterns.front());
            shared[place.part].push_back(narrowed<std::uint16_t>(own + added.size()));
          }
          added.push_back(std::move(run));
        }
        i += count;
      }
    }
    for (std::size_t part = 0; part < own; ++part) {
      traits[part].firstShared = narrowed<std::uint16_t>(table_.sharedSearches.size());
      traits[part].shared = narrowed<std::uint16_t>(shared[part].size());
      table_.sharedSearches.insert(table_.sharedSearches.end(), shared[part].begin(),
                                   shared[part].end());
      if (!shared[part].empty()) keepOnly(kept[part], parts_[part]);
    }
    std::ranges::move(added, std::back_inserter(parts_));
    return traits;
  }

  static void keepOnly(const std::vector<std::size_t>& places, Part& part) {
    part.all = part.node.children.size();
    std::vector<Node> children = std::exchange(part.node.children, {});
    for (const std::size_t place : places)
      part.node.children.push_back(std::move(children[place]));
    part.places = places;
  }

  /// The alternatives of the latest search keep their numbers; nothing leads to those between.
  void spreadEntries(const Part& part) {
    if (!part.places) return;
    auto& entries = programs_.back().entries;
    std::vector<ProgramEntry> spread(part.all + 1);
    spread.front() = entries.front();
    for (std::size_t i = 0; i < part.places->size(); ++i)
      spread[(*part.places)[i] + 1] = entries[i + 1];
    entries = std::move(spread);
  }

  void leaveOut(std::size_t pattern, const PatternError& error) {
    if (!table_.forms[pattern].isUsable) return;
    table_.forms[pattern] = {.isUsable = false};
    problems_.push_back({.pattern = pattern, .reason = error.what()});
  }

  [[nodiscard]] std::vector<std::uint16_t> unusable() const {
    std::vector<std::uint16_t> patterns;
    for (std::size_t pattern = 0; pattern < table_.forms.size(); ++pattern)
      if (!table_.forms[pattern].isUsable) patterns.push_back(static_cast<std::uint16_t>(pattern));
    return patterns;
  }

  /// Of the latest search.
  void addWaysToFind(const Part& part, const ClassPartition& classes, SequenceTables& sequences,
                     PrefixTables& prefix) {
    const auto search = static_cast<std::uint32_t>(programs_.size() - 1);
    const PatternProgram<Owned>& program = programs_.back();
    RequiredLiterals required = requiredLiterals(part.node, sets_, classes);
    if (part.places) {
      for (std::size_t& alternative : required.withoutLiterals)
        alternative = (*part.places)[alternative];
      for (RequiredSequence& sequence : required.sequences)
        sequence.alternative = (*part.places)[sequence.alternative];
    }
    for (const std::size_t alternative : required.withoutLiterals)
      prefix.add(search, static_cast<std::uint32_t>(alternative), program);
    table_.searches.back().atTextStart = required.atTextStart;
    for (auto first = required.sequences.begin(); first != required.sequences.end();) {
      const auto isOther = [&](const RequiredSequence& sequence) {
        return sequence.alternative != first->alternative;
      };
      const auto last = std::find_if(first, required.sequences.end(), isOther);
      if (prefix.isCheaper(program, {first, last})) {
        prefix.add(search, static_cast<std::uint32_t>(first->alternative), program);
      } else {
        for (const RequiredSequence& sequence : std::span(first, last))
          sequences.add(search, sequence);
      }
      first = last;
    }
  }

  SetTable sets_;
  std::vector<Part> parts_;
  std::vector<PatternProgram<Owned>> programs_;
  ScreeningTable<Owned> table_;
  std::vector<PatternProblem> problems_;
};

}  // namespace

CompiledPatterns compilePatterns(std::span<const Pattern> patterns) {
  return TableCompiler().compile(patterns);
}

}  // namespace quillseal::screening
