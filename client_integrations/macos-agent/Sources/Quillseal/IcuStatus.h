#pragma once

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

}  // namespace quillseal
