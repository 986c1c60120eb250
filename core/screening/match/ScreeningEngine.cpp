// Finds the first match of each pattern: prefilters propose starts, the matcher verifies them.
//
// Algorithm: two prefilters take turns over stretches of the text. The literal index reports
// literals; when all literals of a required-literal sequence stand in order and near enough to each
// other, the starts before the first one are tried. Patterns without a selective literal are found
// by the classes of their first code points, all advanced by one shift and one mask (Baeza-Yates
// and Gonnet, "A new approach to text searching", 1992). The leftmost match wins, then the earliest
// alternative. A search for alternatives that several patterns share gives each of its matches to
// all of them.
// Bound: O(n) for a given set of patterns. A scan back over the text or over the candidates stops
// where an earlier one began, and all starts of a search share the memo table.
// Tests: ScreeningEngine.AgreesWithIcuOnEveryRule, .AgreesWithIcuOnEveryConstruct (shared
// alternatives), .WorkGrowsLinearlyWithWhateverIsRepeated; `scripts/fuzz 60 screening` compares the
// engine with ICU on any bytes.

#include "core/screening/match/ScreeningEngine.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <new>
#include <optional>
#include <utility>

#include "core/screening/match/ScreeningTables.h"
#include "core/screening/match/WordBits.h"
#include "core/text/UnicodeText.h"

namespace quillseal::screening {
namespace {

/// The first of the stored tables.
std::span<const std::uint16_t> readUnusable(TableReader& reader) {
  std::span<const std::uint16_t> patterns;
  reader(patterns);
  return patterns;
}

}  // namespace

struct ScreeningEngine::Tables {
  explicit Tables(TableReader reader)
      : classes(reader), sets(reader, classes.count()), index(reader) {
    table.transfer(reader);
    programs.resize(table.searches.size());
    for (PatternProgram<Stored>& program : programs)
      program.transfer(reader);
  }

  CharacterClasses classes;
  ClassSets sets;
  LiteralIndex index;
  ScreeningTable<Stored> table;
  std::vector<PatternProgram<Stored>> programs;  ///< by search
};

// ---------------------------------------------------------------------------------------------
// One screening

class ScreeningEngine::Screening {
 public:
  Screening(const Tables& tables, std::string_view text)
      : tables_(tables), table_(tables.table), text_(tables.classes.classify(text)) {
    outcomes_.resize(table_.searches.size());
    sequenceStates_.resize(table_.sequences.size());
    scan_.state = tables.index.root();
    prefix_.resize(table_.prefixInitial.size());
    active_.assign(table_.firstVariants.begin(), table_.firstVariants.end());
    satisfied_.resize(table_.elementCount);
  }

  void run() {
    for (std::uint32_t search = 0; search < table_.searches.size(); ++search)
      if (table_.searches[search].atTextStart)
        tryAt(search, 0, tables_.programs[search].whole(), 0);
    for (std::size_t start = 0; start < text_.size(); start += chunkSize) {
      const std::size_t end = std::min(start + chunkSize, text_.size());
      runPrefixPrefilter(start, end);
      runLiteralPrefilter(start, end);
    }
    // An empty match behind the last code point has no code point to be found by.
    for (const PrefixEnd& end : table_.maybeEmpty)
      tryAlternative(end.search, end.alternative, static_cast<std::uint32_t>(text_.size()));
  }

