#pragma once

#include <utility>

#include "desktop/Alerts.h"
#include "session/PlatformWording.h"
#include "windows/OwnWindows.h"

namespace quillseal {

/// Alerts as dialogs of Qt, notifications through the session's notification service.
class QtAlerts : public desktop::Alerts {
 public:
  QtAlerts(const OwnWindows& windows, PlatformWording::CurrentCircumstances circumstances)
      : windows_(windows), circumstances_(std::move(circumstances)) {}

  [[nodiscard]] desktop::Ticket show(const desktop::Alert& original,
                                     std::function<void()> dismissed) override;
  [[nodiscard]] desktop::Ticket ask(const desktop::Question& original,
                                    std::function<void(desktop::Answer)> answered) override;
  [[nodiscard]] desktop::Ticket confirm(
      const desktop::ConfirmationForm& original,
      std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) override;
  void notify(const desktop::Notification& notification) override;

 private:
  const OwnWindows& windows_;
  PlatformWording::CurrentCircumstances circumstances_;
};

}  // namespace quillseal
