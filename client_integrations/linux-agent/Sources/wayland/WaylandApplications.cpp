#include "wayland/WaylandApplications.h"

#include <chrono>
#include <utility>

#include "applications/ProcessExecutable.h"
#include "applications/WindowDocument.h"
#include "wayland/SwayReports.h"

namespace quillseal::linux {
namespace {

using desktop::RunningApplication;

/// Time for a running browser to take the URL. One that has to start activates its window itself.
constexpr std::chrono::milliseconds takesAddress{300};

}  // namespace

WindowTraits traitsOf(const WaylandWindow& window) {
  // Most compositors report only the app id, which often equals one of the others.
  const std::string executable = window.process == 0 ? "" : executableOf(window.process);
  return {.windowClass = window.applicationId,
          .gtkApplicationId = window.applicationId,
          .executable = executable.empty() ? window.applicationId : executable};
}

std::optional<RunningApplication> WaylandApplications::frontmost() const {
  std::optional<WaylandWindow> window = services_.windows.frontForeign();
  if (!window) return std::nullopt;
  if (sway_ != nullptr) {
    // A terminal may have any app id, and Ctrl+C would end the program that runs in it.
    const std::optional<std::string> tree = sway_->ask(SwayIpc::Request::getTree, "");
    if (!tree) return std::nullopt;
    if (const auto application = applicationIn(*tree, window->title)) {
      window->applicationId = application->id;
      window->process = application->process;
    }
  }
  return applicationOf({.instance = window->id,
                        .traits = traitsOf(*window),
                        .document = documentName({.title = window->title, .focus = 0})});
}

bool WaylandApplications::isActive(const RunningApplication& application) const {
  const std::optional<WaylandWindow> window = services_.windows.withId(application.instance);
  return window && window->isActive;
}

void WaylandApplications::activate(const RunningApplication& application) {
  services_.windows.activate(application.instance);
}

desktop::Ticket WaylandApplications::open(const std::string& url,
                                          const desktop::InstalledApplication& application,
                                          std::function<void(std::optional<Error>)> done) {
  bringing_ = services_.loop.after(
      takesAddress, [this, location = application.location] { bringToFront(location); });
  return LinuxApplications::open(url, application, std::move(done));
}

void WaylandApplications::bringToFront(const std::string& location) {
  const auto window = services_.windows.lastActiveOf([&](const WaylandWindow& candidate) {
    const auto entry = services_.entries.forWindow(traitsOf(candidate));
    return entry && entry->id == location;
  });
  if (window && !window->isActive) services_.windows.activate(window->id);
}

}  // namespace quillseal::linux
