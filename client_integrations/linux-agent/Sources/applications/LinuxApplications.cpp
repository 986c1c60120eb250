#include "applications/LinuxApplications.h"

#include "browsers/Browsers.h"
#include "keyboard/KeyChords.h"

namespace quillseal::linux {
namespace {

using desktop::InstalledApplication;
using desktop::RunningApplication;

}  // namespace

RunningApplication LinuxApplications::applicationOf(const Window& window) const {
  const WindowTraits& traits = window.traits;
  RunningApplication application{.instance = window.instance,
                                 .name = {},
                                 .bundleIdentifier = {},
                                 .categories = {},
                                 .document = window.document};
  if (const auto entry = entries_.forWindow(traits)) {
    application.name = entry->name;
    // Not by the executable: web apps installed from a browser share it but have their own desktop
    // files.
    application.bundleIdentifier =
        Browsers::identifierOf({.desktopFile = entry->id, .executable = {}});
    application.categories = entry->categories;
  } else if (!traits.windowClass.empty()) {
    application.name = traits.windowClass;
    const std::string browser =
        Browsers::identifierOf({.desktopFile = {}, .executable = traits.executable});
    if (!browser.empty()) application.bundleIdentifier = browser;
  }
  if (isTerminal({.categories = application.categories, .windowClass = traits.windowClass}))
    application.categories += " TerminalEmulator";
  return application;
}

std::optional<InstalledApplication> LinuxApplications::preferredBrowser() const {
  return launcher_.chrome();
}

std::optional<InstalledApplication> LinuxApplications::defaultApplicationFor(
    const std::string& url) const {
  return launcher_.defaultFor(url);
}

desktop::Ticket LinuxApplications::open(const std::string& url,
                                        const InstalledApplication& application,
                                        std::function<void(std::optional<Error>)> done) {
  std::optional<Error> failure;
  try {
    launcher_.open(url, application.location);
  } catch (const Error& error) {
    failure = error;
  }
  done(std::move(failure));
  return {};
}

void LinuxApplications::open(const std::string& url) {
  launcher_.open(url, {});
}

}  // namespace quillseal::linux
