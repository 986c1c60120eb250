#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/AppDelegate.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/HotkeyManager.h"
#include "Quillseal/MenuBarManager.h"
#include "Quillseal/SigningCoordinator.h"

namespace quillseal {
namespace {

using desktop::MenuItem;
using desktop::Modifiers;
using ::testing::Contains;
using testing::Copy;
using ::testing::ElementsAre;
using testing::FakeDesktop;
using ::testing::Not;
using Lines = std::vector<std::string>;

std::string lineOf(const MenuItem& item) {
  if (item.kind == MenuItem::Kind::separator) return "---";
  std::string line = item.title;
  if (item.kind == MenuItem::Kind::label) line += " (label)";
  if (item.keyEquivalent.empty()) return line;
  line += " [";
  const std::pair<Modifiers, const char*> signs[] = {
      {Modifiers::command, "⌘"}, {Modifiers::option, "⌥"}, {Modifiers::control, "⌃"}};
  for (const auto& [modifier, sign] : signs)
    if ((item.keyModifiers | modifier) == item.keyModifiers) line += sign;
  return line + item.keyEquivalent + "]";
}

std::ptrdiff_t countIn(const Lines& trace, const std::string& line) {
  return std::count(trace.begin(), trace.end(), line);
}

class MenuBarManagerTest : public ::testing::Test {
 protected:
  MenuBarManagerTest() { manager_->setupMenu(); }

  [[nodiscard]] Lines lines() const {
    Lines lines;
    for (const MenuItem& item : desktop_.statusItem.menu.items)
      lines.push_back(lineOf(item));
    return lines;
  }

  void choose(const std::string& title) {
    const auto& items = desktop_.statusItem.menu.items;
    const auto item = std::find_if(items.begin(), items.end(),
                                   [&](const MenuItem& i) { return i.title == title; });
    ASSERT_NE(item, items.end()) << title;
    item->action();
    desktop_.loop.run();
  }

  FakeDesktop desktop_;
  SigningCoordinator coordinator_{desktop_.services()};
  std::unique_ptr<MenuBarManager> manager_ =
      std::make_unique<MenuBarManager>(desktop_.services(), coordinator_);
  const std::string builtInLine_ = "Server: " + std::string(BuiltInServer::url());
};

TEST_F(MenuBarManagerTest, ShowsItsItemsInOrder) {
  EXPECT_EQ(desktop_.statusItem.menu.symbol, "shield.fill");
  EXPECT_EQ(desktop_.statusItem.menu.symbolDescription, "Quill Seal");
  EXPECT_EQ(desktop_.statusItem.menu.title, " 🛡\uFE0F Quillseal");
  EXPECT_THAT(lines(), ElementsAre("Sign Selected Text (⌘⌥⌃H) [⌘⌥⌃h]", "---",
                                   builtInLine_ + " (label)", "Configure Server... [⌘,]", "---",
                                   "About Quill Seal", "Quit Quill Seal [⌘q]"));
  for (const MenuItem& item : desktop_.statusItem.menu.items)
    EXPECT_EQ(static_cast<bool>(item.action), item.kind == MenuItem::Kind::action) << item.title;
}

TEST_F(MenuBarManagerTest, FollowsTheServerSetting) {
  desktop_.defaults.setString("ServerURL", "https://own.example");
  desktop_.loop.run();
  EXPECT_THAT(lines(), Contains("Server: https://own.example (label)"));
  desktop_.defaults.strings.erase("ServerURL");
  desktop_.defaults.setString("Another", "setting");
  desktop_.loop.run();
  EXPECT_THAT(lines(), Contains(builtInLine_ + " (label)"));
  manager_.reset();
  desktop_.defaults.setString("ServerURL", "https://late.example");
  desktop_.loop.run();
  EXPECT_THAT(lines(), Contains(builtInLine_ + " (label)")) << "changed by a manager that is gone";
}

TEST_F(MenuBarManagerTest, OpensOneSettingsWindowHoweverOftenItIsAskedFor) {
  desktop_.trace.clear();
  choose("Configure Server...");
  choose("Configure Server...");
  EXPECT_THAT(desktop_.trace, ElementsAre("window Quill Seal Server Settings", "window to front",
                                          "window to front"));
  const std::string header = desktop_.windows.form.sections.at(0).header;
  EXPECT_EQ(header, "Server") << "this build has a key of its own";
}

TEST_F(MenuBarManagerTest, DoesWhatItsItemsSay) {
  desktop_.keys.isPersonTrusting = false;
  const std::pair<std::string, Lines> cases[] = {
      {"Sign Selected Text (⌘⌥⌃H)", {"ask for trust"}},
      {"About Quill Seal", {"activate Quillseal", "about"}},
      {"Quit Quill Seal", {"terminate"}},
  };
  for (const auto& [title, done] : cases) {
    desktop_.trace.clear();
    choose(title);
    EXPECT_EQ(desktop_.trace, done) << title;
  }
}

TEST(HotkeyManager, StartsARunPerPressAndStaysInTheBackground) {
  FakeDesktop desktop;
  desktop.keys.selection = Copy{.text = "Only four words here", .html = {}};
  SigningCoordinator coordinator(desktop.services());
  HotkeyManager manager({.alerts = desktop.alerts, .hotkey = desktop.hotkey, .log = desktop.log},
                        coordinator);
  manager.registerHotkey();
  EXPECT_THAT(desktop.trace, ElementsAre("hotkey ⌘⌥⌃H"));
  desktop.hotkey.pressed();
  desktop.hotkey.pressed();
  desktop.loop.run();
  const std::string refusal = "alert: Not signed — too short | Only 4 words. Write at least 10.";
  EXPECT_EQ(countIn(desktop.trace, refusal), 2);
  EXPECT_THAT(desktop.trace, Not(Contains("activate Quillseal")));
}

TEST(AppDelegate, StartsAlsoWhenAnotherProgramHoldsTheKeys) {
  FakeDesktop desktop;
  desktop.hotkey.failure = Error({.domain = "x", .code = 1, .description = "Held by another."});
  desktop.keys.isPersonTrusting = false;
  AppDelegate delegate(desktop.services());
  delegate.applicationDidFinishLaunching();
  delegate.menuBarManager().signText();
  EXPECT_THAT(desktop.trace,
              ElementsAre("become accessory", "menu",
                          "log: [sign] the hotkey could not be registered: Held by another.",
                          "notify: Quillseal’s Hotkey Is Not Available | Held by another.",
                          "ask for trust"));
}

TEST(AppDelegate, StartsInOrderAndSharesOneCoordinatorBetweenMenuAndHotkey) {
  FakeDesktop desktop;
  desktop.keyStore.hasKey = false;
  AppDelegate delegate(desktop.services());
  delegate.applicationDidFinishLaunching();
  desktop.loop.run();
  EXPECT_THAT(desktop.trace, ElementsAre("become accessory", "menu", "hotkey ⌘⌥⌃H"));
  delegate.menuBarManager().signText();
  desktop.hotkey.pressed();
  desktop.loop.run();
  EXPECT_EQ(countIn(desktop.trace, "create key"), 1);
}

}  // namespace
}  // namespace quillseal
