#pragma once

#include <random>
#include <string>

namespace quillseal::testing {

/// A well-formed text of up to `maximumScalars` scalars in which everything that is awkward in
/// Unicode is frequent: marks, joiners, controls, line breaks, quotes, scripts without spaces,
/// letters with special case mappings; with runs of plain ASCII between them.
[[nodiscard]] std::string randomText(std::mt19937& random, int maximumScalars);

/// `text` with everything outside printable ASCII written as JSON escapes it, for failure messages.
[[nodiscard]] std::string escaped(const std::string& text);

}  // namespace quillseal::testing
