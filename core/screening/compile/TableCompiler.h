#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/screening/compile/PatternSyntax.h"

namespace quillseal::screening {

/// Why a pattern is not searched for.
struct PatternProblem {
  std::size_t pattern = 0;
  std::string reason;
};

struct CompiledPatterns {
  std::vector<std::byte> tables;  ///< for a `ScreeningEngine`
  std::vector<PatternProblem> problems;
};

/// Compiles patterns that are to be searched for together; those that do not compile are left out.
/// Throws PatternError when they are too many for the tables.
[[nodiscard]] CompiledPatterns compilePatterns(std::span<const Pattern> patterns);

}  // namespace quillseal::screening
