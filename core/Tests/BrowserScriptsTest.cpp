#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/signing/BrowserScripts.h"

namespace quillseal::BrowserScripts {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

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

TEST(CloseAndRestore, PutsMarkerAndTabIntoTheProgramOfTheFamily) {
  const std::string marker = "/handoff?h=$#%@";
  const auto program = [&](const char* browser, std::optional<std::string> tab) {
    return closeAndRestore({.bundleIdentifier = browser, .urlContains = marker, .tabId = tab});
  };
  const std::string close = "URL of t contains \"" + marker + "\" then";
  const std::string guard = "if \"3\" is not \"\" then";
  const std::string safari = program("com.apple.Safari", "3").value();
  EXPECT_THAT(safari, AllOf(StartsWith("tell application \"Safari\"\n"), HasSubstr(close),
                            HasSubstr(guard), HasSubstr("to tab (3 as integer) of front window"),
                            HasSubstr("activate\n    return \"true\"\nend tell")));
  const std::string chrome = program("com.google.Chrome.canary", "3").value();
  EXPECT_THAT(chrome,
              AllOf(StartsWith("tell application \"Google Chrome\"\n"), HasSubstr(close),
                    HasSubstr(guard), HasSubstr("(id of tab j of w) as string is \"3\" then"),
                    HasSubstr("activate\n    return closed as string\nend tell")));
  for (const std::string& text : {safari, chrome})
    EXPECT_EQ(text.find_first_of("%@", text.find(marker) + marker.size()), std::string::npos);
  // Without a tab nothing is restored.
  for (const std::optional<std::string>& tab : {std::optional<std::string>(), {""}})
    for (const char* browser : {"com.apple.Safari", "com.google.Chrome"})
      EXPECT_THAT(program(browser, tab).value(), HasSubstr("if \"\" is not \"\" then"));
  EXPECT_THAT(program("com.apple.Safari", std::nullopt).value(), HasSubstr("tab (1 as integer)"));
}

TEST(CloseAndRestore, HasNoProgramWithoutBrowserOrMarker) {
  EXPECT_EQ(closeAndRestore({.bundleIdentifier = "a.b", .urlContains = "x", .tabId = "1"}),
            std::nullopt);
  EXPECT_EQ(
      closeAndRestore({.bundleIdentifier = "com.apple.Safari", .urlContains = "", .tabId = "1"}),
      std::nullopt);
}

}  // namespace
}  // namespace quillseal::BrowserScripts
