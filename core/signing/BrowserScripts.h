#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The AppleScript programs that ask a browser for its tabs. Pure functions.
namespace quillseal::BrowserScripts {

/// A one-line program whose result identifies the current tab of the front window: by its index in
/// Safari, by its own id in the Chromium family. Nothing for any other browser.
[[nodiscard]] std::optional<std::string> currentTab(std::string_view bundleIdentifier);

struct CloseAndRestore {
  std::string_view bundleIdentifier;
  std::string_view urlContains;           ///< without double quotes
  std::optional<std::string_view> tabId;  ///< from `currentTab`, without double quotes
};

/// A program that closes the tabs whose URL contains the text and brings back the given tab; its
/// result is "true" when that was done. Nothing for any other browser, and when the text is empty,
/// since every tab would match.
[[nodiscard]] std::optional<std::string> closeAndRestore(const CloseAndRestore& request);

}  // namespace quillseal::BrowserScripts
