#pragma once

#include "presence/SystemBus.h"

/// The password question of Linux (polkit, org.freedesktop.PolicyKit1) for an action of Quillseal's
/// own, which the package installs. Everything blocks.
namespace quillseal::linux::PolkitAuthority {

inline constexpr const char* presenceAction = "com.quillseal.agent.prove-presence";

/// Whether the person at this session could be asked. False as well when the action is not
/// installed, the session may not be asked, or the service does not answer.
[[nodiscard]] bool canAsk();

/// Has the desktop's authentication agent ask for the password. Whether it was right; throws Error
/// when the person dismissed the question, on interrupt, and when there is nobody to ask.
[[nodiscard]] bool ask(const Interrupt& interrupt);

}  // namespace quillseal::linux::PolkitAuthority
