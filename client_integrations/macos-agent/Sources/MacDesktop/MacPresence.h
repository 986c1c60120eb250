#pragma once

#include "Desktop/MainLoop.h"
#include "Desktop/Presence.h"

namespace quillseal::mac {

/// The LocalAuthentication framework, with a fresh context for every question.
class MacPresence final : public desktop::Presence {
 public:
  /// `loop` outlives this object and its prompts.
  explicit MacPresence(desktop::MainLoop& loop) : loop_(loop) {}

  [[nodiscard]] desktop::PresenceCapability canEvaluate(
      desktop::PresencePolicy policy) const override;
  [[nodiscard]] desktop::Biometry biometry() const override;
  [[nodiscard]] desktop::Ticket evaluate(desktop::PresencePolicy policy,
                                         const desktop::Prompt& prompt,
                                         std::function<void(Outcome<bool>)> done) override;

 private:
  desktop::MainLoop& loop_;
};

}  // namespace quillseal::mac
