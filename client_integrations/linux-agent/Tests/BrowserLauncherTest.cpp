#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <optional>

#include <gmock/gmock.h>

#include "Cases.h"
#include "Programs.h"
#include "TemporaryFolder.h"
#include "VirtualLoop.h"
#include "applications/BrowserLauncher.h"
#include "browsers/Browsers.h"
#include "modules/LoadedDesktopEntries.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
namespace fs = std::filesystem;
using testing::contentsOf;
using testing::TemporaryFolder;
using testing::VirtualLoop;

TEST(Browsers, HaveOneIdentifierUnderAllTheirNames) {
  for (const auto& [desktopFile, program, identifier] :
       testing::cases<std::string, std::string, std::string>())
    EXPECT_EQ(Browsers::identifierOf({desktopFile, program}), identifier) << desktopFile;
}

TEST(Browsers, RunAsTheirPrograms) {
  for (const auto& [identifier, program, isOne] : testing::cases<std::string, std::string, bool>())
    EXPECT_EQ(Browsers::isProgramOf(identifier, program), isOne) << identifier << ' ' << program;
}

/// A computer with the browsers of "computer", which only write down what they are to open. GIO
/// reads where applications are once, so this is there for the whole program.
class Computer {
 public:
  Computer() {
    fs::copy(QUILLSEAL_COMPUTER, root(), fs::copy_options::recursive);
    fs::create_directory(root() / "runtime");
    fs::permissions(root() / "runtime", fs::perms::owner_all);
    for (const auto& [name, folder] : {std::pair{"PATH", ""},
                                       {"XDG_DATA_HOME", "data"},
                                       {"XDG_DATA_DIRS", "none"},
                                       {"XDG_CONFIG_HOME", "config"},
                                       {"XDG_CONFIG_DIRS", "none"},
                                       {"XDG_RUNTIME_DIR", "runtime"}})
      ::setenv(name, (root() / folder).c_str(), 1);
  }

  [[nodiscard]] const fs::path& root() const { return folder_.path(); }

  void putProgram(const std::string& name) const {
    testing::overwrite(root() / name,
                       "#!/bin/sh\n[ \"$1\" = @@u ] && shift\nprintf %s \"$1\" >\"$0.new\"\n"
                       "/bin/mv \"$0.new\" \"$0.opened\"\n");
    fs::permissions(root() / name, fs::perms::owner_all);
  }

  /// Returns the arguments that the program was started with.
  [[nodiscard]] std::string opened(const std::string& program) const {
    const fs::path file = root() / (program + ".opened");
    EXPECT_TRUE(testing::eventually([&] { return fs::exists(file); }));
    std::string address = contentsOf(file);
    fs::remove(file);
    return address;
  }

 private:
  TemporaryFolder folder_;
};

const Computer& computer() {
  static const Computer only;
  return only;
}

LoadedDesktopEntries entriesAt(const fs::path& module) {
  return LoadedDesktopEntries(LoadedModule({.places = {module},
                                            .version = QUILLSEAL_VERSION,
                                            .duty = "knows the installed applications"}));
}

class BrowserLauncherTest : public ::testing::Test {
 protected:
  BrowserLauncherTest() {
    for (const char* program :
         {"firefox", "google-chrome-flatpak", "google-chrome-stable", "secluded", "snapped"})
      computer().putProgram(program);
  }

  /// GIO turns addresses of files into paths for some desktop files.
  static fs::path pathOf(const std::string& address) {
    const std::string_view scheme = "file://";
    return address.starts_with(scheme) ? address.substr(scheme.size()) : address;
  }

  static std::string urlOfLength(std::size_t length) {
    const std::string url = "https://seal.example/handoff?h=1#t=";
    return url + std::string(length - url.size(), 'A');
  }

  VirtualLoop loop_;
  LoadedDesktopEntries entries_ = entriesAt(QUILLSEAL_ENTRIES_MODULE);
  BrowserLauncher launcher_{entries_, loop_};
};

TEST_F(BrowserLauncherTest, FindsChromeAndTheDefaultBrowser) {
  EXPECT_EQ(launcher_.chrome()->location, "google-chrome");
  EXPECT_EQ(launcher_.chrome()->bundleIdentifier, "google-chrome");
  fs::remove(computer().root() / "google-chrome-stable");
  EXPECT_EQ(launcher_.chrome()->location, "com.google.Chrome");
  EXPECT_EQ(launcher_.chrome()->bundleIdentifier, "google-chrome");
  fs::remove(computer().root() / "google-chrome-flatpak");
  EXPECT_EQ(launcher_.chrome(), std::nullopt);

  const auto browser = launcher_.defaultFor("https://seal.example/");
  EXPECT_EQ(browser->location, "userapp-Firefox-AB12");
  EXPECT_EQ(browser->bundleIdentifier, "firefox");
  EXPECT_EQ(launcher_.defaultFor("gopher://seal.example/"), std::nullopt);
}

