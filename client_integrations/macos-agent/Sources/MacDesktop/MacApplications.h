#pragma once

#include "Desktop/Applications.h"
#include "Desktop/MainLoop.h"

@class QSFrontApplicationObserver;

namespace quillseal::mac {

/// The applications that NSWorkspace knows. `RunningApplication::instance` is the process id.
class MacApplications final : public desktop::Applications {
 public:
  /// `loop` outlives this object and its requests. Main thread.
  explicit MacApplications(desktop::MainLoop& loop);
  ~MacApplications() override;
  MacApplications(const MacApplications&) = delete;
  MacApplications& operator=(const MacApplications&) = delete;

  [[nodiscard]] std::optional<desktop::RunningApplication> frontmost() const override;
  [[nodiscard]] bool isActive(const desktop::RunningApplication& application) const override;
  void activate(const desktop::RunningApplication& application) override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> applicationAt(
      const std::string& path) const override;
  [[nodiscard]] std::optional<desktop::InstalledApplication> defaultApplicationFor(
      const std::string& url) const override;
  [[nodiscard]] desktop::Ticket open(const std::string& url,
                                     const desktop::InstalledApplication& application,
                                     std::function<void(std::optional<Error>)> done) override;
  void open(const std::string& url) override;

 private:
  desktop::MainLoop& loop_;
  QSFrontApplicationObserver* observer_;
};

}  // namespace quillseal::mac
