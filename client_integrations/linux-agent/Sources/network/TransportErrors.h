#pragma once

#include "desktop/HttpTransport.h"

namespace quillseal::linux {

/// What a failure of the transport means to the user, in words for Linux.
[[nodiscard]] Error transportError(desktop::transport::ErrorCode code);

}  // namespace quillseal::linux
