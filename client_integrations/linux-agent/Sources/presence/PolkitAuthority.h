#pragma once

#include "presence/SystemBus.h"

/// A client of polkit (org.freedesktop.PolicyKit1), which asks for the password for Quillseal's own
/// action. The package installs that action. Every function blocks.
namespace quillseal::linux::PolkitAuthority {

inline constexpr const char* presenceAction = "com.quillseal.agent.prove-presence";

/// Returns whether polkit can ask the user of this session. False when the action is not installed,
/// the session is not allowed to authenticate, or the service does not answer.
[[nodiscard]] bool canAsk();

/// Has the desktop's authentication agent ask for the password and returns whether it was right.
/// Throws Error when the user dismisses the question, when interrupted, and when there is no
/// authentication agent.
[[nodiscard]] bool ask(const Interrupt& interrupt);

}  // namespace quillseal::linux::PolkitAuthority
