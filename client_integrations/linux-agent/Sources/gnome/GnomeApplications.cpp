#include "gnome/GnomeApplications.h"

#include <chrono>
#include <utility>

namespace quillseal::linux {
namespace {

using desktop::RunningApplication;

/// Time for a running browser to take the URL. One that has to start activates its window itself.
constexpr std::chrono::milliseconds takesAddress{300};

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
  bringing_ = services_.loop.after(
      takesAddress, [this, location = application.location] { bringToFront(location); });
  return LinuxApplications::open(url, application, std::move(done));
}

void GnomeApplications::bringToFront(const std::string& location) const {
  if (services_.extension.activateApplication(location + ".desktop")) return;
  services_.tell(
      "The page on which you sign opens in your browser. If it stays in the background, go there.");
}

}  // namespace quillseal::linux
