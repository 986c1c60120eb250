#pragma once

#include <cstdlib>
#include <string_view>

namespace quillseal::fuzz {

/// What each fuzzer defines: tries an input, and aborts where something does not hold.
void check(std::string_view bytes);

inline void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace quillseal::fuzz
