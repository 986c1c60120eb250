#pragma once

#include <string>

#include "desktop/Wording.h"
#include "keys/KeyMedium.h"

namespace quillseal::linux {

/// What the wording depends on.
struct WordingCircumstances {
  KeyPlace key;               ///< where the key is, or would be made
  bool isDemo = false;        ///< no key is used, but a presence check
  std::string otherHotkey{};  ///< in place of the one that was asked for; empty where that holds
};

/// Returns the wording for Linux desktops. Pure.
[[nodiscard]] desktop::Wording linuxWording(const WordingCircumstances& circumstances);

}  // namespace quillseal::linux
