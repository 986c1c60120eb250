#include "LinuxDesktop/X11Applications.h"

#include "LinuxDesktop/Browsers.h"
#include "LinuxDesktop/KeyChords.h"

namespace quillseal {
namespace {

using desktop::InstalledApplication;
using desktop::RunningApplication;

// The agent knows its preferred browser by the place of its bundle on macOS.
constexpr std::string_view chromeBundle = "/Applications/Google Chrome.app";

}  // namespace

std::optional<RunningApplication> X11Applications::frontmost() const {
  const xcb_window_t window = windows_.topForeignWindow();
  if (window == 0) return std::nullopt;
  const WindowTraits traits = windows_.traitsOf(window);
  RunningApplication application{.instance = window,
                                 .name = {},
                                 .bundleIdentifier = {},
                                 .categories = {},
                                 .document = windows_.documentOf(window)};
  if (const auto entry = entries_.forWindow(traits)) {
    application.name = entry->name;
    // Not by the executable: a browser's programs for single sites have desktop files of their own.
    application.bundleIdentifier =
        Browsers::identifierOf({.desktopFile = entry->id, .executable = {}});
    application.categories = entry->categories;
  } else if (!traits.windowClass.empty()) {
    application.name = traits.windowClass;
    const std::string browser =
        Browsers::identifierOf({.desktopFile = {}, .executable = traits.executable});
    if (!browser.empty()) application.bundleIdentifier = browser;
  }
  if (isTerminal(application.categories, traits.windowClass))
    application.categories += " TerminalEmulator";
  return application;
}

bool X11Applications::isActive(const RunningApplication& application) const {
  return application.instance != 0 && windows_.activeWindow() == application.instance;
}

void X11Applications::activate(const RunningApplication& application) {
  const auto window = static_cast<xcb_window_t>(application.instance);
  if (windows_.exists(window)) windows_.activate(window);
}

std::optional<InstalledApplication> X11Applications::applicationAt(const std::string& path) const {
  return path == chromeBundle ? launcher_.chrome() : std::nullopt;
}

std::optional<InstalledApplication> X11Applications::defaultApplicationFor(
    const std::string& url) const {
  return launcher_.defaultFor(url);
}

desktop::Ticket X11Applications::open(const std::string& url,
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

void X11Applications::open(const std::string& url) {
  launcher_.open(url, {});
}

}  // namespace quillseal
