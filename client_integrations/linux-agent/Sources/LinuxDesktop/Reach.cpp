#include "LinuxDesktop/Reach.h"

namespace quillseal {

std::string limitsOf(const SessionTraits& session) {
  if (!session.hasXServer)
    return "This is a Wayland session without Xwayland. Wayland lets no program read what is "
           "selected in another or press keys there, so Quillseal cannot sign selected text here. "
           "Its settings work. To sign, choose an X11 session (“Xorg”) when you log in.";
  if (!session.canPressKeys)
    return "This X server lacks the XTEST extension, by which Quillseal copies the selection and "
           "pastes the signed text. Its settings work; signing does not. Start the X server with "
           "XTEST enabled.";
  if (session.isWayland)
    return "In a Wayland session Quillseal reaches only applications that run through Xwayland, "
           "and its hotkey works only while one of them is in front. Bind the command “quillseal "
           "--sign” to a shortcut in the keyboard settings of your desktop instead. To sign in "
           "every application, choose an X11 session (“Xorg”) when you log in.";
  return {};
}

PlatformChoice platformFor(const DisplayTraits& display) {
  const std::string& wanted = display.wantedPlatform;
  if (!wanted.empty() && !wanted.starts_with("wayland") && !wanted.starts_with("xcb"))
    return {.platform = wanted, .obstacle = {}};
  if (display.hasXServer) return {.platform = "xcb", .obstacle = {}};
  if (!display.hasWayland)
    return {.platform = {},
            .obstacle = "There is no display. Start Quillseal within a desktop session."};
  if (display.hasWaylandPlugin) return {.platform = "wayland", .obstacle = {}};
  return {.platform = {},
          .obstacle =
              "This is a Wayland session without Xwayland, in which Quillseal cannot sign. "
              "For its settings alone, install the package qt6-wayland. To sign, choose an "
              "X11 session (“Xorg”) when you log in."};
}

}  // namespace quillseal
