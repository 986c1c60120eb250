#pragma once

#include <vector>

#include "core/screening/compile/TableCompiler.h"

namespace quillseal::screening {

/// What a screening searches for: the pattern of every rule, in table order, and the reporting cue.
[[nodiscard]] std::vector<Pattern> rulePatterns();

}  // namespace quillseal::screening
