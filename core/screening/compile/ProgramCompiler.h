#pragma once

#include <cstddef>
#include <vector>

#include "core/screening/compile/ClassPartition.h"
#include "core/screening/compile/PatternSyntax.h"
#include "core/screening/match/PatternProgram.h"

namespace quillseal::screening {

/// Keeps the sets of the program in `sets`. Throws PatternError when the pattern is too long.
[[nodiscard]] PatternProgram<Owned> compileProgram(const Node& pattern,
                                                   const ClassPartition& classes,
                                                   ClassSetPool& sets);

/// For each of the first code points of every match from `entry`, the classes it can be of; ends
/// early where a match may end or the number of code points is not certain. At most `longest`
/// elements.
[[nodiscard]] std::vector<ClassBits> prefixClasses(const PatternProgram<Owned>& program,
                                                   const ProgramEntry& entry, std::size_t longest,
                                                   const ClassPartition& classes,
                                                   const ClassSetPool& sets);

}  // namespace quillseal::screening
