#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// The fields of an installed application's desktop file that the agent uses.
struct DesktopEntry {
  std::string id;            ///< File name without ".desktop", such as "org.gnome.TextEditor".
  std::string name;          ///< In the user's language.
  std::string categories;    ///< As written: "Network;Email;".
  std::string executable;    ///< File name of the program or script it starts.
  std::string snap;          ///< The Snap it belongs to; empty for none.
  bool seesOurFiles = true;  ///< False for a Flatpak that is started without its files.
};

/// What identifies a window's application. Each member is empty when it is not known.
struct WindowTraits {
  std::string windowClass;       ///< The class part of WM_CLASS.
  std::string gtkApplicationId;  ///< _GTK_APPLICATION_ID.
  std::string executable;        ///< File name of the process's program.

  bool operator==(const WindowTraits&) const = default;
};

/// The installed applications: desktop files under the XDG data folders. Main thread only. Every
/// function throws Error when the lookup fails.
class DesktopEntries {
 public:
  virtual ~DesktopEntries() = default;

  /// Returns the application that a window with these traits belongs to, or nothing. Compares
  /// without regard to case, in this order: StartupWMClass with the class, then the file's name
  /// with the GTK id, the class and the executable.
  [[nodiscard]] virtual std::optional<DesktopEntry> forWindow(const WindowTraits& traits) = 0;

  [[nodiscard]] virtual std::optional<DesktopEntry> withId(std::string_view id) = 0;

  /// Returns the application that the user has chosen for such URLs.
  [[nodiscard]] virtual std::optional<DesktopEntry> defaultFor(const std::string& url) = 0;

  /// Opens a URL with the application of this id. False when it is not installed or could not be
  /// started.
  [[nodiscard]] virtual bool open(const std::string& url, std::string_view id) = 0;
};

}  // namespace quillseal::linux
