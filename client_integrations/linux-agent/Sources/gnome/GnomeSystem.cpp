#include "gnome/GnomeSystem.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWidget>
#include <chrono>
#include <optional>
#include <utility>

#include "applications/EntriesModule.h"
#include "session/LoadedModule.h"

namespace quillseal::linux {
namespace {

/// The shortcut's command arrives while its keys are down, and without the extension nothing tells
/// when they are released.
constexpr std::chrono::milliseconds assumedHold{500};

/// GNOME runs the command again and again while the keys are held. Desktops let people choose
/// delays up to this before the first repetition.
constexpr std::chrono::milliseconds longestRepeatDelay{1000};

}  // namespace

GnomeSystem::GnomeSystem(PortalSystem::Access access, const Services& services)
    : services_(services),
      access_(std::move(access)),
      portal_(*access_.portalBus, QGuiApplication::desktopFileName().toStdString()),
      remote_({.loop = services.loop,
               .portal = portal_,
               .offer = access_.offer,
               .token = PrivateFile(access_.token),
               .tell = services.tell}),
      extension_(*access_.bus),
      pasteboard_({.loop = services.loop, .descriptors = services.descriptors}, extension_),
      applications_(extension_, services.entries, services.loop),
      shortcuts_(LoadedModule({.places = LoadedModule::usualPlaces(EntriesModule::fileName),
                               .version = QUILLSEAL_VERSION,
                               .duty = "knows the desktop's settings"})),
      hotkey_({.settings = shortcuts_, .alerts = services.alerts, .defaults = services.defaults},
              QCoreApplication::applicationFilePath().toStdString()),
      keys_({.loop = services.loop,
             .remote = remote_,
             .applications = applications_,
             .isHotkeyHeld = [this] { return mayHotkeyBeHeld(); },
             .isScreenLocked = [] { return false; },
             .isWritten = [this] { return pasteboard_.isWritten(); },
             .explain = services.explain,
             .tell = services.tell}) {
  access_.bus->serve(services.loop, services.descriptors);
  access_.portalBus->serve(services.loop, services.descriptors);
}

std::string GnomeSystem::advice() const {
  if (extension_.front()) return {};
  return "On this desktop Quillseal does not see which window you write in, so it leaves the "
         "signed text on the clipboard for you to paste. Enable the extension “Quillseal front "
         "window” in the Extensions application, after a new log-in: then Quillseal copies from "
         "the window you write in and pastes there, and nowhere else.";
}

void GnomeSystem::bringToFront(QWidget& window) const {
  window.show();
  window.raise();
  window.activateWindow();
  windows_.activate(static_cast<xcb_window_t>(window.winId()));
}

bool GnomeSystem::isNewPress() {
  const auto now = services_.loop.now();
  return now > std::exchange(lastCommand_, now) + longestRepeatDelay;
}

bool GnomeSystem::mayHotkeyBeHeld() const {
  if (const std::optional<ShellFront> front = extension_.front()) return front->holdsModifiers;
  return services_.loop.now() < lastCommand_ + assumedHold;
}

}  // namespace quillseal::linux
