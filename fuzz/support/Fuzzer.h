#pragma once

#include <stdexcept>
#include <string_view>

namespace quillseal::fuzz {

/// What each fuzzer defines: tries an input, and throws where something does not hold.
void check(std::string_view bytes);

inline void require(bool holds) {
  if (!holds) throw std::logic_error("this does not hold for the input");
}

}  // namespace quillseal::fuzz
