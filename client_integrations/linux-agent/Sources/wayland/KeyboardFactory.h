#pragma once

#include <memory>

#include "session/DesktopBus.h"
#include "wayland/AgentKeyboard.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Returns whether the compositor offers a protocol for a keyboard.
[[nodiscard]] bool offersKeyboard(const WaylandConnection& connection);

/// Makes a virtual keyboard where the compositor offers that, else one that presses keys on the
/// user's keyboard through KWin. Both arguments outlive it; `bus` is null where there is none.
[[nodiscard]] std::unique_ptr<AgentKeyboard> makeKeyboard(WaylandConnection& connection,
                                                          DesktopBus* bus);

}  // namespace quillseal::linux
