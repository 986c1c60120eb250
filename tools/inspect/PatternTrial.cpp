// Algorithm: a pattern is split into alternatives, and each alternative into elements (a letter, a
// set, a group, an assertion, each with its quantifier). The prefixes of an alternative end between
// elements. The engine finds out whether a prefix occurs in the text. A longer prefix cannot occur
// where a shorter one does not, so bisection finds the longest that does. If the next element is a
// group, the same is done for each alternative in it.

#include "PatternTrial.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "Quillseal/ContentRules.h"
#include "core/screening/compile/TableCompiler.h"
#include "core/screening/match/ScreeningEngine.h"

namespace quillseal::inspect {
namespace {

constexpr std::string_view shorthandCharacters = "0123456789abcdefghijklmnopqrstuvwxyz";

/// Returns the length of the code point, escape, set, group or shorthand at the start of `pattern`.
std::size_t lengthOfAtom(std::string_view pattern) {
  const auto through = [&](char last, std::size_t from) {
    const std::size_t found = pattern.find(last, from);
    return found == std::string_view::npos ? pattern.size() : found + 1;
  };
  switch (pattern.front()) {
    case '\\': {
      if (pattern.size() > 2 && pattern[2] == '{') return through('}', 3);
      const std::size_t digits = pattern.starts_with("\\u")   ? 4
                                 : pattern.starts_with("\\U") ? 8
                                                              : 0;
      return std::min(pattern.size(), 2 + digits);
    }
    case '[': {
      std::size_t depth = 0;
      for (std::size_t at = 0; at < pattern.size(); ++at) {
        if (pattern[at] == '\\')
          ++at;
        else if (pattern[at] == '[')
          ++depth;
        else if (pattern[at] == ']' && --depth == 0)
          return at + 1;
      }
      return pattern.size();
    }
    case '(': {
      std::size_t at = 1;
      while (at < pattern.size() && pattern[at] != ')')
        at += lengthOfAtom(pattern.substr(at));
      return std::min(pattern.size(), at + 1);
    }
    case '<':
      if (const std::size_t end = pattern.find_first_not_of(shorthandCharacters, 1) + 1;
          end > 1 && pattern[end - 1] == '>' &&
          ContentRules::expanded(pattern.substr(0, end)) != pattern.substr(0, end))
        return end;
      return 1;
    default: {
      std::size_t length = 1;
      while (length < pattern.size() &&
             (static_cast<unsigned char>(pattern[length]) & 0xC0U) == 0x80U)
        ++length;
      return length;
    }
  }
}

std::size_t lengthOfQuantifier(std::string_view pattern) {
  std::size_t length = 0;
  if (pattern.starts_with('{')) {
    length = std::min(pattern.size(), pattern.find('}')) + 1;
  } else if (!pattern.empty() &&
             std::string_view("*+?").find(pattern.front()) != std::string_view::npos) {
    length = 1;
  }
  if (length > 0 && length < pattern.size() && pattern[length] == '?') ++length;
  return std::min(length, pattern.size());
}

/// Splits a pattern into the elements of each alternative.
std::vector<std::vector<std::string_view>> alternativesOf(std::string_view pattern) {
  std::vector<std::vector<std::string_view>> alternatives(1);
  while (!pattern.empty()) {
    if (pattern.front() == '|') {
      alternatives.emplace_back();
      pattern.remove_prefix(1);
      continue;
    }
    std::size_t length = lengthOfAtom(pattern);
    length += lengthOfQuantifier(pattern.substr(length));
    alternatives.back().push_back(pattern.substr(0, length));
    pattern.remove_prefix(length);
  }
  return alternatives;
}

struct Group {
  std::string_view opening;
  std::string_view body;
};

/// Parses a group that must match; nothing for a negative assertion.
std::optional<Group> asGroup(std::string_view element) {
  if (!element.starts_with('(')) return std::nullopt;
  const std::size_t end = lengthOfAtom(element);
  const std::string_view quantifier = element.substr(end);
  if (quantifier.starts_with('?') || quantifier.starts_with('*') || quantifier.starts_with("{0"))
    return std::nullopt;
  std::string_view opening = "(";
  for (const std::string_view kind : {"(?:", "(?="})
    if (element.starts_with(kind)) opening = kind;
  if (opening == "(" && element.starts_with("(?")) return std::nullopt;
  return Group{.opening = opening,
               .body = element.substr(opening.size(), end - opening.size() - 1)};
}

/// The first occurrence of a prefix of a pattern, if there is one.
using Occurrence = std::optional<screening::PatternMatch>;

/// An alternative of the pattern or of a group in it.
struct Branch {
  std::size_t number = 0;  ///< of the alternative of the pattern
  std::string before{};    ///< the part of the pattern before it
  std::string closing{};   ///< closes the groups of `before`
  double shareBefore = 0;  ///< of that alternative
  double weight = 1;       ///< share of all elements of this branch together
  std::vector<std::string_view> elements{};
  std::size_t satisfied = 0;  ///< at least this many elements occur
  std::size_t possible = 0;   ///< and at most this many
  std::size_t start = 0;      ///< their first occurrence
  std::size_t end = 0;

