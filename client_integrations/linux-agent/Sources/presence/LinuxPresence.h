#pragma once

#include "desktop/MainLoop.h"
#include "desktop/Presence.h"
#include "presence/PresencePrompt.h"

namespace quillseal::linux {

/// Presence on a Linux desktop: a finger on the reader where one is enrolled, else the password
/// through polkit. Both are preceded by a window of our own with the reason.
///
/// A fingerprint is reported as the biometry kind `touchId`: of the kinds a record can name it is
/// the one that tells its reader how presence was shown.
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
