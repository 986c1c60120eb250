#pragma once

#include <filesystem>
#include <memory>

#include "portal/Portal.h"
#include "session/DesktopBus.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// The ways into a Wayland desktop.
struct DesktopAccess {
  std::unique_ptr<DesktopBus> bus;        ///< null where there is none
  std::unique_ptr<DesktopBus> portalBus;  ///< on which the portal knows the agent; or null
  PortalOffer offer;
  std::unique_ptr<WaylandConnection> compositor;  ///< null where none answers
  std::filesystem::path token;  ///< the file for what the user has allowed; see PrivateFile

  /// Whether the compositor offers all that signing in other applications needs.
  [[nodiscard]] bool reachesApplicationsByCompositor() const;

  /// Whether the portal does, perhaps with the compositor's clipboard and windows.
  [[nodiscard]] bool reachesApplicationsByPortal() const;

  /// Whether the compositor lets programs see windows and clipboard, as KWin does.
  [[nodiscard]] bool showsWindows() const;
};

/// Looks for the ways into this session's desktop, all but `token`; finds none outside Wayland.
/// `startsWithSession`: the portal may be starting too, and nobody waits for the agent, so the
/// portal gets fifteen seconds to answer instead of two.
[[nodiscard]] DesktopAccess findDesktopAccess(bool startsWithSession);

}  // namespace quillseal::linux
