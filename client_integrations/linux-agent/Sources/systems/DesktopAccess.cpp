#include "systems/DesktopAccess.h"

#include <chrono>
#include <utility>

#include "session/Environment.h"
#include "session/LoadedModule.h"
#include "wayland/KwinHotkey.h"
#include "wayland/WaylandConnector.h"
#include "wayland/WaylandReach.h"

namespace quillseal::linux {
namespace {

/// Whether the portal is of use: it may bring keys and clipboard, or else a hotkey.
bool isPortalOfInterest(const DesktopAccess& access, bool startsWithSession) {
  if (!access.reachesApplicationsByCompositor()) return true;
  // Sway and KDE have a hotkey of their own.
  if (!environmentVariable("SWAYSOCK").empty()) return false;
  if (KwinHotkey::isOfferedBy(*access.compositor, *access.bus)) return false;
  // For a hotkey alone, only a start with the session waits until the portal has started.
  return startsWithSession || access.bus->hasOwner(Portal::service).value_or(false);
}

}  // namespace

bool DesktopAccess::reachesApplicationsByCompositor() const {
  return compositor != nullptr && reachesApplications(*compositor);
}

bool DesktopAccess::reachesApplicationsByPortal() const {
  return portalBus != nullptr && offer.remoteDesktop > 0 && (offer.clipboard > 0 || showsWindows());
}

bool DesktopAccess::showsWindows() const {
  return compositor != nullptr && linux::showsWindows(*compositor);
}

DesktopAccess findDesktopAccess(bool startsWithSession) {
  DesktopAccess access;
  // Without the variable, libwayland would try the default name, which may belong to another
  // session.
  if (environmentVariable("WAYLAND_DISPLAY").empty()) return access;
  const auto places = LoadedModule::usualPlaces(WaylandConnector::program);
  access.compositor = WaylandConnection::open();
  if (access.compositor != nullptr && !access.reachesApplicationsByCompositor())
    if (auto connection = WaylandConnector::open(places)) access.compositor = std::move(connection);
  access.bus = DesktopBus::open();
  if (access.bus == nullptr) return access;
  if (isPortalOfInterest(access, startsWithSession))
    access.portalBus = DesktopBus::openThrough(places);
  const std::chrono::seconds timeout(startsWithSession ? 15 : 2);
  if (access.portalBus != nullptr) access.offer = offerOfPortal(*access.portalBus, timeout);
  return access;
}

}  // namespace quillseal::linux
