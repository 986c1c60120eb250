#include "core/signing/BrowserScripts.h"

#include <algorithm>
#include <array>

namespace quillseal::BrowserScripts {
namespace {

enum class Family { safari, chromium };

struct Browser {
  std::string_view bundleIdentifier;
  Family family;
  std::string_view application;  ///< as scripts call it
};

// All channels of Chrome answer to the stable one's name.
constexpr std::array browsers{
    Browser{"com.apple.Safari", Family::safari, "Safari"},
    Browser{"com.google.Chrome", Family::chromium, "Google Chrome"},
    Browser{"com.google.Chrome.beta", Family::chromium, "Google Chrome"},
    Browser{"com.google.Chrome.canary", Family::chromium, "Google Chrome"},
    Browser{"com.microsoft.edgemac", Family::chromium, "Microsoft Edge"},
    Browser{"com.brave.Browser", Family::chromium, "Brave Browser"},
    Browser{"company.thebrowser.Browser", Family::chromium, "Arc"},
};

const Browser* browserFor(std::string_view bundleIdentifier) {
  const auto* const found = std::find_if(
      browsers.begin(), browsers.end(),
      [&](const Browser& browser) { return browser.bundleIdentifier == bundleIdentifier; });
  return found == browsers.end() ? nullptr : found;
}

/// Replaces the placeholders of a template. What is inserted is not searched again.
std::string filled(std::string_view script, std::string_view application,
                   const CloseAndRestore& request) {
  const std::string_view tab = request.tabId.value_or("");
  std::string result;
  for (const char c : script) {
    switch (c) {
      case '@':
        result += application;
        break;
      case '#':
        result += request.urlContains;
        break;
      case '$':
        result += tab;
        break;
      case '%':
        result += request.tabId ? tab : "1";
        break;
      default:
        result += c;
    }
  }
  return result;
}

// In the templates, @ is the application, # the text in the URL, $ the tab or nothing, % the tab or
// the first one.

constexpr std::string_view safariCurrent =
    R"(tell application "Safari" to return (index of current tab of front window) as string)";

constexpr std::string_view chromiumCurrent =
    R"(tell application "@" to return id of active tab of front window)";

constexpr std::string_view safariClose = R"(tell application "Safari"
    repeat with w in windows
        repeat with t in tabs of w
            if URL of t contains "#" then close t
        end repeat
    end repeat
    if "$" is not "" then
        try
            set current tab of front window to tab (% as integer) of front window
        end try
    end if
    activate
    return "true"
end tell)";

constexpr std::string_view chromiumClose = R"(tell application "@"
    set closed to false
    repeat with w in windows
        set i to 1
        repeat with t in tabs of w
            if URL of t contains "#" then
                close t
                set closed to true
                exit repeat
            end if
            set i to i + 1
        end repeat
    end repeat
    if "$" is not "" then
        repeat with w in windows
            set n to count of tabs of w
            repeat with j from 1 to n
                if (id of tab j of w) as string is "$" then
                    set active tab index of w to j
                    set index of w to 1
                end if
            end repeat
        end repeat
    end if
    activate
    return closed as string
end tell)";

}  // namespace

std::optional<std::string> currentTab(std::string_view bundleIdentifier) {
  const Browser* browser = browserFor(bundleIdentifier);
  if (browser == nullptr) return std::nullopt;
  const bool isSafari = browser->family == Family::safari;
  return filled(isSafari ? safariCurrent : chromiumCurrent, browser->application, {});
}

std::optional<std::string> closeAndRestore(const CloseAndRestore& request) {
  const Browser* browser = browserFor(request.bundleIdentifier);
  if (browser == nullptr || request.urlContains.empty()) return std::nullopt;
  const bool isSafari = browser->family == Family::safari;
  return filled(isSafari ? safariClose : chromiumClose, browser->application, request);
}

}  // namespace quillseal::BrowserScripts
