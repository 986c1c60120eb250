#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Presence.h"

namespace quillseal::mac {

/// The LocalAuthentication framework, with a fresh context for every question.
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
