#pragma once

#include "Desktop/Hotkey.h"
#include "Desktop/MainLoop.h"

namespace quillseal::mac {

/// A hot key of the Carbon event manager, which needs no permission of the user.
class MacHotkey final : public desktop::Hotkey {
 public:
  /// `loop` and this object must outlive the event loop.
  explicit MacHotkey(desktop::MainLoop& loop) : loop_(loop) {}

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  desktop::MainLoop& loop_;
  std::function<void()> pressed_;
};

}  // namespace quillseal::mac
