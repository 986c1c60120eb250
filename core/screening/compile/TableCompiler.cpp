// Compiles many patterns to the tables of one `ScreeningEngine`.
//
// Algorithm: parse all patterns, split those that consist of look-aheads over the whole text into
// independent searches, build one partition of classes, one program for each search and one literal
// index for all. For each alternative of a search, the cheaper prefilter is taken: its
// required-literal sequences, or the prefix classes of its first eight code points.
// Bound: a fifth of a second for 217 patterns; at build time only.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryConstruct (look-aheads over the whole text),
// ScreeningEngine.ReportsPatternsItCannotUseAndKeepsTheOthers.

#include "core/screening/compile/TableCompiler.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <numeric>
#include <optional>

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

/// How many of a match's first code points the leading-class search looks at.
constexpr std::size_t longestLeading = 8;

// In units of one literal met in the text.
constexpr double costOfLeadingBit = 0.002;  ///< of advancing one first class at each code point
/// Expected frequency of a class beyond ASCII.
constexpr double rareClass = 0.0001;

template <typename Number>
Number narrowed(std::size_t value) {
  if (value >= std::numeric_limits<Number>::max()) throw PatternError("too many patterns");
  return static_cast<Number>(value);
}

// ---- From patterns to searches

/// A pattern, or a part of one that is searched for by itself.
struct Part {
  Node node;
  bool anyMatch = false;  ///< whether there is a match is all that matters
  std::size_t pattern = 0;
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

// ---- The literals that lead to a search

/// Collects the chains of all searches and the index of their literals.
class ChainTables {
 public:
  explicit ChainTables(ClassSetPool& sets) : sets_(sets) {}

  void add(std::uint32_t search, const LiteralChain& chain) {
    const auto number = narrowed<std::uint16_t>(chains_.size());
    chains_.emplace_back();
    Chain added{.search = search,
                .lead = chain.lead.steps,
                .alternative = narrowed<std::uint16_t>(chain.alternative),
                .leadClasses = sets_.intern(chain.leadClasses)};
    std::size_t linkBefore = hits_.size();  // where its hits begin
    for (std::size_t i = 0; i < chain.links.size(); ++i) {
      const LiteralLink& link = chain.links[i];
      const bool isFirst = i == 0;
      if (!isFirst) added.span = plus(added.span, link.distance);
      const std::size_t hits = hits_.size();
      addLink(link, {.distance = ShortDistance(isFirst ? chain.lead : link.distance),
                     .chain = number,
                     .search = narrowed<std::uint16_t>(search),
                     .reach = narrowed<std::uint16_t>(linkCount_++),
                     .properties = static_cast<std::uint8_t>(
                         (isFirst ? LinkHit::first : 0) |
                         (link.boundaryBefore ? LinkHit::boundaryBefore : 0) |
                         (link.boundaryAfter ? LinkHit::boundaryAfter : 0))});
      for (std::size_t hit = linkBefore; hit < hits; ++hit) {
        hits_[hit].nextHit = narrowed<std::uint16_t>(hits);
        hits_[hit].nextCount = narrowed<std::uint16_t>(hits_.size() - hits);
      }
      linkBefore = hits;
    }
    chains_[number] = added;
  }

  [[nodiscard]] LiteralIndexTable<Owned> index(const ClassPartition& classes) const {
    return index_.build(classes);
  }

  void moveInto(ScreeningTable<Owned>& table) {
    table.firstHits.resize(hits_.size() / 64 + 1);
    for (std::size_t hit = 0; hit < hits_.size(); ++hit)
      if (hits_[hit].has(LinkHit::first)) setBit(table.firstHits, hit);
    table.hits = std::move(hits_);
    table.chains = std::move(chains_);
    table.linkCount = linkCount_;
  }

 private:
  /// Literals of one length share a hit.
  void addLink(const LiteralLink& link, LinkHit hit) {
    std::map<std::size_t, std::uint16_t> hitOfLength;
    for (const Literal& literal : link.literals) {
      const auto [known, isNew] =
          hitOfLength.try_emplace(literal.size(), narrowed<std::uint16_t>(hits_.size()));
      if (isNew) {
        hit.length = narrowed<std::uint8_t>(literal.size());
        hits_.push_back(hit);
      }
      index_.add(literal, known->second);
    }
  }

  ClassSetPool& sets_;
  LiteralIndexBuilder index_;
  std::vector<LinkHit> hits_;
  std::vector<Chain> chains_;
  std::size_t linkCount_ = 0;
};

// ---- The first classes of those that no literal leads to

class LeadingTables {
 public:
  LeadingTables(const ClassPartition& classes, const ClassSetPool& sets)
      : classes_(classes), sets_(sets) {
    frequencies_.assign(classes.count(), rareClass);
    for (char32_t c = 0; c < 0x80; ++c)
      frequencies_[classes.classOf(c)] += expectedFrequency(c);
  }