  [[nodiscard]] std::size_t middle() const { return (satisfied + possible + 1) / 2; }
  [[nodiscard]] std::string beginning(std::size_t count) const {
    std::string result = before;
    for (const std::string_view element : std::span(elements).first(count))
      result += element;
    return result;
  }
  [[nodiscard]] double weightOfElement() const {
    return weight / static_cast<double>(std::max<std::size_t>(1, elements.size()));
  }
  [[nodiscard]] double share() const {
    return shareBefore + weightOfElement() * static_cast<double>(satisfied);
  }
  [[nodiscard]] Approach approach() const {
    return {.satisfied = beginning(satisfied),
            .missing = satisfied < elements.size() ? std::string(elements[satisfied]) : "",
            .start = start,
            .end = end,
            .number = number,
            .share = share()};
  }
};

class Trial {
 public:
  Trial(std::string_view text, bool caseInsensitive)
      : text_(text), caseInsensitive_(caseInsensitive) {}

  /// Returns the first match of each pattern, none for one that does not compile; `problem`
  /// receives the reason.
  [[nodiscard]] std::vector<Occurrence> matches(std::span<const std::string> written,
                                                std::string& problem) const {
    std::vector<std::string> expressions;
    for (const std::string& each : written)
      expressions.push_back(ContentRules::expanded(each));
    std::vector<screening::Pattern> patterns;
    patterns.reserve(expressions.size());
    for (const std::string& each : expressions)
      patterns.push_back({.expression = each, .caseInsensitive = caseInsensitive_});
    const auto compiled = screening::compilePatterns(patterns);
    if (!compiled.problems.empty()) problem = compiled.problems.front().reason;
    std::vector<Occurrence> result(written.size());
    for (const auto& match : screening::ScreeningEngine(compiled.tables).firstMatches(text_))
      result[match.pattern] = match;
    return result;
  }

  /// Returns for each alternative the branch of which most is satisfied.
  [[nodiscard]] std::vector<Branch> furthest(std::string_view pattern) const {
    std::vector<Branch> best;
    for (auto& elements : alternativesOf(pattern))
      best.push_back({.number = best.size() + 1, .elements = std::move(elements)});
    for (std::vector<Branch> level = best; !level.empty();) {
      bisect(level);
      std::vector<Branch> next;
      for (Branch& branch : level) {
        if (branch.satisfied < branch.elements.size())
          if (const auto group = asGroup(branch.elements[branch.satisfied]))
            for (auto& elements : alternativesOf(group->body))
              next.push_back(
                  {.number = branch.number,
                   .before = branch.beginning(branch.satisfied) + std::string(group->opening),
                   .closing = ")" + branch.closing,
                   .shareBefore = branch.share(),
                   .weight = branch.weightOfElement(),
                   .elements = std::move(elements)});
        Branch& known = best[branch.number - 1];
        if (branch.satisfied > 0 && branch.share() > known.share()) known = std::move(branch);
      }
      level = std::move(next);
    }
    return best;
  }

 private:
  /// Finds how many elements of each branch are satisfied. Searches for many prefixes at once,
  /// since preparing a search takes most of the time.
  void bisect(std::vector<Branch>& branches) const {
    constexpr std::size_t most = 64;
    for (Branch& branch : branches)
      branch.possible = branch.elements.size();
    while (true) {
      std::vector<Branch*> open;
      std::vector<std::string> tried;
      for (Branch& branch : branches) {
        if (branch.satisfied == branch.possible || open.size() == most) continue;
        open.push_back(&branch);
        tried.push_back(branch.beginning(branch.middle()) + branch.closing);
      }
      if (open.empty()) return;
      std::string ignored;
      const std::vector<Occurrence> found = matches(tried, ignored);
      for (std::size_t i = 0; i < open.size(); ++i) {
        if (found[i]) {
          open[i]->satisfied = open[i]->middle();
          open[i]->start = found[i]->start;
          open[i]->end = found[i]->end;
        } else {
          open[i]->possible = open[i]->middle() - 1;
        }
      }
    }
  }

  std::string_view text_;
  bool caseInsensitive_;
};

PatternTrial tryUnchecked(const TriedPattern& pattern, std::string_view text) {
  constexpr std::size_t mostApproaches = 3;
  const Trial trial(text, pattern.caseInsensitive);
  std::string problem;
  const std::string whole(pattern.written);
  const Occurrence match = trial.matches({&whole, 1}, problem).front();
  if (!problem.empty()) throw PatternTrialError(problem);
  PatternTrial result{.isMatch = match.has_value()};
  for (const Branch& branch : trial.furthest(pattern.written)) {
    ++result.alternatives;
    const Approach approach = branch.approach();
    // Of several alternatives at the same place, the first in the pattern matches.
    if (match ? approach.missing.empty() && approach.start == match->start &&
                    result.approaches.empty()
              : approach.start != approach.end)
      result.approaches.push_back(approach);
  }
  if (match) {
    if (result.approaches.empty()) result.approaches.push_back({.share = 1});
    result.approaches.front().start = match->start;
    result.approaches.front().end = match->end;
  }
  std::ranges::stable_sort(result.approaches, std::ranges::greater(), &Approach::share);
  result.approaches.resize(std::min(mostApproaches, result.approaches.size()));
  return result;
}

}  // namespace

PatternTrial tryPattern(const TriedPattern& pattern, std::string_view text) {
  try {
    return tryUnchecked(pattern, text);
  } catch (const screening::PatternError& error) {
    throw PatternTrialError(error.what());
  }
}

}  // namespace quillseal::inspect
