#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "applications/DesktopEntries.h"

namespace quillseal::linux {

/// Reads desktop files with GIO, which notices when they change. A lookup goes through every
/// installed application and one signature asks several times about the same window, so the last
/// answer is cached for some minutes.
class GioDesktopEntries final : public DesktopEntries {
 public:
  [[nodiscard]] std::optional<DesktopEntry> forWindow(const WindowTraits& traits) override;
  [[nodiscard]] std::optional<DesktopEntry> withId(std::string_view id) override;
  [[nodiscard]] std::optional<DesktopEntry> defaultFor(const std::string& url) override;
  [[nodiscard]] bool open(const std::string& url, std::string_view id) override;

 private:
  struct Answer {
    WindowTraits traits;
    std::optional<DesktopEntry> entry;
    std::chrono::steady_clock::time_point when;
  };

  std::optional<Answer> lastAnswer_;
};

}  // namespace quillseal::linux
