#pragma once

#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Returns whether the compositor answers and lets programs see clipboard and windows, as KWin
/// does.
[[nodiscard]] bool showsWindows(const WaylandConnection& connection);

/// Returns whether it also lets them press keys: all that signing in other applications needs.
[[nodiscard]] bool reachesApplications(const WaylandConnection& connection);

}  // namespace quillseal::linux
