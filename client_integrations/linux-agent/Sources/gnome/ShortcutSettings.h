#pragma once

#include <string>

namespace quillseal::linux {

/// A shortcut that runs a command, in GNOME's keyboard settings.
struct CustomShortcut {
  std::string name;     ///< as the settings show it
  std::string command;  ///< with its options, quoted as for a shell
  std::string keys;     ///< as GTK writes them: "<Control><Alt>h"
};

enum class ShortcutState {
  missing,
  present,      ///< the agent's shortcut has keys, perhaps others that the user chose
  taken,        ///< another shortcut uses the keys
  locked,       ///< the administrator lets nobody add a shortcut
  unsupported,  ///< GNOME's settings are not installed
};

/// GNOME's keyboard settings. Main thread. Every function throws Error when GIO is not there.
class ShortcutSettings {
 public:
  virtual ~ShortcutSettings() = default;

  [[nodiscard]] virtual ShortcutState stateOf(const CustomShortcut& shortcut) = 0;

  /// The keys that the agent's shortcut has now, as GTK writes them; empty where it is missing.
  [[nodiscard]] virtual std::string keys() = 0;

  /// Adds the shortcut if it is missing. Returns whether it is there afterwards.
  [[nodiscard]] virtual bool add(const CustomShortcut& shortcut) = 0;
};

}  // namespace quillseal::linux
