#include <string>

#include <gtest/gtest.h>

#include "core/signing/BrowserScripts.h"

namespace quillseal::BrowserScripts {
namespace {

TEST(CurrentTab, AsksEachFamilyInItsWay) {
  const auto chromium = [](const std::string& application) {
    return "tell application \"" + application + "\" to return id of active tab of front window";
  };
  const std::pair<std::string, std::optional<std::string>> cases[] = {
      {"com.apple.Safari",
       "tell application \"Safari\" to return (index of current tab of front window) as string"},
      {"com.google.Chrome", chromium("Google Chrome")},
      {"com.google.Chrome.beta", chromium("Google Chrome")},
      {"com.google.Chrome.canary", chromium("Google Chrome")},
      {"com.microsoft.edgemac", chromium("Microsoft Edge")},
      {"com.brave.Browser", chromium("Brave Browser")},
      {"company.thebrowser.Browser", chromium("Arc")},
      {"COM.APPLE.SAFARI", std::nullopt},
      {"org.mozilla.firefox", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [bundle, script] : cases)
    EXPECT_EQ(currentTab(bundle), script) << bundle;
}

TEST(CloseAndRestore, FillsTheSafariProgram) {
  const auto program = [](const std::string& tab, const std::string& index) {
    return R"(tell application "Safari"
    repeat with w in windows
        repeat with t in tabs of w
            if URL of t contains "/handoff?h=$#%@" then close t
        end repeat
    end repeat
    if ")" +
           tab +
           R"(" is not "" then
        try
            set current tab of front window to tab ()" +
           index + R"( as integer) of front window
        end try
    end if
    activate
    return "true"
end tell)";
  };
  CloseAndRestore request{
      .bundleIdentifier = "com.apple.Safari", .urlContains = "/handoff?h=$#%@", .tabId = "3"};
  EXPECT_EQ(closeAndRestore(request), program("3", "3"));
  request.tabId = std::nullopt;
  EXPECT_EQ(closeAndRestore(request), program("", "1"));
  request.tabId = "";
  EXPECT_EQ(closeAndRestore(request), program("", ""));
}

TEST(CloseAndRestore, FillsTheChromiumProgram) {
  EXPECT_EQ(closeAndRestore({.bundleIdentifier = "com.google.Chrome.canary",
                             .urlContains = "/handoff?h=1",
                             .tabId = "42"}),
            R"(tell application "Google Chrome"
    set closed to false
    repeat with w in windows
        set i to 1
        repeat with t in tabs of w
            if URL of t contains "/handoff?h=1" then
                close t
                set closed to true
                exit repeat
            end if
            set i to i + 1
        end repeat
    end repeat
    if "42" is not "" then
        repeat with w in windows
            set n to count of tabs of w
            repeat with j from 1 to n
                if (id of tab j of w) as string is "42" then
                    set active tab index of w to j
                    set index of w to 1
                end if
            end repeat
        end repeat
    end if
    activate
    return closed as string
end tell)");
}

TEST(CloseAndRestore, HasNoProgramWithoutBrowserOrMarker) {
  EXPECT_EQ(closeAndRestore(
                {.bundleIdentifier = "org.mozilla.firefox", .urlContains = "x", .tabId = "1"}),
            std::nullopt);
  EXPECT_EQ(
      closeAndRestore({.bundleIdentifier = "com.apple.Safari", .urlContains = "", .tabId = "1"}),
      std::nullopt);
}

}  // namespace
}  // namespace quillseal::BrowserScripts
