#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Alerts.h"
#include "desktop/Log.h"

@class NSAlert;
@class NSView;
@class QSMenuWatcher;
@class QSNotificationPresenter;

namespace quillseal::mac {

/// Shows alerts with AppKit and notifications through the user notification center. An alert is
/// modal in a nested event loop, in which the agent's other work continues. Of several open alerts
/// the newest must be answered first. An alert closes an open menu of this program before it
/// appears.
class MacAlerts final : public desktop::Alerts {
 public:
  struct Services {
    const MacMainLoop& loop;
    desktop::Log& log;
  };

  /// Main thread. The log outlives this object; this object outlives the application's event loop.
  explicit MacAlerts(Services services);
  ~MacAlerts() override;
  MacAlerts(const MacAlerts&) = delete;
  MacAlerts& operator=(const MacAlerts&) = delete;

  [[nodiscard]] desktop::Ticket show(const desktop::Alert& alert,
                                     std::function<void()> dismissed) override;
  [[nodiscard]] desktop::Ticket ask(const desktop::Question& question,
                                    std::function<void(desktop::Answer)> answered) override;
  [[nodiscard]] desktop::Ticket confirm(
      const desktop::ConfirmationForm& form,
      std::function<void(std::optional<desktop::ConfirmationEntry>)> answered) override;
  void notify(const desktop::Notification& notification) override;

 private:
  struct OpenAlert;

  /// Opens `alert` soon, with the focus in `field` unless that is nil. Calls `answered` with
  /// whether the first button was pressed.
  [[nodiscard]] desktop::Ticket open(NSAlert* alert, NSView* field,
                                     std::function<void(bool)> answered);
  void run(const std::shared_ptr<OpenAlert>& open);
  void runAfterMenu();
  void stopWithdrawn();

  MacMainLoop::Poster poster_;
  std::shared_ptr<desktop::Log*> log_;  ///< null after this object is destroyed, for late answers
  std::vector<std::shared_ptr<OpenAlert>> open_;     ///< the newest last
  std::vector<std::shared_ptr<OpenAlert>> waiting_;  ///< alerts that wait for a menu to close
  QSMenuWatcher* menus_;
  QSNotificationPresenter* presenter_;  ///< the notification center does not own it
};

}  // namespace quillseal::mac