  [[nodiscard]] std::vector<PatternMatch> matches() const {
    std::vector<PatternMatch> matches;
    for (std::size_t pattern = 0; pattern < table_.forms.size(); ++pattern) {
      const Form& form = table_.forms[pattern];
      if (!form.isUsable) continue;
      const auto searches = table_.formSearches.subspan(form.firstSearch);
      const auto required = searches.first(form.required);
      const auto forbidden = searches.subspan(form.required, form.forbidden);
      const auto isFound = [&](std::size_t search) { return outcomes_[search].start != none; };
      if (!std::all_of(required.begin(), required.end(), isFound)) continue;
      PatternMatch match{.pattern = pattern};
      const auto failed = [&](std::size_t search) { return outcomes_[search].failed; };
      const auto forbids = [&](std::size_t search) { return isFound(search) && !failed(search); };
      if (std::any_of(forbidden.begin(), forbidden.end(), forbids)) continue;
      match.failed = std::any_of(required.begin(), required.end(), failed) ||
                     std::any_of(forbidden.begin(), forbidden.end(), failed);
      if (form.main != Form::noMain) {
        const Outcome& outcome = outcomes_[form.main];
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
  /// The two prefilters take turns after this many code points, so that starts keep
  /// ascending for the most part.
  static constexpr std::size_t chunkSize = 1024;

  static constexpr std::size_t batchSize = 32;  ///< variants that are looked at together

  /// How far the pass has come, in the two measures of `Distance`.
  struct Progress {
    std::uint32_t steps = 0;
    std::uint32_t runs = 0;
  };

  struct Outcome {
    std::uint32_t matcher = none;  ///< made when it is first needed
    std::uint32_t start = none;    ///< of the leftmost match so far
    std::uint32_t alternative = 0;
    std::uint32_t end = 0;
    bool failed = false;
  };

  /// Where the search for literals stands.
  struct ScanState {
    LiteralIndex::State state = 0;
    std::uint32_t skipped = 0;         ///< code points that continue a run of white space
    std::uint32_t continuedWords = 0;  ///< code points that continue a run of word characters
  };

  /// Where a first element was satisfied whose sequence is not complete yet.
  struct Candidate {
    std::uint32_t start = 0;
    Progress at{};
    std::uint32_t sequence = 0;
  };

  struct SequenceState {
    std::uint32_t completedAt = 0;  ///< steps, when it was last completed
    // Starts within [triedLow, triedHigh] have been tried: all that lead to an element within
    // [triedFrom, triedHigh].
    std::uint32_t triedLow = none;
    std::uint32_t triedHigh = 0;
    std::uint32_t triedFrom = 0;
    Distance rest{};  ///< of the lead to an element at triedFrom, what is left at triedLow
  };

  void runLiteralPrefilter(std::size_t from, std::size_t to) {
    const LiteralIndex& index = tables_.index;
    ScanState scan = scan_;
    for (std::size_t i = from; i < to; ++i) {
      if (text_.continuesSpace(i)) {
        ++scan.skipped;
        regularFrom_ = i + 1;
        continue;
      }
      scan.continuedWords += text_.continuesWord(i) ? 1 : 0;
      const ClassId id = text_.classAt(i);
      if (index.isMultiSymbol(id)) regularFrom_ = i + 1;
      scan.state = index.advance(scan.state, id);
      if (!index.isMatch(scan.state)) continue;
      now_.steps = static_cast<std::uint32_t>(i + 1) - scan.skipped;
      now_.runs = now_.steps - scan.continuedWords;
      for (auto values = index.values(scan.state); !values.empty();
           values = values.subspan(std::min(values.size(), batchSize)))
        onLiterals(values.first(std::min(values.size(), batchSize)), i + 1);
      scan.state = index.behindMatch(scan.state);
    }
    scan_ = scan;
  }

  /// Those that are active are set apart first, since which ones are cannot be foreseen and
  /// guessing wrong costs more than looking.
  void onLiterals(std::span<const std::uint16_t> variants, std::size_t end) {
    std::array<std::uint16_t, batchSize> active;  // NOLINT(*-member-init): filled from the start on
    std::size_t count = 0;
    for (const std::uint16_t variant : variants) {
      active[count] = variant;
      count += hasBit(active_, variant) ? 1 : 0;
    }
    for (std::size_t i = 0; i < count; ++i)
      onVariant(active[i], end);
  }

  void runPrefixPrefilter(std::size_t from, std::size_t to) {
    // Two words at a time, since neither has to wait for the other.
    for (std::size_t word = 0; word < prefix_.size(); word += 2) {
      const std::uint64_t* const masks = table_.prefixMasks.data() + word * tables_.classes.count();
      const std::uint64_t* const initial = table_.prefixInitial.data() + word;
      const std::uint64_t* const final = table_.prefixFinal.data() + word;
      std::uint64_t one = prefix_[word];
      std::uint64_t other = prefix_[word + 1];
      for (std::size_t i = from; i < to;) {
        std::uint64_t ends = 0;
        while (i < to && ends == 0) {
          const std::uint64_t* const mask = masks + std::size_t{text_.classAt(i++)} * 2;
          one = (one << 1 | initial[0]) & mask[0];
          other = (other << 1 | initial[1]) & mask[1];
          ends = (one & final[0]) | (other & final[1]);
        }
        tryPrefixes(word, one & final[0], i);
        tryPrefixes(word + 1, other & final[1], i);
      }
      prefix_[word] = one;
      prefix_[word + 1] = other;
    }
  }

  void tryPrefixes(std::size_t word, std::uint64_t ends, std::size_t position) {
    for (; ends != 0; ends &= ends - 1) {
      const auto bit = word * 64 + static_cast<std::size_t>(std::countr_zero(ends));
      const PrefixEnd& end = table_.prefixEnds[bit];
      tryAlternative(end.search, end.alternative,
                     static_cast<std::uint32_t>(position - end.length));
    }
  }

  [[nodiscard]] bool isWithin(const Distance& distance, const Progress& since) const {
    static_assert(unbounded == std::numeric_limits<decltype(distance.steps)>::max());
    return now_.steps - since.steps <= distance.steps && now_.runs - since.runs <= distance.runs;
  }
  [[nodiscard]] bool isWithin(const ShortDistance& distance, const Progress& since) const {
    return isWithin({.steps = distance.steps(), .runs = distance.runs()}, since);
  }

  /// Whether all starts that this first element could lead to lie behind a known match.
  [[nodiscard]] bool isBehindMatch(const ElementVariant& variant) const {
    // There are at least as many code points before the match as there are steps.
    return now_.steps > std::uint64_t{outcomes_[variant.search].start} + variant.distance.steps() +
                            variant.length;
  }

  void onVariant(std::size_t number, std::size_t end) {
    ++steps_;
    const ElementVariant& variant = table_.variants[number];
    const bool isFirst = variant.has(ElementVariant::first);
    if (isFirst ? isBehindMatch(variant)
                : !isWithin(variant.distance, satisfied_[variant.element - 1])) {
      clearBit(active_, number);
      return;
    }
    if (variant.has(ElementVariant::boundaryAfter) && !text_.isWordBoundary(end)) return;
    std::uint32_t start = 0;
    if (isFirst || variant.has(ElementVariant::boundaryBefore)) {
      start = startOf(variant.length, end);
      if (variant.has(ElementVariant::boundaryBefore) && !text_.isWordBoundary(start)) return;
    }
    satisfied_[variant.element] = now_;
    setBits(active_, variant.nextVariant, variant.nextCount);
    const bool isLast = variant.nextCount == 0;
    if (isFirst && isLast) {
      tryBefore(variant.sequence, start);
    } else if (isFirst) {
      addCandidate(variant.sequence, start);
    } else if (isLast) {
      complete(variant.sequence);
    }
  }

  /// Where the literal of `letters` letters that ends at `end` starts.
  [[nodiscard]] std::uint32_t startOf(std::size_t letters, std::size_t end) const {
    if (letters <= end - regularFrom_) return static_cast<std::uint32_t>(end - letters);
    std::size_t start = end;
    const CharacterClasses& classes = tables_.classes;
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

  void addCandidate(std::uint32_t sequence, std::uint32_t start) {
    if (candidates_.size() == candidateLimit_) {
      std::erase_if(candidates_, [this](const Candidate& candidate) {
        return !isWithin(table_.sequences[candidate.sequence].span, candidate.at);
      });
      steps_ += candidateLimit_;
      candidateLimit_ = std::max(candidateLimit_, 2 * candidates_.size());
    }
    candidates_.push_back({.start = start, .at = now_, .sequence = sequence});
  }

  /// Tries all first elements since the sequence was last completed that are near enough.
  void complete(std::uint32_t sequence) {
    const Distance& span = table_.sequences[sequence].span;
    const std::uint32_t since = std::exchange(sequenceStates_[sequence].completedAt, now_.steps);
    std::size_t first = candidates_.size();
    while (first > 0 && candidates_[first - 1].at.steps >= since &&
           isWithin(span, candidates_[first - 1].at))
      --first;
    steps_ += candidates_.size() - first;
    for (; first < candidates_.size(); ++first)
      if (candidates_[first].sequence == sequence) tryBefore(sequence, candidates_[first].start);
  }

  /// Tries all starts from which the first element at `literalStart` may be reached.
  void tryBefore(std::uint32_t sequenceNumber, std::uint32_t literalStart) {
    const LiteralSequence& sequence = table_.sequences[sequenceNumber];
    if (sequence.lead.steps == 0) {
      tryAlternative(sequence.search, sequence.alternative, literalStart);
      return;
    }
    SequenceState& state = sequenceStates_[sequenceNumber];
    std::uint32_t low = literalStart;
    std::uint32_t high = literalStart;
    if (literalStart < state.triedLow || literalStart > state.triedHigh) {
      const bool isAbove = state.triedLow < literalStart;
      // Down to triedHigh, all starts lie behind the match that is known.
      if (isAbove && outcomes_[sequence.search].start <= state.triedHigh) return;
      Distance rest = sequence.lead;
      const std::uint32_t floor = isAbove ? state.triedHigh : 0;
      low = walkBack(sequence, literalStart, floor, rest);
      state.triedHigh = literalStart;
      if (!isAbove || low > floor) {
        state.triedLow = low;
        state.triedFrom = literalStart;
        state.rest = rest;
      }
    } else if (literalStart < state.triedFrom) {
      // This lead may go further down by as much as it begins further down.
      const std::uint32_t more = state.triedFrom - literalStart;
      state.rest = {.steps = std::max(state.rest.steps, state.rest.steps + more),
                    .runs = std::max(state.rest.runs, state.rest.runs + more)};
      high = state.triedLow;
      low = walkBack(sequence, high, 0, state.rest);
      state.triedLow = low;
      state.triedFrom = literalStart;
    } else {
      return;
    }
    const ProgramEntry& entry = tables_.programs[sequence.search].alternative(sequence.alternative);
    for (std::uint32_t at = low; at <= high && at <= outcomes_[sequence.search].start; ++at)
      tryAt(sequence.search, sequence.alternative, entry, at);
  }

  /// The lowest start down to `floor` from which a lead with the length `rest` may reach `high`;
  /// `rest` becomes what is left of it there.
  std::uint32_t walkBack(const LiteralSequence& sequence, std::uint32_t high, std::uint32_t floor,
                         Distance& rest) {
    std::uint32_t low = high;
    for (; low > floor && tables_.sets.contains(sequence.leadClasses, text_.classAt(low - 1));
         --low, ++steps_) {
      if (text_.continuesSpace(low)) continue;
      const bool beginsRun = !text_.continuesWord(low);
      if (rest.steps == 0 || (beginsRun && rest.runs == 0)) break;
      --rest.steps;
      rest.runs -= beginsRun ? 1 : 0;
    }
    return low;
  }

  void tryAlternative(std::uint32_t search, std::uint32_t alternative, std::uint32_t start) {
    tryAt(search, alternative, tables_.programs[search].alternative(alternative), start);
  }

  // The first match is the leftmost, and of those at one start that of the first alternative.
  void tryAt(std::uint32_t search, std::uint32_t alternative, const ProgramEntry& entry,
             std::uint32_t start) {
    ++steps_;
    if (isBetter(outcomes_[search], start, alternative) &&
        entry.firstSet.allows(text_, start, tables_.sets))
      match(search, alternative, entry, start);
  }

  [[nodiscard]] static bool isBetter(const Outcome& known, std::uint32_t start,
                                     std::uint32_t alternative) {
    return start < known.start || (start == known.start && alternative < known.alternative);
  }

  void match(std::uint32_t search, std::uint32_t alternative, const ProgramEntry& entry,
             std::uint32_t start) {
    std::size_t end = text_.size();
    bool failed = false;
    try {
      const auto found = matcherOf(search).matchAt(entry, start, stack_);
      if (!found) return;
      end = *found;
    } catch (const std::bad_alloc&) {
      stack_.clear();
      failed = true;
    }
    const auto take = [&](std::uint32_t taker, std::uint32_t as) {
      Outcome& outcome = outcomes_[taker];
      if (!isBetter(outcome, start, as)) return;
      outcome.start = start;
      outcome.alternative = as;
      outcome.end = static_cast<std::uint32_t>(end);
      outcome.failed = outcome.failed || failed;
      if (table_.searches[taker].anyMatch) {
        // Nothing comes before this, so nothing more is tried.
        outcome.start = 0;
        outcome.alternative = 0;
      }
    };
    take(search, alternative);
    const SearchTraits& traits = table_.searches[search];
    for (const SearchUser& user : table_.users.subspan(traits.firstUser, traits.users)) {
      take(user.search, user.firstAlternative + alternative);
      limitSharedOf(user.search);
    }
    limitSharedOf(search);
  }

  /// Ends shared searches where all their users have found a match.
  void limitSharedOf(std::uint32_t user) {
    const SearchTraits& traits = table_.searches[user];
    for (const std::uint16_t shared :
         table_.sharedSearches.subspan(traits.firstShared, traits.shared)) {
      const SearchTraits& its = table_.searches[shared];
      std::uint32_t last = 0;
      for (const SearchUser& each : table_.users.subspan(its.firstUser, its.users))
        last = std::max(last, outcomes_[each.search].start);
      Outcome& outcome = outcomes_[shared];
      if (last >= outcome.start) continue;
      outcome.start = last;
      outcome.alternative = none;
    }
  }

  Matcher& matcherOf(std::uint32_t search) {
    Outcome& outcome = outcomes_[search];
    if (outcome.matcher == none) {
      outcome.matcher = static_cast<std::uint32_t>(matchers_.size());
      matchers_.emplace_back(tables_.programs[search], tables_.classes, tables_.sets, text_);
    }
    return matchers_[outcome.matcher];
  }

  const Tables& tables_;
  const ScreeningTable<Stored>& table_;
  ClassifiedText text_;
  std::vector<Outcome> outcomes_;
  std::vector<Matcher> matchers_;
  std::vector<SequenceState> sequenceStates_;
  std::vector<std::uint64_t> prefix_;
  ScanState scan_;
  /// By variant: whether it can matter. Most cannot: those whose predecessor is not satisfied or is
  /// too far behind, and first ones behind the match that is known already.
  std::vector<std::uint64_t> active_;
  std::vector<Progress> satisfied_;    ///< by element: where it was last satisfied
  std::vector<Candidate> candidates_;  ///< in the order in which they were met
  std::size_t candidateLimit_ = 4096;  ///< when those too far behind are dropped
  BacktrackStack stack_;
  Progress now_;
  std::size_t regularFrom_ = 0;  ///< from here on every code point has been one letter
  std::uint64_t steps_ = 0;
};

// ---------------------------------------------------------------------------------------------

ScreeningEngine::ScreeningEngine(std::span<const std::byte> tables) {
  TableReader reader(tables);
  static_cast<void>(readUnusable(reader));
  tables_ = std::make_unique<const Tables>(reader);
}

ScreeningEngine::~ScreeningEngine() = default;

std::span<const std::uint16_t> ScreeningEngine::unusablePatterns(
    std::span<const std::byte> tables) {
  TableReader reader(tables);
  return readUnusable(reader);
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

}  // namespace quillseal::screening
