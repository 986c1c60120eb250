#pragma once

#include "desktop/MainLoop.h"
#include "desktop/Presence.h"
#include "presence/PresencePrompt.h"

namespace quillseal::linux {

/// Checks presence with the fingerprint reader where a finger is enrolled, else with the password
/// through polkit. A window of the agent shows the reason first.
///
/// A fingerprint is reported as the biometry kind `touchId`: of the kinds that a record can name,
/// it is the one that says how presence was proved.
class LinuxPresence final : public desktop::Presence {
 public:
  /// Both outlive this object and its tickets.
  LinuxPresence(desktop::MainLoop& loop, PresencePrompt& prompt) : loop_(loop), prompt_(prompt) {}

  [[nodiscard]] desktop::PresenceCapability canEvaluate(
      desktop::PresencePolicy policy) const override;
  [[nodiscard]] desktop::Biometry biometry() const override;
  [[nodiscard]] desktop::Ticket evaluate(desktop::PresencePolicy policy,
                                         const desktop::Prompt& prompt,
                                         std::function<void(Outcome<bool>)> done) override;

 private:
  desktop::MainLoop& loop_;
  PresencePrompt& prompt_;
};

}  // namespace quillseal::linux
