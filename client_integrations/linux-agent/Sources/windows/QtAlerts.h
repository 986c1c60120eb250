#pragma once

#include "desktop/Alerts.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// Shows alerts as Qt dialogs and notifications through the session's notification service.
class QtAlerts : public desktop::Alerts {
 public:
  explicit QtAlerts(const OwnWindows& windows) : windows_(windows) {}

  [[nodiscard]] desktop::Ticket show(const desktop::Alert& alert,
                                     std::function<void()> dismissed) override;
  [[nodiscard]] desktop::Ticket ask(const desktop::Question& question,
                                    std::function<void(desktop::Answer)> answered) override;
  [[nodiscard]] desktop::Ticket confirm(
      const desktop::ConfirmationForm& form,
      std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) override;
  void notify(const desktop::Notification& notification) override;

 private:
  const OwnWindows& windows_;
};

}  // namespace quillseal::linux
