#pragma once

#include "presence/PresencePrompt.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// Shows why presence is checked, in Qt dialogs.
class QtPresencePrompt : public PresencePrompt {
 public:
  explicit QtPresencePrompt(const OwnWindows& windows) : windows_(windows) {}

  [[nodiscard]] std::unique_ptr<PresenceWindow> open(const PresenceRequest& request,
                                                     std::function<void(bool)> answered) override;

 private:
  const OwnWindows& windows_;
};

}  // namespace quillseal::linux