  /// Whether an alternative is found more cheaply by its first classes than by these chains.
  [[nodiscard]] bool isCheaper(const PatternProgram<Owned>& program,
                               std::span<const LiteralChain> chains) const {
    const auto leading = leadingClasses(program, program.alternative(chains.front().alternative),
                                        longestLeading, classes_, sets_);
    if (leading.empty()) return false;
    const double cost =
        costOfMatch * frequencyOf(leading) + costOfLeadingBit * static_cast<double>(leading.size());
    double costOfChains = 0;
    for (const LiteralChain& chain : chains)
      costOfChains += chain.cost;
    return cost < costOfChains;
  }

  void add(std::uint32_t search, std::uint32_t alternative, const PatternProgram<Owned>& program) {
    const ProgramEntry& entry = program.alternative(alternative);
    auto leading = leadingClasses(program, entry, longestLeading, classes_, sets_);
    if (leading.empty()) {
      leading.push_back(sets_.bits(entry.beginning.classes));
      if (entry.beginning.anything) {
        std::fill(leading.front().begin(), leading.front().end(), ~std::uint64_t{0});
        maybeEmpty_.push_back({.search = search, .alternative = alternative});
      }
    }
    std::size_t bit = ends_.size();
    if (bit % 64 + leading.size() > 64) bit += 64 - bit % 64;
    ends_.resize(bit + leading.size());
    classesOfBits_.resize(ends_.size());
    initial_.resize(words());
    final_.resize(words());
    setBit(initial_, bit);
    std::move(leading.begin(), leading.end(),
              classesOfBits_.begin() + static_cast<std::ptrdiff_t>(bit));
    bit += leading.size() - 1;
    setBit(final_, bit);
    ends_[bit] = {.search = search,
                  .alternative = alternative,
                  .length = static_cast<std::uint32_t>(leading.size())};
  }

  void moveInto(ScreeningTable<Owned>& table) {
    table.leadingMasks.resize(classes_.count() * words());
    for (std::size_t bit = 0; bit < classesOfBits_.size(); ++bit) {
      const ClassBits& members = classesOfBits_[bit];
      if (members.empty()) continue;
      for (std::size_t id = 0; id < classes_.count(); ++id)
        if (hasBit(members, id))
          setBit(table.leadingMasks, (bit / 128 * classes_.count() + id) * 128 + bit % 128);
    }
    table.leadingInitial = std::move(initial_);
    table.leadingFinal = std::move(final_);
    table.leadingEnds = std::move(ends_);
    table.maybeEmpty = std::move(maybeEmpty_);
  }

 private:
  /// How often a text has these classes side by side, by letters and by common words.
  [[nodiscard]] double frequencyOf(std::span<const ClassBits> leading) const {
    std::vector<double> each;
    for (const ClassBits& bits : leading) {
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
      const std::u32string_view start = word.word.substr(0, leading.size());
      const bool isMet = std::ranges::equal(
          start, leading.first(start.size()),
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
  std::vector<LeadingEnd> ends_;
  std::vector<LeadingEnd> maybeEmpty_;
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
    std::vector<char32_t> alphabet;
    for (const Part& part : parts_)
      collectAlphabet(part.node, sets_, alphabet);
    ClassPartition classes(sets_, std::move(alphabet));
    ClassSetPool classSets(classes.count());
    ChainTables chains(classSets);
    LeadingTables leading(classes, classSets);
    for (const Part& part : parts_) {
      table_.searches.push_back({.anyMatch = part.anyMatch});
      programs_.emplace_back();
      try {
        programs_.back() = compileProgram(part.node, classes, classSets);
        addWaysToFind(part.node, classes, chains, leading);
      } catch (const PatternError& error) {
        leaveOut(part.pattern, error);
      }
    }

    LiteralIndexTable<Owned> index = chains.index(classes);
    chains.moveInto(table_);
    leading.moveInto(table_);
    // First of all: who asks for these only reads no further.
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
      parts_.push_back({.node = std::move(part), .anyMatch = anyMatch, .pattern = pattern});
      return narrowed<std::uint16_t>(parts_.size() - 1);
    };
    for (std::vector<Node>* parts : {&composition.required, &composition.forbidden})
      for (Node& part : *parts)
        table_.formSearches.push_back(addPart(std::move(part), true));
    if (composition.main) form.main = addPart(std::move(*composition.main), false);
  }

  void leaveOut(std::size_t pattern, const PatternError& error) {
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
  void addWaysToFind(const Node& node, const ClassPartition& classes, ChainTables& chains,
                     LeadingTables& leading) {
    const auto search = static_cast<std::uint32_t>(programs_.size() - 1);
    const PatternProgram<Owned>& program = programs_.back();
    const RequiredLiterals required = requiredLiterals(node, sets_, classes);
    for (const std::size_t alternative : required.withoutLiterals)
      leading.add(search, static_cast<std::uint32_t>(alternative), program);
    table_.searches.back().atTextStart = required.atTextStart;
    for (auto first = required.chains.begin(); first != required.chains.end();) {
      const auto isOther = [&](const LiteralChain& chain) {
        return chain.alternative != first->alternative;
      };
      const auto last = std::find_if(first, required.chains.end(), isOther);
      if (leading.isCheaper(program, {first, last})) {
        leading.add(search, static_cast<std::uint32_t>(first->alternative), program);
      } else {
        for (const LiteralChain& chain : std::span(first, last))
          chains.add(search, chain);
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
