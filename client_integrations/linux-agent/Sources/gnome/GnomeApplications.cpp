#include "gnome/GnomeApplications.h"

namespace quillseal::linux {

using desktop::RunningApplication;

std::optional<RunningApplication> GnomeApplications::frontmost() const {
  const std::optional<ShellFront> front = extension_.front();
  if (!front || front->window == 0) return std::nullopt;
  return applicationOf(
      {.instance = front->window, .traits = front->traits, .document = front->document});
}

bool GnomeApplications::isActive(const RunningApplication& application) const {
  const std::optional<ShellFront> front = extension_.front();
  return front && front->hasKeys && front->window == application.instance;
}

void GnomeApplications::activate(const RunningApplication& application) {
  if (application.instance != 0) extension_.activate(application.instance);
}

}  // namespace quillseal::linux
