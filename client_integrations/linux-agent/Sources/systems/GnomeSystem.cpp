#include "systems/GnomeSystem.h"

#include <QCoreApplication>
#include <QWidget>
#include <utility>

#include "session/LoadedModule.h"

namespace quillseal::linux {

GnomeSystem::GnomeSystem(DesktopAccess access, const Services& services)
    : access_(std::move(access)),
      portal_(*access_.portalBus),
      remote_({.loop = services.loop,
               .portal = portal_,
               .offer = access_.offer,
               .token = PrivateFile(access_.token),
               .notify = services.notify}),
      extension_(*access_.bus),
      pasteboard_({.reading = {.loop = services.loop, .descriptors = services.descriptors},
                   .windows = windows_,
                   .extension = extension_},
                  ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::programForX11))),
      applications_({.extension = extension_,
                     .entries = services.entries,
                     .loop = services.loop,
                     .notify = services.notify}),
      hotkey_(services, {.bus = *access_.bus,
                         .portal = portal_,
                         .isInPortal = access_.offer.globalShortcuts > 0,
                         .extension = &extension_,
                         .program = QCoreApplication::applicationFilePath().toStdString()}),
      keys_({.loop = services.loop,
             .remote = remote_,
             .applications = applications_,
             .pasteboard = pasteboard_,
             .isHotkeyHeld = [this] { return hotkey_.mayBeHeld(); },
             .isKeyboardTaken = [] { return false; },
             .showLimits = services.showLimits,
             .notify = services.notify}) {
  access_.bus->serve(services.loop, services.descriptors);
  access_.portalBus->serve(services.loop, services.descriptors);
}

void GnomeSystem::bringToFront(QWidget& window) const {
  window.show();
  window.raise();
  window.activateWindow();
  windows_.activate(static_cast<xcb_window_t>(window.winId()));
}

}  // namespace quillseal::linux
