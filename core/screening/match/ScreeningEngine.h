#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quillseal::screening {

/// The first match of one pattern: what ICU's `find` reports first, in bytes of the text.
struct PatternMatch {
  std::size_t pattern = 0;  ///< index of the pattern
  std::size_t start = 0;
  std::size_t end = 0;
  bool failed = false;  ///< the search could not be finished, so it counts as a match
};

/// The first matches of many patterns in one text, found in linear time. Immutable; any number of
/// threads may search at once.
class ScreeningEngine {
 public:
  /// REQUIRES: tables written by the pattern compiler of this version, aligned to `tableAlignment`;
  /// they must outlive the engine.
  explicit ScreeningEngine(std::span<const std::byte> tables);
  ~ScreeningEngine();
  ScreeningEngine(const ScreeningEngine&) = delete;
  ScreeningEngine& operator=(const ScreeningEngine&) = delete;

  /// Those of the patterns that did not compile and are not searched for, ascending. Looks at
  /// nothing else of the tables.
  [[nodiscard]] static std::span<const std::uint16_t> unusablePatterns(
      std::span<const std::byte> tables);

  /// The first match of each pattern that has one, by ascending index. `text`: any bytes; those
  /// that do not form UTF-8 count as U+FFFD. `steps`, if given, receives the work done.
  [[nodiscard]] std::vector<PatternMatch> firstMatches(std::string_view text,
                                                       std::uint64_t* steps = nullptr) const;

 private:
  struct Tables;
  class Screening;
  std::unique_ptr<const Tables> tables_;
};

}  // namespace quillseal::screening
