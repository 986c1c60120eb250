#pragma once

#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Whether the compositor offers, and answers for, all that signing in other applications needs:
/// clipboard, keys and windows.
[[nodiscard]] bool reachesApplications(const WaylandConnection& connection);

}  // namespace quillseal::linux
