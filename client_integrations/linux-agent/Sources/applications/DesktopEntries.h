#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What an installed application says about itself in its desktop file.
struct DesktopEntry {
  std::string id;            ///< File name without ".desktop", such as "org.gnome.TextEditor".
  std::string name;          ///< In the user's language.
  std::string categories;    ///< As written: "Network;Email;".
  std::string executable;    ///< File name of the program or script it starts.
  std::string snap;          ///< The Snap it belongs to; empty for none.
  bool seesOurFiles = true;  ///< False for a Flatpak that is started without its files.
};

/// What can be found out about a window, each empty when it is not known.
struct WindowTraits {
  std::string windowClass;       ///< The class part of WM_CLASS.
  std::string gtkApplicationId;  ///< _GTK_APPLICATION_ID.
  std::string executable;        ///< File name of the process's program.

  bool operator==(const WindowTraits&) const = default;
};

/// The installed applications: desktop files under the XDG data folders. Main thread only. Every
/// function throws Error when they cannot be looked at.
class DesktopEntries {
 public:
  virtual ~DesktopEntries() = default;

  /// The application that a window with these traits belongs to. In this order, without regard to
  /// case: a StartupWMClass equal to the class, a file named after the GTK id, after the class,
  /// after the executable. Nothing when there is none.
  [[nodiscard]] virtual std::optional<DesktopEntry> forWindow(const WindowTraits& traits) = 0;

  [[nodiscard]] virtual std::optional<DesktopEntry> withId(std::string_view id) = 0;

  /// The application that opens this URL by the user's choice.
  [[nodiscard]] virtual std::optional<DesktopEntry> defaultFor(const std::string& url) = 0;

  /// Starts the application with this id on a URL. False when it is not installed or could not be
  /// started.
  [[nodiscard]] virtual bool open(const std::string& url, std::string_view id) = 0;
};

}  // namespace quillseal::linux
