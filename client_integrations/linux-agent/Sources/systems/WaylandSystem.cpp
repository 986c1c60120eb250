#include "systems/WaylandSystem.h"

#include <QGuiApplication>
#include <QWidget>
#include <utility>

#include "portal/PortalHotkey.h"
#include "session/Environment.h"
#include "session/LoadedModule.h"
#include "wayland/KeyboardFactory.h"
#include "wayland/KwinHotkey.h"
#include "wayland/KwinKeyboard.h"
#include "wayland/SwayHotkey.h"
#include "wayland/WaylandReach.h"

namespace quillseal::linux {
namespace {

std::string swaySocket() {
  return environmentVariable("SWAYSOCK");
}

std::unique_ptr<desktop::Hotkey> offeredHotkey(const WindowingSystem::Services& services,
                                               WaylandConnection& connection, DesktopBus* bus,
                                               Portal* portal) {
  if (bus != nullptr && KwinHotkey::isOfferedBy(connection, *bus))
    return std::make_unique<KwinHotkey>(
        KwinHotkey::Services{.loop = services.loop, .bus = *bus, .notify = services.notify});
  if (portal != nullptr)
    return std::make_unique<PortalHotkey>(PortalHotkey::Services{.loop = services.loop,
                                                                 .portal = *portal,
                                                                 .defaults = services.defaults,
                                                                 .notify = services.notify,
                                                                 .activated = {}});
  return std::make_unique<SwayHotkey>(SwayHotkey::Services{.loop = services.loop,
                                                           .descriptors = services.descriptors,
                                                           .connection = connection,
                                                           .socket = swaySocket(),
                                                           .notify = services.notify});
}

std::unique_ptr<Portal> portalWithHotkey(DesktopBus* bus, const PortalOffer& offer) {
  if (bus == nullptr || offer.globalShortcuts == 0) return nullptr;
  return std::make_unique<Portal>(*bus);
}

}  // namespace

WaylandSystem::WaylandSystem(DesktopAccess access, const Services& services)
    : connection_(std::move(access.compositor)),
      bus_(std::move(access.bus)),
      portalBus_(std::move(access.portalBus)),
      windows_(std::make_unique<WaylandWindows>(*connection_,
                                                QGuiApplication::desktopFileName().toStdString())),
      pasteboard_({.loop = services.loop,
                   .descriptors = services.descriptors,
                   .connection = *connection_,
                   .windows = *windows_},
                  ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::program))),
      applications_({.windows = *windows_, .entries = services.entries, .loop = services.loop},
                    SwayIpc::open(swaySocket())),
      portal_(portalWithHotkey(portalBus_.get(), access.offer)),
      hotkey_(offeredHotkey(services, *connection_, bus_.get(), portal_.get())),
      keyboard_(makeKeyboard(*connection_, bus_.get())),
      keys_({.loop = services.loop,
             .connection = *connection_,
             .windows = *windows_,
             .pasteboard = pasteboard_,
             .keyboard = *keyboard_,
             .showLimits = services.showLimits}) {
  connection_->serve(services.loop, services.descriptors);
  if (bus_ != nullptr) bus_->serve(services.loop, services.descriptors);
  if (portalBus_ != nullptr) portalBus_->serve(services.loop, services.descriptors);
}

std::string WaylandSystem::limits() const {
  if (reachesApplications(*connection_)) {
    if (bus_ != nullptr || !KwinKeyboard::isOfferedBy(*connection_)) return {};
    return "There is no session bus, so Quillseal cannot ask whether the screen is locked. It must "
           "not press keys behind a locked screen, so it signs nothing in this session. Log out "
           "and in again.";
  }
  return "The desktop no longer lets Quillseal read the selected text of other applications or "
         "press keys there. Start Quillseal again.";
}

void WaylandSystem::bringToFront(QWidget& window) const {
  window.show();
  window.raise();
  window.activateWindow();
  windows_->activateOwn(window.windowTitle().toStdString());
}

}  // namespace quillseal::linux
