#pragma once

#include <string>
#include <string_view>

#include "desktop/KeyEvents.h"

/// Keys as GTK writes them: "<Control><Alt><Super>h".
namespace quillseal::linux {

/// Returns the accelerator of a key press.
[[nodiscard]] std::string acceleratorOf(desktop::KeyPress press);

/// Returns whether both are the same keys. The order of modifiers, their synonyms and upper case
/// make no difference.
[[nodiscard]] bool isSameAccelerator(std::string_view one, std::string_view other);

/// Returns the keys in words, as `nameOf` does, the modifiers in one order.
[[nodiscard]] std::string nameOfAccelerator(std::string_view accelerator);

}  // namespace quillseal::linux
