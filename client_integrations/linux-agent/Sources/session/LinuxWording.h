#pragma once

#include "desktop/Wording.h"
#include "keys/KeyMedium.h"

namespace quillseal::linux {

/// What the wording depends on.
struct WordingCircumstances {
  KeyPlace key;         ///< where the key is, or would be made
  bool isDemo = false;  ///< no key is used, but a presence check
};

/// Returns the wording for Linux desktops. Pure.
[[nodiscard]] desktop::Wording linuxWording(const WordingCircumstances& circumstances);

}  // namespace quillseal::linux
