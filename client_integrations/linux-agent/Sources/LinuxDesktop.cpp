#include "LinuxDesktop.h"

#include <QGuiApplication>
#include <QLatin1String>
#include <chrono>
#include <cstdlib>
#include <string>
#include <utility>

#include "LinuxWording.h"
#include "Quillseal/Settings.h"
#include "browsers/LinuxBrowserTabs.h"
#include "keys/LinuxKeyStore.h"
#include "modules/EntriesModule.h"
#include "modules/LoadedDesktopEntries.h"
#include "modules/LoadedShortcutSettings.h"
#include "network/HttpModule.h"
#include "network/LoadedTransport.h"
#include "presence/LinuxPresence.h"
#include "session/Environment.h"
#include "session/LoadedModule.h"
#include "session/QtDefaults.h"
#include "session/QtDescriptors.h"
#include "session/QtFiles.h"
#include "session/QtMainLoop.h"
#include "session/SessionTraits.h"
#include "session/SystemMachineIdentity.h"
#include "session/SystemWallClock.h"
#include "systems/GnomeSystem.h"
#include "systems/PortalSystem.h"
#include "systems/WaylandSystem.h"
#include "systems/X11System.h"
#include "windows/QtAlerts.h"
#include "windows/QtPresencePrompt.h"
#include "windows/QtProgram.h"
#include "windows/QtSecretPrompt.h"
#include "windows/QtWindows.h"
#include "windows/TrayStatusItem.h"

namespace quillseal::linux {
namespace {

// Absolute, as XDG Base Directory demands.
std::string keyFolder() {
  const std::string data = environmentVariable("XDG_DATA_HOME");
  return (data.starts_with('/') ? data : environmentVariable("HOME") + "/.local/share") +
         "/quillseal";
}

LoadedModule::Options moduleOptions(const char* file, const char* duty) {
  return {.places = LoadedModule::usualPlaces(file), .version = QUILLSEAL_VERSION, .duty = duty};
}

std::unique_ptr<WindowingSystem> chosen(DesktopAccess access,
                                        const WindowingSystem::Services& services) {
  if (access.reachesApplicationsByCompositor())
    return std::make_unique<WaylandSystem>(std::move(access), services);
  access.token = keyFolder() + "/portal-token";
  if (access.reachesApplicationsByPortal())
    return std::make_unique<PortalSystem>(std::move(access), services);
  // Others, as KWin, share the clipboard of Xwayland only while a program there has the focus.
  const bool isClipboardShared =
      access.bus != nullptr && access.bus->hasOwner("org.gnome.Shell").value_or(false);
  const bool canPressKeys = isClipboardShared && access.offer.remoteDesktop > 0;
  const bool isUnderXwayland = QGuiApplication::platformName() == QLatin1String("xcb");
  if (isUnderXwayland && access.portalBus != nullptr && canPressKeys)
    return std::make_unique<GnomeSystem>(std::move(access), services);
  return std::make_unique<X11System>(
      services,
      SessionTraits{.isPortalSilent = access.offer.isSilent, .canPortalPressKeys = canPressKeys});
}

/// The wording for the key that exists now or would be made.
class LinuxWords final : public desktop::Words {
 public:
  LinuxWords(const LinuxKeyStore& keyStore, const desktop::Defaults& defaults,
             WindowingSystem& system)
      : keyStore_(keyStore), defaults_(defaults), system_(system) {}

  [[nodiscard]] desktop::Wording current() const override {
    return linuxWording({.key = keyStore_.place(),
                         .isDemo = Settings::demoSigning.isOn(defaults_),
                         .otherHotkey = system_.hotkey().state().otherKeys});
  }
  [[nodiscard]] std::string desktopAdvice() const override { return system_.advice(); }

