#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillseal::screening {

/// A regular expression in ICU's syntax.
struct Pattern {
  std::string_view expression;
  bool caseInsensitive = false;
};

/// The first match of one pattern: what ICU's `find` reports first, in bytes of the text.
struct PatternMatch {
  std::size_t pattern = 0;  ///< index of the pattern
  std::size_t start = 0;
  std::size_t end = 0;
  bool failed = false;  ///< the search could not be finished, so it counts as a match
};

/// Why a pattern is not searched for.
struct PatternProblem {
  std::size_t pattern = 0;
  std::string reason;
};

/// The first matches of many patterns in one text, found in linear time. Immutable once built;
/// any number of threads may search at once.
class ScreeningEngine {
 public:
  /// Throws PatternError when the patterns together are too many for the tables.
  explicit ScreeningEngine(std::span<const Pattern> patterns);
  ~ScreeningEngine();
  ScreeningEngine(const ScreeningEngine&) = delete;
  ScreeningEngine& operator=(const ScreeningEngine&) = delete;

  /// The patterns that did not compile.
  [[nodiscard]] const std::vector<PatternProblem>& problems() const;

  /// The first match of each pattern that has one, by ascending index. `text`: any bytes; those
  /// that do not form UTF-8 count as U+FFFD. `steps`, if given, receives the work done.
  [[nodiscard]] std::vector<PatternMatch> firstMatches(std::string_view text,
                                                       std::uint64_t* steps = nullptr) const;

  /// Bytes that the tables take.
  [[nodiscard]] std::size_t memoryUse() const;

 private:
  class Tables;
  class Screening;
  std::unique_ptr<const Tables> tables_;
};

}  // namespace quillseal::screening
