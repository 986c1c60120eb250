#pragma once

#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Returns whether the compositor answers and offers what signing in other applications needs:
/// clipboard, keys and windows.
[[nodiscard]] bool reachesApplications(const WaylandConnection& connection);

}  // namespace quillseal::linux
