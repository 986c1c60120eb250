#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <stdexcept>

#include <unicode/utypes.h>

namespace quillseal {

/// Throws when an ICU call failed. The calls we make fail for two reasons only: no memory, and a
/// library without its data.
inline void requireSuccess(UErrorCode status) {
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
}

/// A length in ICU's own type. Throws std::length_error from 2 GiB on, where it would wrap.
inline std::int32_t icuLength(std::size_t length) {
  if (length > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
    throw std::length_error("the text is longer than 2 GiB");
  return static_cast<std::int32_t>(length);
}

}  // namespace quillseal
