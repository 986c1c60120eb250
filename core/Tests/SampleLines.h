#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quillseal::testing {

/// The lines of a file of samples that are neither empty nor comments, with \n, \r and \u{…} read.
/// Throws when there are none.
[[nodiscard]] std::vector<std::string> linesOf(const std::string& path);

/// The parts of a line before and behind a separator; the second is empty without one.
[[nodiscard]] std::pair<std::string, std::string> divided(const std::string& line,
                                                          const std::string& separator);

/// The parts of a line between separators: one at least.
[[nodiscard]] std::vector<std::string> splitAt(std::string line, const std::string& separator);

}  // namespace quillseal::testing
