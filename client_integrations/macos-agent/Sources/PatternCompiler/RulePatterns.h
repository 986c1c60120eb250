#pragma once

#include <vector>

#include "PatternCompiler/TableCompiler.h"

namespace quillseal::screening {

/// What a screening searches for: the pattern of every rule, in table order, and the reporting cue.
[[nodiscard]] std::vector<Pattern> rulePatterns();

}  // namespace quillseal::screening
