#pragma once

#include <memory>

#include "desktop/Desktop.h"
#include "session/CommandLine.h"
#include "systems/DesktopAccess.h"

namespace quillseal::linux {

/// All services of a Linux desktop for the agent. The constructor tells the user what does not work
/// in this session. REQUIRES: the QApplication exists. Main thread.
class LinuxDesktop {
 public:
  /// `log` outlives this object. Other applications are reached through the compositor or the
  /// portal where `access` allows it, else through the X server that Qt uses.
  LinuxDesktop(const CommandLine& commandLine, desktop::Log& log, DesktopAccess access);

  /// Waits for workers, 5 seconds at most; then ends the process if one still runs.
  ~LinuxDesktop();
  LinuxDesktop(const LinuxDesktop&) = delete;
  LinuxDesktop& operator=(const LinuxDesktop&) = delete;

  [[nodiscard]] desktop::Desktop services();

  /// See `WindowingSystem`.
  [[nodiscard]] bool isNewPress();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quillseal::linux
