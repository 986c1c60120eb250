#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillseal {

/// What an installed application says about itself in its desktop file.
struct DesktopEntry {
  std::string id;           ///< File name without ".desktop", such as "org.gnome.TextEditor".
  std::string name;         ///< In the user's language.
  std::string categories;   ///< As written: "Network;Email;".
  std::string executable;   ///< File name of the program or script it starts.
  bool isConfined = false;  ///< A Flatpak or a Snap.
};

/// What can be found out about a window, each empty when it is not known.
struct WindowTraits {
  std::string windowClass;       ///< The class part of WM_CLASS.
  std::string gtkApplicationId;  ///< _GTK_APPLICATION_ID.
  std::string executable;        ///< File name of the process's program.

  bool operator==(const WindowTraits&) const = default;
};

/// The installed applications: desktop files under the XDG data folders. Reads them through GIO,
/// which keeps itself up to date. Main thread only.
namespace DesktopEntries {

/// The application that a window with these traits belongs to. In this order, without regard to
/// case: a StartupWMClass equal to the class, a file named after the GTK id, after the class, after
/// the executable. Nothing when there is none.
[[nodiscard]] std::optional<DesktopEntry> forWindow(const WindowTraits& traits);

[[nodiscard]] std::optional<DesktopEntry> withId(std::string_view id);

/// The application that opens this URL by the user's choice.
[[nodiscard]] std::optional<DesktopEntry> defaultFor(const std::string& url);

/// Starts the application with this id on a URL. False when it is not installed or could not be
/// started.
[[nodiscard]] bool open(const std::string& url, std::string_view id);

}  // namespace DesktopEntries
}  // namespace quillseal
