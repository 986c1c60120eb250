#pragma once

#include <vector>

#include "core/screening/compile/TableCompiler.h"

namespace quillseal::screening {

/// Returns the patterns that a screening searches for: one for each rule, in table order, and the
/// reporting cue.
[[nodiscard]] std::vector<Pattern> rulePatterns();

}  // namespace quillseal::screening
