#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "applications/LinuxApplications.h"
#include "desktop/MainLoop.h"
#include "gnome/ShellExtension.h"

namespace quillseal::linux {

/// Finds applications by GNOME Shell's extension and the installed desktop files. Where the
/// extension does not answer, no application is known to be in front.
class GnomeApplications : public LinuxApplications {
 public:
  /// All outlive this object.
  struct Services {
    const ShellExtension& extension;
    DesktopEntries& entries;
    desktop::MainLoop& loop;
    /// Tells the user something that needs no answer.
    std::function<void(const std::string&)> notify;
  };

  explicit GnomeApplications(Services services);

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;

  /// The Shell raises no running browser for another program, so the extension does it. Where it
  /// cannot, the user is told to go there.
  using LinuxApplications::open;
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;

 private:
  void bringToFrontAfter(std::chrono::milliseconds pause, const std::string& location,
                         bool isLastTry);

  Services services_;
  desktop::Ticket bringing_;
};

}  // namespace quillseal::linux
