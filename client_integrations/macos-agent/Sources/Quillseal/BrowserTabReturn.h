#pragma once

#include <optional>
#include <string>

#include "core/tasks/Task.h"
#include "desktop/BrowserTabs.h"
#include "desktop/Log.h"
#include "desktop/ScriptRunner.h"

/// Brings the user back from a signing page to the browser tab they came from.
namespace quillseal::BrowserTabReturn {

/// The current tab of the front window of a browser. Nothing without a browser, or when the browser
/// cannot tell.
[[nodiscard]] Task<std::optional<std::string>> currentTabID(desktop::BrowserTabs& tabs,
                                                            std::optional<std::string> bundleID);

struct SigningTab {
  std::optional<std::string> bundleID;
  std::string urlContains;           ///< marks the tabs to close
  std::optional<std::string> tabID;  ///< the one to show instead, from `currentTabID`
};

/// Closes the signing page's tabs and shows the earlier one; whether the browser did so.
[[nodiscard]] Task<bool> closeSigningTabAndRestore(desktop::BrowserTabs& tabs, SigningTab tab);

/// The tabs of browsers that take AppleScript: Safari and the Chromium family. Failures are logged
/// and count as no tab and as not done.
class ScriptedBrowserTabs final : public desktop::BrowserTabs {
 public:
  /// Both outlive this object.
  ScriptedBrowserTabs(desktop::ScriptRunner& scripts, desktop::Log& log)
      : scripts_(scripts), log_(log) {}

  [[nodiscard]] desktop::Ticket currentTab(
      const std::string& browser, std::function<void(std::optional<std::string>)> done) override;
  [[nodiscard]] desktop::Ticket closeAndRestore(const desktop::TabReturn& request,
                                                std::function<void(bool)> done) override;

 private:
  desktop::Ticket run(const std::optional<std::string>& script,
                      std::function<void(std::optional<std::string>)> done);

  desktop::ScriptRunner& scripts_;
  desktop::Log& log_;
};

}  // namespace quillseal::BrowserTabReturn
