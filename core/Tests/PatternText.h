#pragma once

#include <cstddef>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "core/screening/compile/PatternSyntax.h"
#include "core/screening/compile/TableCompiler.h"

namespace quillseal::testing {

/// Makes texts that patterns are likely to match, or nearly match.
class PatternText {
 public:
  explicit PatternText(std::span<const screening::Pattern> patterns);

  /// A text built along one random way through the pattern.
  [[nodiscard]] std::string along(std::size_t pattern, std::mt19937& random) const;

  /// A text of several such pieces, whole, cut and mutated, with random text between them.
  [[nodiscard]] std::string mixture(std::mt19937& random) const;

  /// The separate strings of letters and one member of each set of a pattern.
  [[nodiscard]] std::vector<std::string> parts(std::size_t pattern) const;

 private:
  screening::SetTable sets_;
  std::vector<screening::Node> nodes_;
};

}  // namespace quillseal::testing
