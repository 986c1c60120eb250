#pragma once

#include <string>

#include "desktop/KeyEvents.h"
#include "desktop/MainLoop.h"

namespace quillseal::mac {

/// Key presses as Core Graphics events, posted at the HID tap like hardware events. A press is
/// declined only when an application other than its target is known to be active.
class MacKeyEvents final : public desktop::KeyEvents {
 public:
  /// `loop` outlives this object and its presses.
  explicit MacKeyEvents(desktop::MainLoop& loop) : loop_(loop) {}

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override;
  [[nodiscard]] std::string obstacle() const override;
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& target,
                                      std::function<void()> aboutToPress,
                                      std::function<void(desktop::Delivery)> done) override;

 private:
  desktop::MainLoop& loop_;
};

}  // namespace quillseal::mac