 private:
  const LinuxKeyStore& keyStore_;
  const desktop::Defaults& defaults_;
  WindowingSystem& system_;
};

}  // namespace

// Members are destroyed from the last to the first.
struct LinuxDesktop::Parts {
  Parts(const CommandLine& commandLine, desktop::Log& sink, DesktopAccess access)
      : log(sink),
        entries(LoadedModule(
            moduleOptions(EntriesModule::fileName, "knows the installed applications"))),
        shortcuts(LoadedShortcutSettings::usualModule()),
        system(chosen(std::move(access),
                      {.loop = loop,
                       .descriptors = descriptors,
                       .log = log,
                       .entries = entries,
                       .shortcuts = shortcuts,
                       .showLimits = [this] { warn(system->limits()); },
                       .notify =
                           [this](const std::string& sentence) {
                             log.write("[desktop] " + sentence);
                             alerts.notify({.title = "Quillseal", .body = sentence});
                           },
                       .alerts = [this]() -> desktop::Alerts& { return alerts; },
                       .defaults = [this]() -> desktop::Defaults& { return defaults; }})),
        secretPrompt(loop, system->ownWindows()),
        keyStore(makeKeyStore({.folder = keyFolder(), .tpm = commandLine.tpm}, secretPrompt)),
        alerts(system->ownWindows()),
        windows(system->ownWindows()),
        presencePrompt(system->ownWindows()),
        presence(loop, presencePrompt),
        defaults({.path = QtDefaults::settingsFile(),
                  .warn = [this](const std::string& sentence) { warn(sentence); }}),
        http(loop, descriptors,
             LoadedModule(moduleOptions(HttpModule::fileName, "talks to the server"))),
        program(system->ownWindows()),
        browserTabs({.loop = loop, .descriptors = descriptors, .log = log}),
        words(*keyStore, defaults, *system) {
    log.write("[start] " + keyStore->describe());
    const std::string limits = system->limits();
    if (limits.empty()) return;
    // At log-in the user would have to close the window every time.
    if (commandLine.command == Command::background)
      alerts.notify({.title = "Quillseal", .body = limits});
    else
      warn(limits);
  }

  // Workers use the services, and one that waits for a TPM or a system service can only be ended
  // with the process.
  ~Parts() {
    constexpr std::chrono::seconds timeout{5};
    secretPrompt.close();
    if (loop.waitForWorkers(timeout)) return;
    log.write("[end] a worker is still running");
    std::_Exit(0);
  }

  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  void warn(const std::string& sentence) {
    log.write("[start] " + sentence);
    warning = alerts.show({.title = "Quillseal", .body = sentence}, [] {});
  }

  desktop::Log& log;
  QtMainLoop loop;
  QtDescriptors descriptors;
  LoadedDesktopEntries entries;
  LoadedShortcutSettings shortcuts;
  std::unique_ptr<WindowingSystem> system;
  QtSecretPrompt secretPrompt;
  std::unique_ptr<LinuxKeyStore> keyStore;
  QtAlerts alerts;
  desktop::Ticket warning;
  QtWindows windows;
  TrayStatusItem statusItem;
  QtPresencePrompt presencePrompt;
  LinuxPresence presence;
  QtDefaults defaults;
  LoadedTransport http;
  QtProgram program;
  QtFiles files;
  LinuxBrowserTabs browserTabs;
  LinuxWords words;
  SystemMachineIdentity machine;
  SystemWallClock wallClock;
};

LinuxDesktop::LinuxDesktop(const CommandLine& commandLine, desktop::Log& log, DesktopAccess access)
    : parts_(std::make_unique<Parts>(commandLine, log, std::move(access))) {}

LinuxDesktop::~LinuxDesktop() = default;

bool LinuxDesktop::isNewPress() {
  return parts_->system->isNewPress();
}

desktop::Desktop LinuxDesktop::services() {
  return {.alerts = parts_->alerts,
          .applications = parts_->system->applications(),
          .browserTabs = parts_->browserTabs,
          .defaults = parts_->defaults,
          .files = parts_->files,
          .hotkey = parts_->system->hotkey(),
          .http = parts_->http,
          .keys = parts_->system->keys(),
          .keyStore = *parts_->keyStore,
          .log = parts_->log,
          .machine = parts_->machine,
          .loop = parts_->loop,
          .pasteboard = parts_->system->pasteboard(),
          .presence = parts_->presence,
          .program = parts_->program,
          .statusItem = parts_->statusItem,
          .wallClock = parts_->wallClock,
          .windows = parts_->windows,
          .words = parts_->words};
}

}  // namespace quillseal::linux
