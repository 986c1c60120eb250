#pragma once

#include <optional>

#include "applications/LinuxApplications.h"
#include "gnome/ShellExtension.h"

namespace quillseal::linux {

/// Finds applications by GNOME Shell's extension and the installed desktop files. Where the
/// extension does not answer, no application is known to be in front.
class GnomeApplications : public LinuxApplications {
 public:
  /// All outlive this object.
  GnomeApplications(const ShellExtension& extension, DesktopEntries& entries,
                    desktop::MainLoop& loop)
      : LinuxApplications(entries, loop), extension_(extension) {}

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;

 private:
  const ShellExtension& extension_;
};

}  // namespace quillseal::linux
