#pragma once

#include <memory>
#include <string>

#include "session/SessionTraits.h"
#include "systems/WindowingSystem.h"
#include "x11/QtPasteboard.h"
#include "x11/WindowManager.h"
#include "x11/X11Applications.h"
#include "x11/X11Hotkey.h"
#include "x11/X11Keyboard.h"
#include "x11/XTestKeyEvents.h"

namespace quillseal::linux {

/// Selections, keys and windows through the X server that Qt uses. Without one it does nothing and
/// reports that.
class X11System : public WindowingSystem, private OwnWindows {
 public:
  /// `portal`: what is known of the desktop's portal; the rest is found out here.
  X11System(const Services& services, const SessionTraits& portal);

  [[nodiscard]] std::string limits() const override { return limits_; }
  [[nodiscard]] std::string advice() const override { return limits_; }
  [[nodiscard]] desktop::Applications& applications() override { return applications_; }
  [[nodiscard]] desktop::Hotkey& hotkey() override { return hotkey_; }
  [[nodiscard]] desktop::KeyEvents& keys() override { return keys_; }
  [[nodiscard]] desktop::Pasteboard& pasteboard() override { return pasteboard_; }
  [[nodiscard]] const OwnWindows& ownWindows() const override { return *this; }

 private:
  void bringToFront(QWidget& window) const override;

  WindowManager windows_;
  std::unique_ptr<X11Keyboard> keyboard_;
  std::string limits_;
  QtPasteboard pasteboard_;
  X11Applications applications_;
  X11Hotkey hotkey_;
  XTestKeyEvents keys_;
};

}  // namespace quillseal::linux
