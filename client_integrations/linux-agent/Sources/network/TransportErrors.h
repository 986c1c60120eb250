#pragma once

#include "desktop/HttpTransport.h"

namespace quillseal::linux {

/// Returns the error with the sentence that Linux users see for it.
[[nodiscard]] Error transportError(desktop::transport::ErrorCode code);

}  // namespace quillseal::linux
