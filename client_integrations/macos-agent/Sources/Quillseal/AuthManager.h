#pragma once

#include <string>

#include "core/tasks/Task.h"
#include "desktop/MainLoop.h"
#include "desktop/Presence.h"
#include "desktop/Prompt.h"

/// Proof that the owner sits at the machine, where the device key does not ask for it itself.
namespace quillseal::AuthManager {

/// Where the proof comes from. Both outlive the tasks.
struct Services {
  desktop::MainLoop& loop;
  desktop::Presence& presence;
};

/// Whether the person passed: by biometrics where they are set up, else by the device's password.
/// Throws Error when the prompt is cancelled or the machine has neither.
[[nodiscard]] Task<bool> authenticate(Services services, desktop::Prompt prompt);

/// What the machine's biometric method is called: "Touch ID", "Face ID" or "Device Passcode".
[[nodiscard]] Task<std::string> biometryMethod(Services services);

}  // namespace quillseal::AuthManager
