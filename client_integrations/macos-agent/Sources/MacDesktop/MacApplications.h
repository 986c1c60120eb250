#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/Applications.h"

@class QSFrontApplicationObserver;

namespace quillseal::mac {

/// Finds applications through NSWorkspace. `RunningApplication::instance` is the process id. When
/// the last window of this program closes, the previously active application is activated again:
/// this program would otherwise stay active without a window and receive the keys.
class MacApplications final : public desktop::Applications {
 public:
  /// Main thread.
  explicit MacApplications(const MacMainLoop& loop);
  ~MacApplications() override;
  MacApplications(const MacApplications&) = delete;
  MacApplications& operator=(const MacApplications&) = delete;

  /// Returns the `RunningApplication::categories` of an application with this identifier.
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
