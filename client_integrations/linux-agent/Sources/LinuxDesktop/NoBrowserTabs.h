#pragma once

#include "Desktop/BrowserTabs.h"

namespace quillseal {

/// Browser tabs where no browser can be asked: nothing is found, nothing is closed, and the agent
/// tells the person what to do instead.
class NoBrowserTabs : public desktop::BrowserTabs {
 public:
  [[nodiscard]] desktop::Ticket currentTab(
      const std::string& /*browser*/,
      std::function<void(std::optional<std::string>)> done) override {
    done(std::nullopt);
    return {};
  }
  [[nodiscard]] desktop::Ticket closeAndRestore(const desktop::TabReturn& /*request*/,
                                                std::function<void(bool)> done) override {
    done(false);
    return {};
  }
};

}  // namespace quillseal
