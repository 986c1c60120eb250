#include "LinuxDesktop/X11Applications.h"

#include <filesystem>

#include "LinuxDesktop/DesktopEntries.h"

namespace quillseal {
namespace {

using desktop::InstalledApplication;
using desktop::RunningApplication;

// The agent knows its preferred browser by the place of its bundle on macOS.
constexpr std::string_view kChromeBundle = "/Applications/Google Chrome.app";
constexpr std::string_view kChromeEntry = "google-chrome";

std::optional<InstalledApplication> installed(const std::optional<DesktopEntry>& entry) {
  if (!entry) return std::nullopt;
  return InstalledApplication{.location = entry->id, .bundleIdentifier = entry->id};
}

}  // namespace

std::optional<RunningApplication> X11Applications::frontmost() const {
  const xcb_window_t window = windows_.topForeignWindow();
  if (window == 0) return std::nullopt;
  const WindowTraits traits = windows_.traitsOf(window);
  RunningApplication application{
      .instance = window, .name = {}, .bundleIdentifier = {}, .categories = {}};
  if (const auto entry = DesktopEntries::forWindow(traits)) {
    application.name = entry->name;
    application.bundleIdentifier = entry->id;
    application.categories = entry->categories;
  } else if (!traits.windowClass.empty()) {
    application.name = traits.windowClass;
  }
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
  return path == kChromeBundle ? installed(DesktopEntries::withId(kChromeEntry)) : std::nullopt;
}

std::optional<InstalledApplication> X11Applications::defaultApplicationFor(
    const std::string& url) const {
  return installed(DesktopEntries::defaultFor(url));
}

desktop::Ticket X11Applications::open(const std::string& url,
                                      const InstalledApplication& application,
                                      std::function<void(std::optional<Error>)> done) {
  if (DesktopEntries::open(url, application.location))
    done(std::nullopt);
  else
    done(Error({.domain = "X11Applications",
                .code = 1,
                .description = "“" + application.location + "” could not be started."}));
  return {};
}

void X11Applications::open(const std::string& url) {
  static_cast<void>(DesktopEntries::open(url, {}));
}

}  // namespace quillseal
