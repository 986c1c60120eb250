#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Explains why a pattern does not match a text: how much of it the text satisfies, and where.
namespace quillseal::inspect {

/// A pattern that cannot be tried because it is malformed or not supported by the engine. The
/// message says why.
class PatternTrialError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A pattern as in the table of rules: ICU's syntax with the table's shorthands.
struct TriedPattern {
  std::string_view written;
  bool caseInsensitive = true;
};

/// The longest prefix of one alternative that occurs in the text.
struct Approach {
  std::string satisfied{};  ///< this part of the pattern, as written
  std::string missing{};    ///< the next part, which is missing; empty when all is satisfied
  std::size_t start = 0;    ///< first occurrence of the satisfied part: start, in bytes of the text
  std::size_t end = 0;      ///< its end
  std::size_t number = 0;   ///< of the alternative, from 1
  double share = 0;         ///< satisfied share of the alternative, 0 to 1
};

struct PatternTrial {
  std::size_t alternatives = 0;
  bool isMatch = false;
  /// The match, with its alternative; or at most three partly satisfied alternatives, the nearest
  /// first.
  std::vector<Approach> approaches{};
};

/// Tries the pattern on well-formed UTF-8 with the screening engine. Throws PatternTrialError.
[[nodiscard]] PatternTrial tryPattern(const TriedPattern& pattern, std::string_view text);

}  // namespace quillseal::inspect
