#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "applications/DesktopEntries.h"

namespace quillseal::linux {

/// Desktop files as GIO reads them, which keeps itself up to date. One signature asks several times
/// about a window, and every installed application is looked at, so the last answer about one holds
/// for some minutes.
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
