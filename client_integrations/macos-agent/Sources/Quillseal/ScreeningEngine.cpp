#include "Quillseal/ScreeningEngine.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <new>
#include <optional>

#include "Quillseal/CharacterClasses.h"
#include "Quillseal/LiteralIndex.h"
#include "Quillseal/PatternProgram.h"
#include "Quillseal/PatternSyntax.h"
#include "Quillseal/RequiredLiterals.h"
#include "Quillseal/TextFrequency.h"
#include "Quillseal/UnicodeText.h"

namespace quillseal::screening {
namespace {

constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

/// How many of a match's first code points the leading-class search looks at.
constexpr std::size_t longestLeading = 8;

// What finding matches by their first classes costs, in units of one literal met in the text.
constexpr double costOfRun = 10;
constexpr double costOfLeadingBit = 0.002;  ///< of advancing one bit at each code point
/// Expected frequency of a class beyond ASCII.
constexpr double rareClass = 0.0001;

/// A pattern, or a part of one that is searched for by itself.
struct Search {
  PatternProgram program;
  bool atTextStart = false;  ///< a match may start at 0 without any literal
  bool anyMatch = false;     ///< whether there is a match is all that matters
};

/// One link of one chain, as the literal index reports it.
struct LinkHit {
  std::uint32_t chain = 0;
  std::uint32_t reach = 0;   ///< its place among the links of all chains
  Distance distance{};       ///< from the end of the link before
  std::uint32_t search = 0;  ///< for a first link that stands at the start, else `none`
  std::uint8_t length = 0;   ///< letters of the literal
  bool isFirst = false;
  bool isLast = false;
  bool boundaryBefore = false;
  bool boundaryAfter = false;
};

struct Chain {
  std::uint32_t search = 0;
  std::uint32_t alternative = 0;
  std::uint32_t lead = 0;
  Distance span{};  ///< from the end of the first link to that of the last
  ClassSetId leadClasses = 0;
};

/// How the matches of a pattern follow from its searches.
struct Form {
  std::vector<std::size_t> required{};   ///< searches that must all have a match
  std::vector<std::size_t> forbidden{};  ///< searches that must have none
  std::optional<std::size_t> main{};     ///< whose first match is the pattern's
  bool fromTextStart = false;            ///< the match starts at 0 wherever the main one starts
  bool usable = true;
};

bool isEverything(const Node& node, const SetTable& sets) {
  return node.kind == Node::Kind::Set && sets[node.set] == CodePointRanges{{0, 0x10FFFF}};
}

bool isAnyText(const Node& node, const SetTable& sets) {
  return node.kind == Node::Kind::Repetition && node.min == 0 && node.max == unbounded &&
         isEverything(node.children.front(), sets);
}

/// `node` without its first `count` children.
Node withoutFirst(const Node& node, std::size_t count) {
  Node rest{.kind = Node::Kind::Sequence};
  rest.children.assign(node.children.begin() + static_cast<std::ptrdiff_t>(count),
                       node.children.end());
  return rest;
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Tables

class ScreeningEngine::Tables {
 public:
  explicit Tables(std::span<const Pattern> patterns) {
    SetTable sets;
    struct Part {
      Node node;
      bool anyMatch;
      std::size_t pattern;
    };
    const auto disable = [this](std::size_t pattern, const PatternError& error) {
      forms[pattern] = {.usable = false};
      problems.push_back({.pattern = pattern, .reason = error.what()});
    };
    std::vector<Part> parts;
    parts.reserve(2 * patterns.size());
    for (std::size_t i = 0; i < patterns.size(); ++i) {
      forms.emplace_back();
      try {
        Node node = parsePattern(patterns[i].expression, patterns[i].caseInsensitive, sets);
        const auto addPart = [&](Node part, bool anyMatch) {
          parts.push_back({std::move(part), anyMatch, i});
          return parts.size() - 1;
        };
        if (!takeLookAheads(node, sets, forms.back(), addPart))
          forms.back().main = addPart(std::move(node), false);
      } catch (const PatternError& error) {
        disable(i, error);
      }
    }
    std::vector<char32_t> alphabet;
    for (const Part& part : parts)
      collectAlphabet(part.node, sets, alphabet);
    classes.emplace(sets, std::move(alphabet));
    classSets.emplace(classes->count());
    for (std::size_t id = 0; id < classes->count(); ++id)
      classFrequencies.push_back(rareClass);
    for (char32_t c = 0; c < 0x80; ++c)
      classFrequencies[classes->classOf(c)] += expectedFrequency(c);
    for (const Part& part : parts) {
      const std::size_t count = searches.size();
      try {
        addSearch(part.node, part.anyMatch, sets);
      } catch (const PatternError& error) {
        disable(part.pattern, error);
        // The others are known by their number.
        if (searches.size() == count)
          searches.push_back({.program = PatternProgram(Node{}, *classes, *classSets)});
      }
    }
    index.finish(*classes);
    classSets->finish();
    hits.shrink_to_fit();
    chains.shrink_to_fit();
    searches.shrink_to_fit();
    fillLeadingMasks();
  }

  std::optional<CharacterClasses> classes;
  std::optional<ClassSets> classSets;
  LiteralIndex index;
  std::vector<LinkHit> hits;  ///< the values of `index`
  std::vector<Chain> chains;
  std::size_t linkCount = 0;
  std::vector<Search> searches;
  std::vector<Form> forms;
  std::vector<PatternProblem> problems;

  // Searches without a required literal: a bit for each of their leading classes, all advanced at
  // once by a shift (Baeza-Yates and Gonnet, "A new approach to text searching", 1992).
  struct LeadingEnd {
    std::uint32_t search = 0;
    std::uint32_t alternative = 0;
    std::uint32_t length = 0;
  };
  std::size_t leadingWords = 0;
  std::vector<std::uint64_t> leadingInitial;
  std::vector<std::uint64_t> leadingMasks;  ///< `leadingWords` for each class
  std::vector<std::uint64_t> leadingFinal;
  std::vector<LeadingEnd> leadingEnds;  ///< by bit
  std::vector<LeadingEnd> maybeEmpty;   ///< those that may match without a code point

 private:
  std::vector<double> classFrequencies;  ///< of the members of a class, in an ordinary text
  std::vector<std::vector<std::uint64_t>> leadingClassesOfBits;

  // A look-ahead over [\s\S]* says that its body is found somewhere from here on. At the start of
  // the text that is anywhere; and where it fails at the start it fails behind it.
  template <typename AddPart>
  static bool takeLookAheads(const Node& node, const SetTable& sets, Form& form, AddPart addPart) {
    if (node.kind == Node::Kind::LookAhead) {
      Node sequence{.kind = Node::Kind::Sequence};
      sequence.children.push_back(node);
      return takeLookAheads(sequence, sets, form, addPart);
    }
    if (node.kind != Node::Kind::Sequence || node.children.empty()) return false;
    const auto& children = node.children;
    const bool anchored = children.front().kind == Node::Kind::TextStart;
    std::size_t next = anchored ? 1 : 0;
    std::vector<const Node*> looks;
    bool anyNegative = false;
    for (; next < children.size() && children[next].kind == Node::Kind::LookAhead; ++next) {
      const Node& body = children[next].children.front();
      if (body.kind != Node::Kind::Sequence || body.children.size() < 2 ||
          !isAnyText(body.children.front(), sets))
        return false;
      looks.push_back(&children[next]);
      anyNegative = anyNegative || children[next].negative;
    }
    if (looks.empty()) return false;
    const bool endsHere = next == children.size();
    const bool searchesOn = !endsHere && anchored && isAnyText(children[next], sets) &&
                            children[next].lazy && next + 1 < children.size();
    if (!(endsHere && (anchored || !anyNegative)) && !searchesOn) return false;
    for (const Node* look : looks)
      (look->negative ? form.forbidden : form.required)
          .push_back(addPart(withoutFirst(look->children.front(), 1), true));
    if (searchesOn) form.main = addPart(withoutFirst(node, next + 1), false);
    form.fromTextStart = true;
    return true;
  }

  void addSearch(const Node& node, bool anyMatch, const SetTable& sets) {
    const auto search = static_cast<std::uint32_t>(searches.size());
    searches.push_back(
        {.program = PatternProgram(node, *classes, *classSets), .anyMatch = anyMatch});
    const RequiredLiterals required = requiredLiterals(node, sets, *classes);
    for (const std::size_t alternative : required.withoutLiterals)
      addLeading(search, static_cast<std::uint32_t>(alternative));
    searches.back().atTextStart = required.atTextStart;
    for (auto first = required.chains.begin(); first != required.chains.end();) {
      const auto isOther = [&](const LiteralChain& chain) {
        return chain.alternative != first->alternative;
      };
      const auto last = std::find_if(first, required.chains.end(), isOther);
      if (!leadingIsCheaper(search, {first, last}))
        for (const LiteralChain& chain : std::span(first, last))
          addChain(search, chain);
      else
        addLeading(search, static_cast<std::uint32_t>(first->alternative));
      first = last;
    }
  }

  /// Whether an alternative is found more cheaply by its first classes than by these chains.
  bool leadingIsCheaper(std::uint32_t search, std::span<const LiteralChain> others) {
    const PatternProgram& program = searches[search].program;
    const auto leading = program.leadingClasses(program.alternative(others.front().alternative),
                                                longestLeading, *classes, *classSets);
    if (leading.empty()) return false;
    double cost = costOfRun;
    for (const auto& bits : leading) {
      double frequency = 0;
      for (std::size_t id = 0; id < classes->count(); ++id)
        if ((bits[id / 64] >> (id % 64) & 1) != 0) frequency += classFrequencies[id];
      cost *= std::min(frequency, 1.0);
    }
    cost += costOfLeadingBit * static_cast<double>(leading.size());
    double costOfChains = 0;
    for (const LiteralChain& chain : others)
      costOfChains += chain.cost;
    return cost < costOfChains;
  }

  void addChain(std::uint32_t search, const LiteralChain& chain) {
    const auto number = static_cast<std::uint32_t>(chains.size());
    chains.emplace_back();
    Chain added{.search = search,
                .alternative = static_cast<std::uint32_t>(chain.alternative),
                .lead = chain.lead.steps,
                .leadClasses = classSets->intern(chain.leadClasses)};
    for (std::size_t i = 0; i < chain.links.size(); ++i) {
      const LiteralLink& link = chain.links[i];
      if (i > 0) added.span = plus(added.span, link.distance);
      LinkHit hit{.chain = number,
                  .reach = static_cast<std::uint32_t>(linkCount++),
                  .distance = link.distance,
                  .search = i == 0 && added.lead == 0 ? search : none,
                  .isFirst = i == 0,
                  .isLast = i + 1 == chain.links.size(),
                  .boundaryBefore = link.boundaryBefore,
                  .boundaryAfter = link.boundaryAfter};
      for (const auto& literal : link.literals) {
        if (literal.size() > std::numeric_limits<std::uint8_t>::max())
          throw PatternError("literal too long");
        hit.length = static_cast<std::uint8_t>(literal.size());
        index.add(literal, hitNumber(hit));
      }
    }
    chains[number] = added;
  }

  /// Literals of one length in one link share a number.
  std::uint32_t hitNumber(const LinkHit& hit) {
    for (std::size_t i = hits.size(); i-- > 0 && hits[i].reach == hit.reach;)
      if (hits[i].length == hit.length) return static_cast<std::uint32_t>(i);
    hits.push_back(hit);
    return static_cast<std::uint32_t>(hits.size() - 1);
  }

  void addLeading(std::uint32_t search, std::uint32_t alternative) {
    const PatternProgram& program = searches[search].program;
    const PatternProgram::Entry& entry = program.alternative(alternative);
    auto leading = program.leadingClasses(entry, longestLeading, *classes, *classSets);
    if (leading.empty()) {
      leading.push_back(classSets->bits(entry.beginning.classes));
      if (entry.beginning.anything) {
        std::fill(leading.front().begin(), leading.front().end(), ~std::uint64_t{0});
        maybeEmpty.push_back({.search = search, .alternative = alternative});
      }
    }
    std::size_t bit = leadingEnds.size();
    if (bit % 64 + leading.size() > 64) bit += 64 - bit % 64;
    leadingEnds.resize(bit + leading.size());
    leadingClassesOfBits.resize(leadingEnds.size());
    leadingWords = (leadingEnds.size() + 63) / 64;
    leadingInitial.resize(leadingWords);
    leadingFinal.resize(leadingWords);
    leadingInitial[bit / 64] |= std::uint64_t{1} << (bit % 64);
    std::move(leading.begin(), leading.end(),
              leadingClassesOfBits.begin() + static_cast<std::ptrdiff_t>(bit));
    bit += leading.size() - 1;
    leadingFinal[bit / 64] |= std::uint64_t{1} << (bit % 64);
    leadingEnds[bit] = {.search = search,
                        .alternative = alternative,
                        .length = static_cast<std::uint32_t>(leading.size())};
  }

  void fillLeadingMasks() {
    leadingMasks.resize(classes->count() * leadingWords);
    for (std::size_t bit = 0; bit < leadingClassesOfBits.size(); ++bit) {
      const auto& members = leadingClassesOfBits[bit];
      if (members.empty()) continue;
      for (std::size_t id = 0; id < classes->count(); ++id)
        leadingMasks[id * leadingWords + bit / 64] |= (members[id / 64] >> (id % 64) & 1)
                                                      << (bit % 64);
    }
    leadingClassesOfBits = decltype(leadingClassesOfBits)();
  }
};

// ---------------------------------------------------------------------------------------------
// One screening

class ScreeningEngine::Screening {
 public:
  Screening(const Tables& tables, std::string_view text)
      : tables_(tables), text_(tables.classes->classify(text)) {
    outcomes_.resize(tables.searches.size());
    progress_.resize(tables.chains.size());
    reached_.assign(tables.linkCount, {.steps = never, .runs = never});
  }

  void run() {
    for (std::uint32_t search = 0; search < tables_.searches.size(); ++search)
      if (tables_.searches[search].atTextStart)
        tryAt(search, 0, tables_.searches[search].program.whole(), 0);
    if (tables_.leadingWords > 0) {
      pass<true>();
    } else {
      pass<false>();
    }
    // An empty match behind the last code point has no code point to be found by.
    for (const Tables::LeadingEnd& end : tables_.maybeEmpty)
      tryAlternative(end.search, end.alternative, static_cast<std::uint32_t>(text_.size()));
  }

  [[nodiscard]] std::vector<PatternMatch> matches() const {
    std::vector<PatternMatch> matches;
    for (std::size_t pattern = 0; pattern < tables_.forms.size(); ++pattern) {
      const Form& form = tables_.forms[pattern];
      if (!form.usable) continue;
      const auto isFound = [&](std::size_t search) { return outcomes_[search].start != none; };
      if (!std::all_of(form.required.begin(), form.required.end(), isFound)) continue;
      PatternMatch match{.pattern = pattern};
      const auto failed = [&](std::size_t search) { return outcomes_[search].failed; };
      const auto forbids = [&](std::size_t search) { return isFound(search) && !failed(search); };
      if (std::any_of(form.forbidden.begin(), form.forbidden.end(), forbids)) continue;
      match.failed = std::any_of(form.required.begin(), form.required.end(), failed) ||
                     std::any_of(form.forbidden.begin(), form.forbidden.end(), failed);
      if (form.main) {
        const Outcome& outcome = outcomes_[*form.main];
        if (outcome.start == none) continue;
        match.start = form.fromTextStart ? 0 : outcome.start;
        match.end = outcome.end;
        match.failed = match.failed || outcome.failed;
      }
      matches.push_back(match);
    }
    return matches;
  }

  [[nodiscard]] std::uint64_t steps() const {
    std::uint64_t steps = steps_ + text_.size();
    for (const Matcher& matcher : matchers_)
      steps += matcher.steps();
    return steps;
  }

  [[nodiscard]] std::size_t size() const { return text_.size(); }

 private:
  static constexpr std::int64_t never = std::numeric_limits<std::int64_t>::min() / 2;

  /// How far the pass has come, in the two measures of `Distance`.
  struct Progressed {
    std::int64_t steps = 0;
    std::int64_t runs = 0;
  };

  struct Outcome {
    std::uint32_t matcher = none;  ///< made when it is first needed
    std::uint32_t start = none;    ///< of the leftmost match so far
    std::uint32_t alternative = 0;
    std::uint32_t end = 0;
    bool failed = false;
  };

  /// A first link that waits for the rest of its chain.
  struct Waiting {
    std::uint32_t start = 0;
    Progressed at{};
    std::uint32_t next = none;
  };

  struct Progress {
    std::uint32_t first = none;  ///< of the waiting list
    std::uint32_t last = none;
    // Starts within [triedLow, triedHigh] have been tried.
    std::uint32_t triedLow = none;
    std::uint32_t triedHigh = 0;
  };

  template <bool withLeading>
  void pass() {
    const LiteralIndex& index = tables_.index;
    std::vector<std::uint64_t> leading(tables_.leadingWords);
    LiteralIndex::State state = index.root();
    bool afterSpace = false;
    bool afterWord = false;
    const std::size_t size = text_.size();
    for (std::size_t i = 0; i < size; ++i) {
      const ClassId id = text_.classAt(i);
      const bool isSpace = tables_.classes->isSpace(id);
      const bool isWord = tables_.classes->isWord(id);
      if constexpr (withLeading) advanceLeading(leading, id, i);
      if (isSpace && afterSpace) continue;
      now_.steps += 1;
      now_.runs += isWord && afterWord ? 0 : 1;
      afterSpace = isSpace;
      afterWord = isWord;
      state = index.advance(state, id);
      if (index.isHit(state)) {
        for (const std::uint32_t value : index.values(state))
          onHit(tables_.hits[value], i + 1);
      }
    }
  }

  void advanceLeading(std::vector<std::uint64_t>& state, ClassId id, std::size_t position) {
    const std::uint64_t* const masks = &tables_.leadingMasks[id * tables_.leadingWords];
    for (std::size_t word = 0; word < state.size(); ++word) {
      state[word] = (state[word] << 1 | tables_.leadingInitial[word]) & masks[word];
      for (std::uint64_t ends = state[word] & tables_.leadingFinal[word]; ends != 0;
           ends &= ends - 1) {
        const auto bit = word * 64 + static_cast<std::size_t>(std::countr_zero(ends));
        const auto& end = tables_.leadingEnds[bit];
        tryAlternative(end.search, end.alternative,
                       static_cast<std::uint32_t>(position + 1 - end.length));
      }
    }
  }

  [[nodiscard]] bool isWithin(const Distance& distance, const Progressed& since) const {
    return (distance.steps == unbounded || now_.steps - since.steps <= distance.steps) &&
           (distance.runs == unbounded || now_.runs - since.runs <= distance.runs);
  }

  void onHit(const LinkHit& hit, std::size_t end) {
    ++steps_;
    if (!hit.isFirst && !isWithin(hit.distance, reached_[hit.reach - 1])) return;
    if (hit.boundaryAfter && !text_.isWordBoundary(end)) return;
    std::uint32_t start = 0;
    if (hit.boundaryBefore || hit.isFirst) {
      start = startOf(hit.length, end);
      if (hit.boundaryBefore && !text_.isWordBoundary(start)) return;
      // Behind the match that is known already, no start is of interest.
      if (hit.search != none && start > outcomes_[hit.search].start) return;
    }
    reached_[hit.reach] = now_;
    if (hit.isFirst) {
      if (hit.isLast) {
        tryBefore(hit.chain, start);
      } else {
        wait(hit.chain, start);
      }
    } else if (hit.isLast) {
      complete(hit.chain);
    }
  }

  /// Where the literal of `letters` letters that ends at `end` starts.
  [[nodiscard]] std::uint32_t startOf(std::size_t letters, std::size_t end) const {
    std::size_t start = end;
    const CharacterClasses& classes = *tables_.classes;
    for (std::size_t taken = 0; taken < letters && start > 0;) {
      const ClassId id = text_.classAt(--start);
      if (!classes.isSpace(id)) {
        taken += classes.folding(id).size();
        continue;
      }
      ++taken;
      while (start > 0 && classes.isSpace(text_.classAt(start - 1)))
        --start;
    }
    return static_cast<std::uint32_t>(start);
  }

  void wait(std::uint32_t chainNumber, std::uint32_t start) {
    Progress& progress = progress_[chainNumber];
    // Those that are too far behind for the rest of the chain.
    while (progress.first != none &&
           !isWithin(tables_.chains[chainNumber].span, waiting_[progress.first].at))
      release(progress);
    std::uint32_t slot = freeSlot_;
    if (slot == none) {
      slot = static_cast<std::uint32_t>(waiting_.size());
      waiting_.emplace_back();
    } else {
      freeSlot_ = waiting_[slot].next;
    }
    waiting_[slot] = {.start = start, .at = now_};
    (progress.first == none ? progress.first : waiting_[progress.last].next) = slot;
    progress.last = slot;
  }

  void release(Progress& progress) {
    const std::uint32_t slot = progress.first;
    progress.first = waiting_[slot].next;
    waiting_[slot].next = freeSlot_;
    freeSlot_ = slot;
    ++steps_;
  }

  void complete(std::uint32_t chainNumber) {
    Progress& progress = progress_[chainNumber];
    while (progress.first != none) {
      const Waiting waiting = waiting_[progress.first];
      release(progress);
      if (isWithin(tables_.chains[chainNumber].span, waiting.at))
        tryBefore(chainNumber, waiting.start);
    }
  }

  /// Tries all starts from which the first link at `literalStart` may be reached.
  void tryBefore(std::uint32_t chainNumber, std::uint32_t literalStart) {
    const Chain& chain = tables_.chains[chainNumber];
    if (chain.lead == 0) {
      tryAlternative(chain.search, chain.alternative, literalStart);
      return;
    }
    Progress& progress = progress_[chainNumber];
    // An earlier walk has been further down, unless it set out from further up and ran out of
    // steps; then this one goes all the way.
    const bool mayStop = progress.triedLow != none &&
                         (literalStart >= progress.triedHigh || chain.lead == unbounded);
    const auto isLead = [&](std::uint32_t at) {
      return tables_.classSets->contains(chain.leadClasses, text_.classAt(at));
    };
    const auto isSpace = [&](std::uint32_t at) {
      return tables_.classes->isSpace(text_.classAt(at));
    };
    std::uint32_t low = literalStart;
    bool metEarlierWalk = false;
    for (std::uint32_t walked = 0; low > 0 && isLead(low - 1) && !metEarlierWalk; ++steps_) {
      const bool continuesRun = low < literalStart && isSpace(low) && isSpace(low - 1);
      if (!continuesRun && walked++ == chain.lead) break;
      --low;
      metEarlierWalk = mayStop && low >= progress.triedLow && low <= progress.triedHigh;
    }
    const Outcome& outcome = outcomes_[chain.search];
    for (std::uint32_t at = low; at <= literalStart && at <= outcome.start; ++at)
      tryAlternative(chain.search, chain.alternative, at);
    progress.triedLow = metEarlierWalk ? progress.triedLow : low;
    progress.triedHigh = literalStart;
  }

  void tryAlternative(std::uint32_t search, std::uint32_t alternative, std::uint32_t start) {
    tryAt(search, alternative, tables_.searches[search].program.alternative(alternative), start);
  }

  // The first match is the leftmost, and of those at one start that of the first alternative.
  void tryAt(std::uint32_t search, std::uint32_t alternative, const PatternProgram::Entry& entry,
             std::uint32_t start) {
    Outcome& outcome = outcomes_[search];
    ++steps_;
    if (start > outcome.start || (start == outcome.start && alternative >= outcome.alternative))
      return;
    if (!entry.beginning.allows(text_, start, *tables_.classSets)) return;
    try {
      const auto end = matcherOf(search).matchAt(entry, start, stack_);
      if (!end) return;
      outcome.end = static_cast<std::uint32_t>(*end);
    } catch (const std::bad_alloc&) {
      stack_.clear();
      outcome.end = static_cast<std::uint32_t>(text_.size());
      outcome.failed = true;
    }
    outcome.start = start;
    outcome.alternative = alternative;
    if (tables_.searches[search].anyMatch) {
      // Nothing comes before this, so nothing more is tried.
      outcome.start = 0;
      outcome.alternative = 0;
    }
  }

  Matcher& matcherOf(std::uint32_t search) {
    Outcome& outcome = outcomes_[search];
    if (outcome.matcher == none) {
      outcome.matcher = static_cast<std::uint32_t>(matchers_.size());
      matchers_.emplace_back(tables_.searches[search].program, *tables_.classes, *tables_.classSets,
                             text_);
    }
    return matchers_[outcome.matcher];
  }

  const Tables& tables_;
  ClassifiedText text_;
  std::vector<Outcome> outcomes_;
  std::vector<Matcher> matchers_;
  std::vector<Progress> progress_;
  std::vector<Progressed> reached_;
  std::vector<Waiting> waiting_;
  std::uint32_t freeSlot_ = none;
  BacktrackStack stack_;
  Progressed now_;
  std::uint64_t steps_ = 0;
};

// ---------------------------------------------------------------------------------------------

ScreeningEngine::ScreeningEngine(std::span<const Pattern> patterns)
    : tables_(std::make_unique<const Tables>(patterns)) {}

ScreeningEngine::~ScreeningEngine() = default;

const std::vector<PatternProblem>& ScreeningEngine::problems() const {
  return tables_->problems;
}

std::vector<PatternMatch> ScreeningEngine::firstMatches(std::string_view text,
                                                        std::uint64_t* steps) const {
  Screening screening(*tables_, text);
  screening.run();
  if (steps != nullptr) *steps = screening.steps();
  std::vector<PatternMatch> matches = screening.matches();
  if (screening.size() == text.size()) return matches;

  // From code points to bytes, in one pass.
  std::vector<std::size_t*> positions;
  for (PatternMatch& match : matches) {
    positions.push_back(&match.start);
    positions.push_back(&match.end);
  }
  std::sort(positions.begin(), positions.end(),
            [](const std::size_t* a, const std::size_t* b) { return *a < *b; });
  std::size_t codePoint = 0;
  std::size_t byte = 0;
  for (std::size_t* position : positions) {
    for (; codePoint < *position; ++codePoint)
      static_cast<void>(unicode::nextScalar(text, byte));
    *position = byte;
  }
  return matches;
}

std::size_t ScreeningEngine::memoryUse() const {
  const Tables& tables = *tables_;
  std::size_t bytes = sizeof(tables) + tables.classes->memoryUse() + tables.index.memoryUse() +
                      tables.classSets->memoryUse() + tables.hits.capacity() * sizeof(LinkHit) +
                      tables.chains.capacity() * sizeof(Chain) +
                      tables.leadingMasks.capacity() * sizeof(std::uint64_t) +
                      tables.forms.capacity() * sizeof(Form);
  for (const Search& search : tables.searches)
    bytes += search.program.memoryUse();
  return bytes;
}

}  // namespace quillseal::screening
