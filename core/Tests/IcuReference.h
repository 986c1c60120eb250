#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <unicode/regex.h>

#include "core/screening/compile/TableCompiler.h"
#include "core/screening/match/ScreeningEngine.h"

namespace quillseal::testing {

/// ICU's own regular expressions: what the screening engine must agree with.
class IcuReference {
 public:
  /// Throws std::runtime_error, naming the pattern, when ICU does not accept one.
  explicit IcuReference(std::span<const screening::Pattern> patterns,
                        std::int32_t timeLimit = shortTimeLimit);

  /// In ICU's unit, some ten thousand steps for each search of a pattern.
  static constexpr std::int32_t shortTimeLimit = 2;
  static constexpr std::int32_t noTimeLimit = 0;

  struct Answer {
    bool gaveUp = false;  ///< ICU ran out of time or stack
    bool matched = false;
    std::size_t start = 0;  ///< bytes
    std::size_t end = 0;

    bool operator==(const Answer&) const = default;
  };

  /// The first match of every pattern in a well-formed text.
  [[nodiscard]] std::vector<Answer> firstMatches(std::string_view text) const;

 private:
  std::vector<std::unique_ptr<icu::RegexMatcher>> matchers_;
};

/// The same of the engine, which never gives up.
[[nodiscard]] std::vector<IcuReference::Answer> answersOf(const screening::ScreeningEngine& engine,
                                                          std::size_t patterns,
                                                          std::string_view text);

}  // namespace quillseal::testing
