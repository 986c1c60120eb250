#pragma once

#include <chrono>
#include <memory>

#include "desktop/BrowserTabs.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// The tabs of browsers in which the Quillseal extension is installed. Each profile in use connects
/// through its own relay. Browsers are named by their identifier (`Browsers`). A browser that is
/// not connected or does not answer in time has no tabs.
class LinuxBrowserTabs final : public desktop::BrowserTabs {
 public:
  static constexpr std::chrono::milliseconds longestWait{1500};

  /// How long a connection may stay open without a greeting.
  static constexpr std::chrono::seconds greetingTimeout{5};

  struct Services {
    desktop::MainLoop& loop;
    Descriptors& descriptors;
    desktop::Log& log;
  };

  /// The services outlive this object. Failure to listen is logged; no browser connects then.
  explicit LinuxBrowserTabs(const Services& services);
  ~LinuxBrowserTabs() override;

  [[nodiscard]] desktop::Ticket currentTab(
      const std::string& browser, std::function<void(std::optional<std::string>)> done) override;
  [[nodiscard]] desktop::Ticket closeAndRestore(const desktop::TabReturn& request,
                                                std::function<void(bool)> done) override;

 private:
  class Hub;
  std::shared_ptr<Hub> hub_;
};

}  // namespace quillseal::linux
