#pragma once

#include "session/DesktopBus.h"

namespace quillseal::linux {

/// Returns whether the screen is locked, or may be, by the service that KDE and others have for it.
/// Windows stay active behind a locked screen.
[[nodiscard]] bool isScreenLocked(DesktopBus& bus);

/// Returns whether KWin shows its overview or the like, which takes the keys while the window below
/// stays active.
[[nodiscard]] bool isEffectTakingKeys(DesktopBus& bus);

}  // namespace quillseal::linux
