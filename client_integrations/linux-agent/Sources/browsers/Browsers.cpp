#include "browsers/Browsers.h"

#include <algorithm>
#include <array>

namespace quillseal::linux::Browsers {
namespace {

struct Row {
  std::string_view desktopFile;
  std::string_view identifier;
  std::string_view program;  ///< the executable, not a start script
};

// The names used by vendors, distributions, Flathub and the Snap Store. All channels of Chrome
// share one program name.
constexpr std::array rows{
    Row{"brave-browser", "brave-browser", "brave"},
    Row{"chromium", "chromium", "chromium"},
    Row{"chromium-browser", "chromium", "chromium-browser"},
    Row{"chromium_chromium", "chromium", "chromium"},
    Row{"com.brave.Browser", "brave-browser", "brave"},
    Row{"com.google.Chrome", "google-chrome", "chrome"},
    Row{"com.microsoft.Edge", "microsoft-edge", "msedge"},
    Row{"com.opera.Opera", "opera", "opera"},
    Row{"com.vivaldi.Vivaldi", "vivaldi", "vivaldi-bin"},
    Row{"firefox", "firefox", "firefox"},
    Row{"firefox", "firefox", "firefox-bin"},
    Row{"firefox-esr", "firefox-esr", "firefox-esr"},
    Row{"firefox_firefox", "firefox", "firefox"},
    Row{"google-chrome", "google-chrome", "chrome"},
    Row{"google-chrome-beta", "google-chrome-beta", "chrome"},
    Row{"google-chrome-unstable", "google-chrome-unstable", "chrome"},
    Row{"microsoft-edge", "microsoft-edge", "msedge"},
    Row{"opera", "opera", "opera"},
    Row{"org.chromium.Chromium", "chromium", "chromium"},
    Row{"org.mozilla.firefox", "firefox", "firefox"},
    Row{"vivaldi-stable", "vivaldi", "vivaldi-bin"},
};

}  // namespace

std::string identifierOf(const Traits& traits) {
  const auto* found = std::ranges::find(rows, traits.desktopFile, &Row::desktopFile);
  if (found == rows.end()) {
    std::string_view executable = traits.executable;
    constexpr std::string_view usualChannel = "-stable";
    if (executable.ends_with(usualChannel) && executable != "vivaldi-stable")
      executable.remove_suffix(usualChannel.size());
    found = std::ranges::find_if(rows, [executable](const Row& row) {
      return row.desktopFile == executable || row.program == executable;
    });
  }
  return std::string(found == rows.end() ? traits.desktopFile : found->identifier);
}

bool isProgramOf(std::string_view identifier, std::string_view program) {
  return std::ranges::any_of(
      rows, [&](const Row& row) { return row.identifier == identifier && row.program == program; });
}

}  // namespace quillseal::linux::Browsers
