#include "Quillseal/BrowserTabReturn.h"

#include <utility>
#include <variant>

#include "core/signing/BrowserScripts.h"
#include "core/tasks/Async.h"
#include "core/text/Error.h"

namespace quillseal::BrowserTabReturn {

Task<std::optional<std::string>> currentTabID(desktop::BrowserTabs& tabs,
                                              std::optional<std::string> bundleID) {
  if (!bundleID) co_return std::nullopt;
  std::optional<std::string> tab = co_await completionOf<std::optional<std::string>>(
      [&tabs, &bundleID](std::function<void(std::optional<std::string>)> done) {
        return tabs.currentTab(bundleID.value(), std::move(done));
      });
  co_return tab;
}

Task<bool> closeSigningTabAndRestore(desktop::BrowserTabs& tabs, SigningTab tab) {
  if (!tab.bundleID || tab.urlContains.empty()) co_return false;
  const desktop::TabReturn request{.browser = *std::move(tab.bundleID),
                                   .urlContains = std::move(tab.urlContains),
                                   .tab = std::move(tab.tabID)};
  const bool isDone = co_await completionOf<bool>([&](std::function<void(bool)> done) {
    return tabs.closeAndRestore(request, std::move(done));
  });
  co_return isDone;
}

desktop::Ticket ScriptedBrowserTabs::currentTab(
    const std::string& browser, std::function<void(std::optional<std::string>)> done) {
  return run(BrowserScripts::currentTab(browser), std::move(done));
}

desktop::Ticket ScriptedBrowserTabs::closeAndRestore(const desktop::TabReturn& request,
                                                     std::function<void(bool)> done) {
  const auto script = BrowserScripts::closeAndRestore({.bundleIdentifier = request.browser,
                                                       .urlContains = request.urlContains,
                                                       .tabId = request.tab});
  return run(script, [done = std::move(done)](const std::optional<std::string>& result) {
    done(result == "true");
  });
}

desktop::Ticket ScriptedBrowserTabs::run(const std::optional<std::string>& script,
                                         std::function<void(std::optional<std::string>)> done) {
  if (!script) {
    done(std::nullopt);
    return {};
  }
  return scripts_.run(
      *script, [&log = log_, done = std::move(done)](Outcome<std::optional<std::string>> outcome) {
        if (const Error* error = std::get_if<Error>(&outcome)) {
          log.write("[tabreturn] AppleScript failed: " + std::string(error->what()));
          done(std::nullopt);
        } else {
          done(std::move(std::get<std::optional<std::string>>(outcome)));
        }
      });
}

}  // namespace quillseal::BrowserTabReturn
