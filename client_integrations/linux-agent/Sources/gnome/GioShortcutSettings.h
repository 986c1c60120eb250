#pragma once

#include "gnome/ShortcutSettings.h"

namespace quillseal::linux {

/// Writes and reads the settings with GSettings. The shortcuts of the Shell, the window manager and
/// the media keys are compared as well as the user's own.
class GioShortcutSettings final : public ShortcutSettings {
 public:
  [[nodiscard]] ShortcutState stateOf(const CustomShortcut& shortcut) override;
  [[nodiscard]] std::string keys() override;
  [[nodiscard]] bool add(const CustomShortcut& shortcut) override;
};

}  // namespace quillseal::linux
