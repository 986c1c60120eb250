#pragma once

#include "LinuxDesktop/PresencePrompt.h"
#include "LinuxDesktop/WindowManager.h"

namespace quillseal {

/// The windows that say why presence is asked for, as dialogs of Qt.
class QtPresencePrompt : public PresencePrompt {
 public:
  explicit QtPresencePrompt(const WindowManager& windows) : windows_(windows) {}

  [[nodiscard]] std::unique_ptr<PresenceWindow> open(const PresenceRequest& request,
                                                     std::function<void(bool)> answered) override;

 private:
  const WindowManager& windows_;
};

}  // namespace quillseal
