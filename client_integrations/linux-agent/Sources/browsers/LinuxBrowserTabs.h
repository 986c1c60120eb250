#pragma once

#include <chrono>
#include <memory>

#include "desktop/BrowserTabs.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// The tabs of browsers in which the Quillseal extension is installed: each connects through its
/// relay, once for every profile in use. A browser is named as `Browsers` identifies it. One that
/// is not connected, or does not answer in time, has no tabs.
class LinuxBrowserTabs final : public desktop::BrowserTabs {
 public:
  static constexpr std::chrono::milliseconds longestWait{1500};

  /// How long a connection may stay without having said which browser it is for.
  static constexpr std::chrono::seconds greetingPatience{5};

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
