#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Applications.h"

@class QSFrontApplicationObserver;

namespace quillseal::mac {

/// The applications that NSWorkspace knows. `RunningApplication::instance` is the process id. When
/// the last of this program's own windows goes, the application that was active before it becomes
/// active again: a program without windows that stays active would get the keys itself.
class MacApplications final : public desktop::Applications {
 public:
  /// Main thread.
  explicit MacApplications(const MacMainLoop& loop);
  ~MacApplications() override;
  MacApplications(const MacApplications&) = delete;
  MacApplications& operator=(const MacApplications&) = delete;

  /// What `RunningApplication::categories` says of an application with this identifier.
  [[nodiscard]] static std::string categoriesOf(const std::optional<std::string>& bundleIdentifier);

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> preferredBrowser() const override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& url) const override;
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;
  void open(const std::string& url) override;

 private:
  MacMainLoop::Poster poster_;
  QSFrontApplicationObserver* observer_;
};

}  // namespace quillseal::mac
