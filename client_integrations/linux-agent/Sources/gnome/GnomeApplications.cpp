#include "gnome/GnomeApplications.h"

#include <chrono>
#include <utility>

namespace quillseal::linux {
namespace {

using desktop::RunningApplication;

/// Time for a running browser to take the URL.
constexpr std::chrono::milliseconds takesAddress{300};
/// Time for a browser to start, which then activates its window itself.
constexpr std::chrono::milliseconds startsUp{3000};

}  // namespace

GnomeApplications::GnomeApplications(Services services)
    : LinuxApplications(services.entries, services.loop), services_(std::move(services)) {}

std::optional<RunningApplication> GnomeApplications::frontmost() const {
  const std::optional<ShellFront> front = services_.extension.front();
  if (!front || front->window == 0) return std::nullopt;
  return applicationOf(
      {.instance = front->window, .traits = front->traits, .document = front->document});
}

bool GnomeApplications::isActive(const RunningApplication& application) const {
  const std::optional<ShellFront> front = services_.extension.front();
  return front && front->hasKeys && front->window == application.instance;
}

void GnomeApplications::activate(const RunningApplication& application) {
  if (application.instance != 0) services_.extension.activate(application.instance);
}

desktop::Ticket GnomeApplications::open(const std::string& url,
                                        const desktop::InstalledApplication& application,
                                        std::function<void(std::optional<Error>)> done) {
  return LinuxApplications::open(
      url, application,
      [this, location = application.location, done = std::move(done)](std::optional<Error> error) {
        if (!error) bringToFrontAfter(takesAddress, location, false);
        done(std::move(error));
      });
}

void GnomeApplications::bringToFrontAfter(std::chrono::milliseconds pause,
                                          const std::string& location, bool isLastTry) {
  bringing_ = services_.loop.after(pause, [this, location, isLastTry] {
    const std::optional<bool> isFound =
        services_.extension.activateApplication(location + ".desktop");
    if (isFound.value_or(false)) return;
    if (isFound && !isLastTry) return bringToFrontAfter(startsUp, location, true);
    services_.notify(
        "The page on which you sign opens in your browser. If it stays in the background, go "
        "there.");
  });
}

}  // namespace quillseal::linux
