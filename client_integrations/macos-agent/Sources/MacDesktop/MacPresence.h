#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Presence.h"

namespace quillseal::mac {

/// Checks presence with LocalAuthentication, with a new context for every request.
class MacPresence final : public desktop::Presence {
 public:
  explicit MacPresence(const MacMainLoop& loop) : poster_(loop.poster()) {}

  [[nodiscard]] desktop::PresenceCapability canEvaluate(
      desktop::PresencePolicy policy) const override;
  [[nodiscard]] desktop::Biometry biometry() const override;
  [[nodiscard]] desktop::Ticket evaluate(desktop::PresencePolicy policy,
                                         const desktop::Prompt& prompt,
                                         std::function<void(Outcome<bool>)> done) override;

 private:
  MacMainLoop::Poster poster_;
};

}  // namespace quillseal::mac
