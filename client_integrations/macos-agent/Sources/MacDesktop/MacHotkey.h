#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Hotkey.h"

namespace quillseal::mac {

/// The global hotkey through Carbon's event manager, which needs no permission from the user.
class MacHotkey final : public desktop::Hotkey {
 public:
  /// This object outlives the application's event loop.
  explicit MacHotkey(const MacMainLoop& loop) : poster_(loop.poster()) {}

  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

 private:
  MacMainLoop::Poster poster_;
  std::function<void()> pressed_;
};

}  // namespace quillseal::mac
