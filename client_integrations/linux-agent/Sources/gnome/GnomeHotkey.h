#pragma once

#include <functional>
#include <optional>
#include <string>

#include "desktop/Alerts.h"
#include "desktop/Defaults.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "gnome/ShortcutSettings.h"
#include "keyboard/ObservedHotkey.h"

namespace quillseal::linux {

/// The hotkey where GNOME offers programs none: a shortcut in the user's keyboard settings, which
/// starts the program again with `--sign`. The user is asked once before it is added, and again
/// only when they ask for it. It stays when the agent ends, and the user can change or remove it in
/// the settings.
///
/// `state` returns the keys that were last seen, which the agent keeps in its own settings. Reading
/// GNOME's settings loads GIO, which would cost memory in every waiting agent, so they are read
/// only at a press and by `refresh`.
class GnomeHotkey : public ObservedHotkey {
 public:
  /// All outlive this object.
  struct Services {
    desktop::MainLoop& loop;
    ShortcutSettings& settings;
    /// Whether the desktop obeys these settings, which another may have installed too.
    std::function<bool()> areObeyed;
    /// Found at each use, since the desktop's services are made after this object.
    std::function<desktop::Alerts&()> alerts;
    std::function<desktop::Defaults&()> defaults;
  };

  /// `program` is the path of the executable that the shortcut runs.
  GnomeHotkey(Services services, std::string program);

  /// `pressed` is not called: the shortcut's command arrives as every command does.
  void registerHotkey(desktop::KeyPress combination, std::function<void()> pressed) override;

  void refresh() override;
  void askAgain() override;

  /// Whether a command to sign that has just arrived is a new one: GNOME repeats it while the keys
  /// are held. To be called once for each.
  [[nodiscard]] bool isNewPress();

  /// Whether the user may still hold the keys: they were down when the last command arrived, and
  /// their release is not reported.
  [[nodiscard]] bool mayBeHeld() const;

 private:
  void begin();
  void offer();
  void notify(const std::string& problem) const;
  void read();
  void report();
  void answered(desktop::Answer answer, const CustomShortcut& shortcut);

  Services services_;
  std::string program_;
  std::optional<desktop::KeyPress> combination_;
  std::string keys_;  ///< of the shortcut, as GTK writes them; empty for none
  desktop::Ticket question_;
  bool isAsking_ = false;
  desktop::MainLoop::TimePoint lastCommand_;
};

}  // namespace quillseal::linux
