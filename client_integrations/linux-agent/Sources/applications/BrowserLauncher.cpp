#include "applications/BrowserLauncher.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "browsers/Browsers.h"
#include "session/Environment.h"
#include "session/PrivateFolder.h"

namespace quillseal::linux {
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

/// A folder that the Snap's program may read; it may not read the runtime folder. The first start
/// of the Snap creates it.
std::filesystem::path folderOfSnap(const std::string& snap) {
  const std::string home = environmentVariable("HOME");
  if (home.empty() || snap.find('/') != std::string::npos)
    throw std::runtime_error("the folder of the Snap is not known.");
  return privateFolderIn(std::filesystem::path(home) / "snap" / snap / "common");
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
             : "“" + location + "” is no longer installed.");
  }
  if (!entries_.open(pageFor(url, *entry), entry->id))
    fail("“" + entry->name + "” could not be started.");
}

std::string BrowserLauncher::pageFor(const std::string& url, const DesktopEntry& browser) {
  if (!browser.seesOurFiles) {
    fail("“" + browser.name +
         "” runs in a sandbox and cannot read the signing page. Make a browser without a sandbox "
         "the default one.");
  }
  try {
    RedirectPage page(url, browser.snap.empty() ? runtimeFolder() : folderOfSnap(browser.snap));
    std::string address = page.address();
    pages_.push_back({.page = std::move(page),
                      .end = loop_.after(RedirectPage::life, [this] { pages_.pop_front(); })});
    return address;
  } catch (const std::runtime_error& error) {
    fail("The signing page could not be opened in “" + browser.name + "”: " + error.what());
  }
}

}  // namespace quillseal::linux