TEST_F(BrowserLauncherTest, KnowsTheApplicationOfAWindowByItsBestSign) {
  for (const auto& [windowClass, gtkApplicationId, executable, id] :
       testing::cases<std::string, std::string, std::string, std::string>()) {
    const auto entry = entries_.forWindow({windowClass, gtkApplicationId, executable});
    EXPECT_EQ(entry ? entry->id : "none", id) << windowClass << gtkApplicationId << executable;
  }
}

TEST_F(BrowserLauncherTest, HandsAddressesOverInPrivatePages) {
  const fs::path snapFolder = computer().root() / "home/snap/snapped/common";
  fs::create_directories(snapFolder);
  ::setenv("HOME", (computer().root() / "home").c_str(), 1);
  const fs::path runtime = computer().root() / "runtime/quillseal";
  std::vector<fs::path> pages;
  for (const std::size_t length : {40U, 300'000U}) {
    const std::string url = urlOfLength(length);
    for (const auto& [location, program, folder] :
         {std::tuple{"google-chrome", "google-chrome-stable", runtime},
          {"", "firefox", runtime},
          {"com.google.Chrome", "google-chrome-flatpak", runtime},
          {"snapped", "snapped", snapFolder / "quillseal"}}) {
      launcher_.open(url, location);
      const std::string address = computer().opened(program);
      EXPECT_THAT(address, Not(HasSubstr("handoff"))) << "all users can read command lines";
      const fs::path page = pathOf(address);
      EXPECT_EQ(page.parent_path(), folder);
      EXPECT_THAT(contentsOf(page), HasSubstr("location.replace(\"" + url + "\")"));
      EXPECT_EQ(fs::status(page).permissions(), fs::perms::owner_read | fs::perms::owner_write);
      EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
      EXPECT_THAT(pages, Not(Contains(page)));
      pages.push_back(page);
    }
  }
  loop_.run();
  EXPECT_EQ(loop_.elapsed(), RedirectPage::life);
  for (const fs::path& page : pages)
    EXPECT_FALSE(fs::exists(page)) << page;

  std::optional<BrowserLauncher> shortLived(std::in_place, entries_, loop_);
  shortLived->open(urlOfLength(40), "");
  const fs::path last = pathOf(computer().opened("firefox"));
  EXPECT_TRUE(fs::exists(last));
  shortLived.reset();
  EXPECT_FALSE(fs::exists(last));
}

TEST_F(BrowserLauncherTest, DeletesThePagesOfAnAgentThatWasKilled) {
  const fs::path folder = computer().root() / "runtime/quillseal";
  const fs::path old = folder / "page-old.html";
  const fs::path fresh = folder / "page-fresh.html";
  const std::array others{folder / "tabs", folder / "page-notes", folder / "notes.html"};
  launcher_.open(urlOfLength(40), "");  // creates the folder
  testing::overwrite(fresh, "x");
  for (const fs::path& file : {old, others[0], others[1], others[2]}) {
    testing::overwrite(file, "x");
    fs::last_write_time(file, fs::file_time_type::clock::now() - 3 * RedirectPage::life);
  }
  launcher_.open(urlOfLength(40), "");
  EXPECT_FALSE(fs::exists(old));
  EXPECT_TRUE(fs::exists(fresh)) << "another agent may be starting a browser";
  EXPECT_TRUE(std::ranges::all_of(others, [](const auto& other) { return fs::exists(other); }));
}

TEST_F(BrowserLauncherTest, TellsWhyNothingOpens) {
  const auto expectFailure = [](BrowserLauncher& launcher, const char* location, const char* part,
                                const char* url = "https://seal.example/") {
    EXPECT_THAT([&] { launcher.open(url, location); },
                ::testing::ThrowsMessage<Error>(HasSubstr(part)));
  };
  expectFailure(launcher_, "secluded", "“secluded” runs in a sandbox");
  expectFailure(launcher_, "climbing", "the folder of the Snap is not known");
  ::setenv("HOME", (computer().root() / "elsewhere").c_str(), 1);
  expectFailure(launcher_, "snapped", "elsewhere/snap/snapped/common”: No such file");
  expectFailure(launcher_, "gone", "“gone” is no longer installed");
  expectFailure(launcher_, "", "opens web pages", "gopher://seal.example/");
  fs::permissions(computer().root() / "runtime", fs::perms::all);
  expectFailure(launcher_, "", "of this user alone");
  fs::permissions(computer().root() / "runtime", fs::perms::owner_all);

  LoadedDesktopEntries missing = entriesAt(computer().root() / "missing.so");
  BrowserLauncher helpless(missing, loop_);
  expectFailure(helpless, "", "knows the installed applications cannot be used");
}

}  // namespace
}  // namespace quillseal::linux
