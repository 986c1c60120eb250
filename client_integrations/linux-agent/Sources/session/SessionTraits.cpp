#include "session/SessionTraits.h"

namespace quillseal::linux {

std::string limitsOf(const SessionTraits& session) {
  if (session.isWayland && session.isPortalSilent)
    return "The portal of your desktop did not answer in time, and without it Quillseal cannot "
           "reach most applications here. Start Quillseal again in a moment.";
  if (!session.hasXServer && session.canPortalPressKeys)
    return "Quillseal cannot sign selected text here, because it reads and writes the clipboard of "
           "this desktop through Xwayland, which does not run. Its settings work. Install the "
           "package xwayland, or switch Xwayland on again if you have switched it off; then "
           "log out and in.";
  if (!session.hasXServer)
    return "This Wayland desktop lets no program read text that is selected in another program, or "
           "press keys there, so Quillseal cannot sign selected text here. Its settings work. "
           "Signing works on sway and other desktops built on wlroots, on KDE Plasma 5 where the "
           "package of Quillseal is installed, and on GNOME and KDE Plasma 6 where the portal of "
           "the desktop lets programs press keys and use the clipboard.";
  if (!session.canPressKeys)
    return "This X server lacks the XTEST extension, with which Quillseal copies the selection and "
           "pastes the signed text. Its settings work; signing does not. Start the X server with "
           "XTEST enabled.";
  if (session.isWayland)
    return "This Wayland desktop lets Quillseal reach only applications that run through Xwayland, "
           "and the hotkey works only while one of them is in front. Bind the command “quillseal "
           "--sign” to a shortcut in the keyboard settings of your desktop instead. Every "
           "application is reached on sway and other desktops built on wlroots, on KDE Plasma 5 "
           "where the package of Quillseal is installed, and on GNOME and KDE Plasma 6 where the "
           "portal of the desktop lets programs press keys and use the clipboard.";
  return {};
}

PlatformChoice platformFor(const DisplayTraits& display) {
  const std::string& wanted = display.wantedPlatform;
  if (!wanted.empty() && !wanted.starts_with("wayland") && !wanted.starts_with("xcb"))
    return {.platform = wanted, .obstacle = {}};
  if (display.reachesApplicationsByWayland && display.hasWaylandPlugin)
    return {.platform = "wayland", .obstacle = {}};
  if (display.hasXServer) return {.platform = "xcb", .obstacle = {}};
  if (!display.hasWayland)
    return {.platform = {},
            .obstacle = "There is no display. Start Quillseal within a desktop session."};
  if (display.hasWaylandPlugin) return {.platform = "wayland", .obstacle = {}};
  if (display.reachesApplicationsByWayland)
    return {.platform = {},
            .obstacle =
                "Quillseal needs the package qt6-wayland to show its windows here. Install "
                "it and start Quillseal again."};
  return {.platform = {},
          .obstacle =
              "On this Wayland desktop programs cannot reach each other, so Quillseal cannot "
              "sign here. For its settings alone, install the package qt6-wayland."};
}

}  // namespace quillseal::linux
