#pragma once

#include <cstdint>

namespace quillseal::linux {

/// What a key gives, numbered as in X11/keysymdef.h; XKB uses the same numbers.
using Keysym = std::uint32_t;

}  // namespace quillseal::linux
