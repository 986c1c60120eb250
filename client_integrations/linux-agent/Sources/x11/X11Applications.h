#pragma once

#include <optional>

#include "applications/LinuxApplications.h"
#include "x11/WindowManager.h"

namespace quillseal::linux {

/// Finds applications by the windows of the X session and the installed desktop files.
class X11Applications : public LinuxApplications {
 public:
  /// All outlive this object.
  X11Applications(const WindowManager& windows, DesktopEntries& entries, desktop::MainLoop& loop)
      : LinuxApplications(entries, loop), windows_(windows) {}

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;

 private:
  const WindowManager& windows_;
};

}  // namespace quillseal::linux
