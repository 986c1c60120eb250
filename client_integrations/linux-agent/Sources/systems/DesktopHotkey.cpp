#include "systems/DesktopHotkey.h"

#include <QByteArray>
#include <utility>

namespace quillseal::linux {
namespace {

/// Whether the desktop is GNOME, or one that uses its service for the keyboard settings. Taken for
/// granted if the bus does not answer.
bool obeysSettingsOfGnome(DesktopBus& bus) {
  return bus.hasOwner("org.gnome.Shell").value_or(true) ||
         bus.hasOwner("org.gnome.SettingsDaemon.MediaKeys").value_or(true);
}

}  // namespace

DesktopHotkey::DesktopHotkey(const WindowingSystem::Services& services, Sources sources)
    : extension_(sources.extension) {
  if (sources.isInPortal) {
    inPortal_.emplace(PortalHotkey::Services{.loop = services.loop,
                                             .portal = sources.portal,
                                             .defaults = services.defaults,
                                             .notify = services.notify,
                                             .activated = [](const std::string& token) {
                                               // Qt and the programs that are started take it from
                                               // there.
                                               qputenv("XDG_ACTIVATION_TOKEN",
                                                       QByteArray::fromStdString(token));
                                             }});
  } else {
    inSettings_.emplace(
        GnomeHotkey::Services{
            .loop = services.loop,
            .settings = services.shortcuts,
            .areObeyed = [&bus = sources.bus] { return obeysSettingsOfGnome(bus); },
            .alerts = services.alerts,
            .defaults = services.defaults},
        std::move(sources.program));
  }
}

desktop::Hotkey& DesktopHotkey::hotkey() {
  if (inPortal_) return *inPortal_;
  return *inSettings_;
}

bool DesktopHotkey::isNewPress() {
  return inPortal_ || inSettings_->isNewPress();
}

bool DesktopHotkey::mayBeHeld() const {
  if (extension_ != nullptr)
    if (const std::optional<ShellFront> front = extension_->front()) return front->holdsModifiers;
  return inPortal_ ? inPortal_->mayBeHeld() : inSettings_->mayBeHeld();
}

}  // namespace quillseal::linux
