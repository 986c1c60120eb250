#pragma once

#include <memory>

#include "desktop/Desktop.h"
#include "session/CommandLine.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {

/// Everything that the agent asks of a Linux desktop, put together. Tells the person at once what
/// does not work in this session. REQUIRES: the application object of Qt exists. Main thread.
class LinuxDesktop {
 public:
  /// `log` outlives this object. Other applications are reached through `wayland`, or through the X
  /// server that Qt uses when it is null.
  LinuxDesktop(const CommandLine& commandLine, desktop::Log& log,
               std::unique_ptr<WaylandConnection> wayland);

  /// Waits for workers, 5 seconds at most; ends the process when one still runs then.
  ~LinuxDesktop();
  LinuxDesktop(const LinuxDesktop&) = delete;
  LinuxDesktop& operator=(const LinuxDesktop&) = delete;

  [[nodiscard]] desktop::Desktop services();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quillseal::linux
