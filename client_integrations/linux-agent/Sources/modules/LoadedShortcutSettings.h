#pragma once

#include <memory>

#include "gnome/ShortcutSettings.h"
#include "session/LoadedModule.h"

namespace quillseal::linux {

/// The settings of `EntriesModule`. Loads the module at the first use.
class LoadedShortcutSettings final : public ShortcutSettings {
 public:
  explicit LoadedShortcutSettings(LoadedModule module);

  /// The module of the installed or the built program.
  [[nodiscard]] static LoadedModule usualModule();

  [[nodiscard]] ShortcutState stateOf(const CustomShortcut& shortcut) override;
  [[nodiscard]] std::string keys() override;
  [[nodiscard]] bool add(const CustomShortcut& shortcut) override;

 private:
  [[nodiscard]] ShortcutSettings& settings();

  LoadedModule module_;
  std::unique_ptr<ShortcutSettings> settings_;
};

}  // namespace quillseal::linux
