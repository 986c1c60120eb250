#pragma once

#include "Desktop/KeyEvents.h"
#include "Desktop/Log.h"
#include "Desktop/MainLoop.h"

namespace quillseal::mac {

/// Keyboard events of Core Graphics, posted where the hardware's own arrive.
class MacKeyEvents final : public desktop::KeyEvents {
 public:
  struct Services {
    desktop::MainLoop& loop;
    desktop::Log& log;
  };

  /// The services outlive this object and its presses.
  explicit MacKeyEvents(Services services) : services_(services) {}

  [[nodiscard]] bool isTrusted() const override;
  void askForTrust() override;
  [[nodiscard]] desktop::Ticket press(desktop::KeyPress press, std::function<void()> done) override;

 private:
  Services services_;
};

}  // namespace quillseal::mac
