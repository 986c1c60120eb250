#pragma once

#include <string>
#include <string_view>

#include "core/text/Error.h"

namespace quillseal::linux {

/// Returns the error of a presence check that failed, with a sentence for the user.
[[nodiscard]] inline Error presenceError(std::string_view description) {
  return Error(
      {.domain = "Quillseal.Presence", .code = 0, .description = std::string(description)});
}

[[nodiscard]] inline Error presenceCancelled() {
  return presenceError("Authentication was cancelled.");
}

}  // namespace quillseal::linux
