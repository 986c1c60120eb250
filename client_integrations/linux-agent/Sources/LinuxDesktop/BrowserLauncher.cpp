#include "LinuxDesktop/BrowserLauncher.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "LinuxDesktop/Browsers.h"

namespace quillseal {
namespace {

using desktop::InstalledApplication;

[[noreturn]] void fail(std::string description) {
  throw Error({.domain = "BrowserLauncher", .code = 1, .description = std::move(description)});
}

std::optional<InstalledApplication> installed(const std::optional<DesktopEntry>& entry) {
  if (!entry) return std::nullopt;
  return InstalledApplication{.location = entry->id,
                              .bundleIdentifier = Browsers::identifierOf(
                                  {.desktopFile = entry->id, .executable = entry->executable})};
}

}  // namespace

std::optional<InstalledApplication> BrowserLauncher::chrome() const {
  for (const std::string_view file : {"google-chrome", "com.google.Chrome"}) {
    if (auto application = installed(entries_.withId(file))) return application;
  }
  return std::nullopt;
}

std::optional<InstalledApplication> BrowserLauncher::defaultFor(const std::string& url) const {
  return installed(entries_.defaultFor(url));
}

void BrowserLauncher::open(const std::string& url, const std::string& location) {
  const std::optional<DesktopEntry> entry =
      location.empty() ? entries_.defaultFor(url) : entries_.withId(location);
  if (!entry) {
    fail(location.empty()
             ? "No application on this computer opens web pages. Install a browser and try again."
             : "“" + location + "” is not installed any more.");
  }
  const bool isLong = url.size() > longestArgument;
  if (isLong && entry->isConfined) {
    fail("The text is too long for “" + entry->name +
         "”, which runs in a sandbox. Sign a part of it, or make a browser outside of a sandbox "
         "the default one.");
  }
  if (!entries_.open(isLong ? pageFor(url) : url, entry->id))
    fail("“" + entry->name + "” could not be started.");
}

std::string BrowserLauncher::pageFor(const std::string& url) {
  try {
    LeadingPage page(url);
    std::string address = page.address();
    pages_.push_back(
        {.page = std::move(page), .end = loop_.after(pageLife, [this] { pages_.pop_front(); })});
    return address;
  } catch (const std::runtime_error& error) {
    fail("The text is too long to be handed to a browser in any way but a file. " +
         std::string(error.what()));
  }
}

}  // namespace quillseal
