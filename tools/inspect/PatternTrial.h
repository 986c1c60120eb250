#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Why a pattern does not find a text: how much of it the text satisfies, and where.
namespace quillseal::inspect {

/// A pattern that cannot be tried: malformed, or beyond the engine. The words say why.
class PatternTrialError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A pattern as it stands in the table of rules: ICU's syntax with the table's shorthands.
struct TriedPattern {
  std::string_view written;
  bool caseInsensitive = true;
};

/// The longest beginning of one alternative that occurs in the text.
struct Approach {
  std::string satisfied{};  ///< this part of the pattern, as written
  std::string missing{};    ///< the part that would have to come next; empty when all is satisfied
  std::size_t start = 0;    ///< where the satisfied part first occurs, in bytes of the text
  std::size_t end = 0;      ///< behind it
  std::size_t number = 0;   ///< of the alternative, from 1
  double share = 0;         ///< how much of the alternative is satisfied, from 0 to 1
};

struct PatternTrial {
  std::size_t alternatives = 0;
  bool isMatch = false;
  /// The match, with its alternative; or at most three alternatives of which a part was found, the
  /// nearest first.
  std::vector<Approach> approaches{};
};

/// Tries the pattern on a text of well-formed UTF-8 by the engine that screens texts. Throws
/// PatternTrialError.
[[nodiscard]] PatternTrial tryPattern(const TriedPattern& pattern, std::string_view text);

}  // namespace quillseal::inspect
