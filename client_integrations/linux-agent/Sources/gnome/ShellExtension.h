#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "applications/DesktopEntries.h"
#include "session/DesktopBus.h"

namespace quillseal::linux {

/// What GNOME Shell shows in front.
struct ShellFront {
  /// The last focused window of another program; 0 when there is none. Never reused.
  std::uint64_t window = 0;
  bool hasKeys = false;         ///< It has the keyboard: no other window and nothing of the Shell.
  bool holdsModifiers = false;  ///< The person holds Shift, Control, Alt, Super or the like.
  WindowTraits traits;          ///< of the window
  std::string document;         ///< made by `documentName`
  /// How often the clipboard got another owner; starts again with the extension.
  std::uint32_t clipboardChanges = 0;
};

/// Client of the Shell extension "Quillseal front window". The extension answers only the process
/// that owns the agent's name on the bus. Each call asks anew and takes at most a second. After one
/// that got no answer in time, the extension counts as not answering for a while, so that a Shell
/// that hangs does not hold up every step of a signature. Main thread.
class ShellExtension {
 public:
  static constexpr std::chrono::milliseconds usualPause{2000};

  /// The bus outlives this object. `pause`: for how long nothing is asked after a call that got no
  /// answer in time.
  explicit ShellExtension(DesktopBus& bus, std::chrono::milliseconds pause = usualPause)
      : bus_(bus), pause_(pause) {}

  /// Returns nothing where the extension does not answer: it is not installed or not enabled, the
  /// screen is locked, or the desktop is another one.
  [[nodiscard]] std::optional<ShellFront> front() const;

  /// Says to enable it, or that there is none for this version of the Shell, in sentences for the
  /// user; empty where it answers, and on other desktops.
  [[nodiscard]] std::string advice() const;

  /// Asks for the window to be brought to the front. Nothing happens when it has closed.
  void activate(std::uint64_t window) const;

  /// Asks for the window that was used last of the application with this desktop file, such as
  /// "chromium.desktop". Returns whether there is one; nothing where the extension does not answer.
  [[nodiscard]] std::optional<bool> activateApplication(const std::string& desktopFile) const;

 private:
  template <typename... Arguments>
  [[nodiscard]] DesktopBus::Message ask(const char* name, const char* types,
                                        Arguments... arguments) const;

  DesktopBus& bus_;
  std::chrono::milliseconds pause_;
  mutable std::chrono::steady_clock::time_point silentUntil_;
};

}  // namespace quillseal::linux
