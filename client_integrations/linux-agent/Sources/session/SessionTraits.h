#pragma once

#include <string>

namespace quillseal::linux {

/// The properties of a session that decide whether the agent can reach other applications.
struct SessionTraits {
  bool isWayland = false;
  bool hasXServer = false;      ///< its own or Xwayland
  bool canPressKeys = false;    ///< the X server has XTEST and XKEYBOARD
  bool isPortalSilent = false;  ///< the desktop's portal did not answer in time
  /// The portal would press keys, on GNOME, where the clipboard then comes through Xwayland.
  bool canPortalPressKeys = false;
};

/// Says what does not work in a session, what does, and what to do, in sentences for the user;
/// empty where everything works.
[[nodiscard]] std::string limitsOf(const SessionTraits& session);

/// The available displays.
struct DisplayTraits {
  bool hasXServer = false;
  /// The compositor offers all protocols that signing needs.
  bool reachesApplicationsByWayland = false;
  bool hasWayland = false;
  bool hasWaylandPlugin = false;  ///< Qt's, a package of its own on Debian
  std::string wantedPlatform;     ///< QT_QPA_PLATFORM
};

/// The Qt platform to use, or why there is none, in sentences for the user.
struct PlatformChoice {
  std::string platform;
  std::string obstacle;
};

/// Chooses the platform through which selections, keys and the hotkey are reached, else the other
/// one. Some desktops set QT_QPA_PLATFORM to Wayland for every Qt program, so only another value is
/// obeyed.
[[nodiscard]] PlatformChoice platformFor(const DisplayTraits& display);

}  // namespace quillseal::linux
