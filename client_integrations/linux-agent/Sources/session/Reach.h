#pragma once

#include <string>

namespace quillseal::linux {

/// What decides whether the agent can reach other applications.
struct SessionTraits {
  bool isWayland = false;
  bool hasXServer = false;    ///< its own or Xwayland
  bool canPressKeys = false;  ///< the X server has XTEST and XKEYBOARD
};

/// What does not work in a session and what does, and how to go on, as sentences for the person;
/// empty where everything works.
[[nodiscard]] std::string limitsOf(const SessionTraits& session);

/// What there is to draw windows on.
struct DisplayTraits {
  bool hasXServer = false;
  /// The compositor offers all that signing needs.
  bool reachesApplicationsByWayland = false;
  bool hasWayland = false;
  bool hasWaylandPlugin = false;  ///< Qt's, a package of its own on Debian
  std::string wantedPlatform;     ///< QT_QPA_PLATFORM
};

/// The Qt platform to use, or why there is none, as sentences for the person.
struct PlatformChoice {
  std::string platform;
  std::string obstacle;
};

/// The windows are drawn by the means through which selections, keys and the hotkey are reached,
/// else by the other. Some desktops want Wayland of every program of Qt; only another wish is
/// obeyed.
[[nodiscard]] PlatformChoice platformFor(const DisplayTraits& display);

}  // namespace quillseal::linux
