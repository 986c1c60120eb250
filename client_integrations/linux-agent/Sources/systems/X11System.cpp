#include "systems/X11System.h"

#include <QGuiApplication>
#include <QWidget>

#include "session/Environment.h"
#include "session/LoadedModule.h"

namespace quillseal::linux {
namespace {

bool isOnX() {
  return QGuiApplication::platformName() == QLatin1String("xcb");
}

// Not only XDG_SESSION_TYPE: it stays "tty" when a compositor is started from a console.
bool isWayland() {
  return environmentVariable("XDG_SESSION_TYPE") == "wayland" ||
         !environmentVariable("WAYLAND_DISPLAY").empty();
}

}  // namespace

X11System::X11System(const Services& services, const SessionTraits& portal)
    : keyboard_(isOnX() ? X11Keyboard::open() : nullptr),
      limits_(limitsOf({.isWayland = isWayland(),
                        .hasXServer = isOnX(),
                        .canPressKeys = keyboard_ != nullptr,
                        .isPortalSilent = portal.isPortalSilent,
                        .canPortalPressKeys = portal.canPortalPressKeys})),
      pasteboard_({.loop = services.loop, .descriptors = services.descriptors},
                  ClipboardKeeper(LoadedModule::usualPlaces(ClipboardKeeper::programForX11))),
      applications_(windows_, services.entries, services.loop),
      hotkey_({.loop = services.loop,
               .keyboard = keyboard_.get(),
               .obstacle = limits_,
               .notify = services.notify}),
      keys_({.loop = services.loop,
             .windows = windows_,
             .entries = services.entries,
             .keyboard = keyboard_.get(),
             .pasteboard = pasteboard_,
             .showLimits = services.showLimits}) {}

void X11System::bringToFront(QWidget& window) const {
  window.show();
  window.raise();
  window.activateWindow();
  windows_.activate(static_cast<xcb_window_t>(window.winId()));
}

}  // namespace quillseal::linux
