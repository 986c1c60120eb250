#include "x11/X11Applications.h"

namespace quillseal::linux {

using desktop::RunningApplication;

std::optional<RunningApplication> X11Applications::frontmost() const {
  const xcb_window_t window = windows_.topForeignWindow();
  if (window == 0) return std::nullopt;
  return applicationOf({.instance = window,
                        .traits = windows_.traitsOf(window),
                        .document = windows_.documentOf(window)});
}

bool X11Applications::isActive(const RunningApplication& application) const {
  return application.instance != 0 && windows_.activeWindow() == application.instance;
}

void X11Applications::activate(const RunningApplication& application) {
  const auto window = static_cast<xcb_window_t>(application.instance);
  if (windows_.exists(window)) windows_.activate(window);
}

}  // namespace quillseal::linux
