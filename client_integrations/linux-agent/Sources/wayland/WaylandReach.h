#pragma once

#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Returns whether the compositor offers all that signing in other applications needs, clipboard,
/// keys and windows, and still answers.
[[nodiscard]] bool reachesApplications(const WaylandConnection& connection);

}  // namespace quillseal::linux
