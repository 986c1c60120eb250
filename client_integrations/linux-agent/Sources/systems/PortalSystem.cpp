#include "systems/PortalSystem.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWidget>
#include <utility>

#include "gnome/GnomeApplications.h"
#include "keys/PrivateFile.h"
#include "portal/PortalPasteboard.h"
#include "session/LoadedModule.h"
#include "session/ScreenLock.h"
#include "wayland/WaylandApplications.h"
#include "wayland/WaylandPasteboard.h"

namespace quillseal::linux {

PortalSystem::PortalSystem(DesktopAccess access, const Services& services)
    : access_(std::move(access)),
      windows_(access_.showsWindows()
                   ? std::make_unique<WaylandWindows>(
                         *access_.compositor, QGuiApplication::desktopFileName().toStdString())
                   : nullptr),
      extension_(*access_.bus),
      portal_(*access_.portalBus),
      remote_({.loop = services.loop,
               .portal = portal_,
               // The portal's clipboard is not asked for where the compositor has one.
               .offer = {.remoteDesktop = access_.offer.remoteDesktop,
                         .globalShortcuts = access_.offer.globalShortcuts,
                         .clipboard = windows_ == nullptr ? access_.offer.clipboard : 0},
               .token = PrivateFile(access_.token),
               .notify = services.notify}),
      applications_(makeApplications(services)),
      pasteboard_(makePasteboard(services)),
      hotkey_(services, {.bus = *access_.bus,
                         .portal = portal_,
                         .isInPortal = access_.offer.globalShortcuts > 0,
                         .extension = windows_ == nullptr ? &extension_ : nullptr,
                         .program = QCoreApplication::applicationFilePath().toStdString()}),
      keys_({.loop = services.loop,
             .remote = remote_,
             .applications = *applications_,
             .pasteboard = *pasteboard_,
             .isHotkeyHeld = [this] { return hotkey_.mayBeHeld(); },
             .isKeyboardTaken =
                 [this] {
                   return windows_ != nullptr &&
                          (isScreenLocked(*access_.bus) || isEffectTakingKeys(*access_.bus));
                 },
             .catchUp =
                 [this](std::function<void()> done) {
                   if (windows_ != nullptr) return access_.compositor->catchUp(std::move(done));
                   done();
                   return desktop::Ticket();
                 },
             .showLimits = services.showLimits,
             .notify = services.notify}) {
  access_.bus->serve(services.loop, services.descriptors);
  access_.portalBus->serve(services.loop, services.descriptors);
  if (access_.compositor != nullptr) access_.compositor->serve(services.loop, services.descriptors);
}

std::unique_ptr<desktop::Applications> PortalSystem::makeApplications(const Services& services) {
  if (windows_ == nullptr)
    return std::make_unique<GnomeApplications>(
        GnomeApplications::Services{.extension = extension_,
                                    .entries = services.entries,
                                    .loop = services.loop,
                                    .notify = services.notify});
  return std::make_unique<WaylandApplications>(
      WaylandApplications::Services{
          .windows = *windows_, .entries = services.entries, .loop = services.loop},
      nullptr);
}

std::unique_ptr<desktop::Pasteboard> PortalSystem::makePasteboard(const Services& services) {
  if (windows_ == nullptr) {
    return std::make_unique<PortalPasteboard>(
        PortalPasteboard::Services{.loop = services.loop,
                                   .descriptors = services.descriptors,
                                   .portal = portal_,
                                   .remote = remote_,
                                   .log = services.log},
        ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::programForX11)));
  }
  return std::make_unique<WaylandPasteboard>(
      WaylandPasteboard::Services{.loop = services.loop,
                                  .descriptors = services.descriptors,
                                  .connection = *access_.compositor,
                                  .windows = *windows_},
      ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::program)));
}

void PortalSystem::bringToFront(QWidget& window) const {
  // Mutter raises only windows that are new to it, unless it gave a token at the press.
  if (windows_ == nullptr && window.isVisible() && !window.isActiveWindow()) window.hide();
  window.show();
  window.raise();
  window.activateWindow();
  if (windows_ != nullptr) windows_->activateOwn(window.windowTitle().toStdString());
}

}  // namespace quillseal::linux
