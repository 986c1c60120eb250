#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include <gio/gio.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include "BusServices.h"
#include "Cases.h"
#include "PrivateBus.h"
#include "ScriptedUser.h"
#include "TemporaryFolder.h"
#include "applications/WindowDocument.h"
#include "core/text/Error.h"
#include "core/text/UniqueHandle.h"
#include "desktop/SigningHotkey.h"
#include "gnome/GioShortcutSettings.h"
#include "gnome/GnomeApplications.h"
#include "gnome/GnomeHotkey.h"
#include "gnome/ShellExtension.h"
#include "session/DesktopBus.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;

// Shortcuts ---------------------------------------------------------------------------------------

constexpr const char* mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr const char* custom = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding";
constexpr const char* folder = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/";

const CustomShortcut shortcut{
    .name = "Sign", .command = "quillseal --sign", .keys = "<Control><Alt><Super>h"};

using Settings = UniqueHandle<GSettings, ::g_object_unref>;

Settings settingsAt(const std::string& schema, const std::string& path = {}) {
  return Settings(path.empty() ? g_settings_new(schema.c_str())
                               : g_settings_new_with_path(schema.c_str(), path.c_str()));
}

void set(GSettings* settings, const char* key, const std::vector<const char*>& values) {
  std::vector<const char*> ended = values;
  ended.push_back(nullptr);
  g_settings_set_strv(settings, key, ended.data());
}

std::string textOf(GSettings* settings, const char* key) {
  const UniqueHandle<GVariant, ::g_variant_unref> value(g_settings_get_value(settings, key));
  const UniqueHandle<char, ::g_free> text(g_variant_print(value.get(), FALSE));
  return text.get();
}

class GnomeShortcuts : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { ::setenv("GSETTINGS_BACKEND", "memory", 1); }
  GnomeShortcuts() { g_settings_reset(settingsAt(mediaKeys).get(), "custom-keybindings"); }

  GioShortcutSettings settings;
};

TEST_F(GnomeShortcuts, AreAddedBesideTheUsersOwn) {
  const std::string other = std::string(folder) + "custom0/";
  const Settings list = settingsAt(mediaKeys);
  set(list.get(), "custom-keybindings", {other.c_str(), "no path"});
  EXPECT_EQ(settings.stateOf(shortcut), ShortcutState::missing);
  EXPECT_TRUE(settings.add(shortcut));
  EXPECT_EQ(settings.stateOf(shortcut), ShortcutState::present);
  EXPECT_EQ(textOf(list.get(), "custom-keybindings"),
            "['" + other + "', 'no path', '" + folder + "quillseal/']");
  const Settings own = settingsAt(custom, std::string(folder) + "quillseal/");
  EXPECT_EQ(textOf(own.get(), "binding"), "'<Control><Alt><Super>h'");
  EXPECT_EQ(textOf(own.get(), "command"), "'quillseal --sign'");
  g_settings_set_string(own.get(), "binding", "<Super>F5");  // as the user likes it better
  EXPECT_TRUE(settings.add(shortcut));
  EXPECT_EQ(settings.keys(), "<Super>F5");
  const std::string listed = textOf(list.get(), "custom-keybindings");
  g_settings_set_string(own.get(), "binding", "");
  EXPECT_TRUE(settings.add(shortcut));
  EXPECT_EQ(settings.keys(), shortcut.keys);
  EXPECT_EQ(textOf(list.get(), "custom-keybindings"), listed);
  g_settings_reset(list.get(), "custom-keybindings");
  EXPECT_EQ(settings.keys(), "");
}

TEST_F(GnomeShortcuts, TakeNoKeysFromAnother) {
  for (const auto& [schema, key, keys, isTaken] :
       testing::cases<std::string, std::string, std::string, bool>()) {
    const Settings other = settingsAt(schema);
    set(other.get(), key.c_str(), {"<Super>F9", keys.c_str()});
    EXPECT_EQ(settings.stateOf(shortcut), isTaken ? ShortcutState::taken : ShortcutState::missing)
        << keys;
    EXPECT_EQ(settings.add(shortcut), !isTaken);
    g_settings_reset(other.get(), key.c_str());
    g_settings_reset(settingsAt(mediaKeys).get(), "custom-keybindings");
  }
  const std::string path = std::string(folder) + "custom0/";
  set(settingsAt(mediaKeys).get(), "custom-keybindings", {path.c_str()});
  g_settings_set_string(settingsAt(custom, path).get(), "binding", "<Super><Ctrl><Alt>h");
  EXPECT_EQ(settings.stateOf(shortcut), ShortcutState::taken);
  EXPECT_FALSE(settings.add(shortcut));
}

// GSettings chooses its backend once in a process, so this has a process of its own.
TEST(GnomeShortcutsDeathTest, AreNotAddedToLockedSettings) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const testing::TemporaryFolder home;
  const auto profile = home.path() / "profile";
  testing::overwrite(profile, "system-db:quillseal-none\n");  // and none that the user may write
  const auto stateOrAdded = [&profile] {
    ::setenv("GSETTINGS_BACKEND", "dconf", 1);
    ::setenv("DCONF_PROFILE", profile.c_str(), 1);
    GioShortcutSettings settings;
    const auto state = static_cast<int>(settings.stateOf(shortcut));
    return settings.add(shortcut) ? -1 : state;
  };
  EXPECT_EXIT(std::_Exit(stateOrAdded()),
              ::testing::ExitedWithCode(static_cast<int>(ShortcutState::locked)), "");
}

// Extension ---------------------------------------------------------------------------------------

TEST(ShellExtensionAdvice, SaysWhatIsTrueForTheVersion) {
  const testing::PrivateBus sessionBus("DBUS_SESSION_BUS_ADDRESS");
  const auto bus = DesktopBus::open();
  EXPECT_EQ(ShellExtension(*bus).advice(), "");  // another desktop
  for (const auto& [version, part] : {std::pair{"43.9", "enable the extension"},
                                      {"49.1", "enable the extension"},
                                      {"50.alpha", "up to 49, and yours is 50"},
                                      {"", "enable the extension"}}) {
    const testing::BusServices shell(
        ::sd_bus_open_user, {"org.gnome.Shell"},
        [said = version](sd_bus_message* call, const std::string& method, sd_bus_error* error) {
          if (method == "Get" && *said != '\0')
            return ::sd_bus_reply_method_return(call, "v", "s", said);
          return ::sd_bus_error_set(error, "org.freedesktop.DBus.Error.UnknownMethod", "none");
        });
    EXPECT_THAT(ShellExtension(*bus).advice(), HasSubstr(part)) << version;
  }
}

TEST(ShellExtensionTest, HoldsNothingUpWhileTheShellHangs) {
  using std::chrono::milliseconds;
  constexpr milliseconds pause{1000};
  const testing::PrivateBus daemon("DBUS_SESSION_BUS_ADDRESS");
  std::atomic<bool> isHanging = true;
  testing::BusServices shell(::sd_bus_open_user, {"org.gnome.Shell"},
                             [&](sd_bus_message* call, const std::string& method, sd_bus_error*) {
                               if (isHanging) return 1;
                               if (method != "Front")
                                 return ::sd_bus_reply_method_return(call, "b", 1);
                               return ::sd_bus_reply_method_return(
                                   call, "tbbssusu", std::uint64_t{7}, 1, 0, "org.a.Editor.desktop",
                                   "Editor", static_cast<std::uint32_t>(::getpid()), "d", 3U);
                             });
  const auto bus = DesktopBus::open();
  ASSERT_NE(bus, nullptr);
  const ShellExtension extension(*bus, pause);
  const auto begin = std::chrono::steady_clock::now();
  for (int step = 0; step < 4; ++step) {
    EXPECT_FALSE(extension.front());
    EXPECT_FALSE(extension.activateApplication("browser.desktop"));
    extension.activate(7);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 2 * DesktopBus::timeout);
  isHanging = false;
  std::this_thread::sleep_for(pause);
  const ShellFront front = extension.front().value_or(ShellFront());
  EXPECT_EQ(std::tuple(front.window, front.hasKeys, front.holdsModifiers, front.clipboardChanges),
            std::tuple(7U, true, false, 3U));
  EXPECT_THAT((std::array{front.traits.gtkApplicationId, front.traits.windowClass,
                          front.traits.executable, front.document}),
              ElementsAre("org.a.Editor", "Editor", "quillseal_gnome_tests",
                          documentName({.title = "d", .focus = 0})));
  EXPECT_EQ(extension.activateApplication("browser.desktop"), true);
}

// Applications ------------------------------------------------------------------------------------

struct OneBrowser : DesktopEntries {
  std::optional<DesktopEntry> forWindow(const WindowTraits& /*traits*/) override { return {}; }
  std::optional<DesktopEntry> defaultFor(const std::string& /*url*/) override { return {}; }
  std::optional<DesktopEntry> withId(std::string_view id) override {
    DesktopEntry entry{};
    entry.id = id;
    return entry;
  }
  bool open(const std::string& /*url*/, std::string_view /*id*/) override { return opens; }
  bool opens = true;
};

TEST(GnomeApplicationsTest, BringTheBrowserToTheFrontOrTellWhereThePageIs) {
  using std::chrono::milliseconds;
  const testing::TemporaryFolder runtime;
  ::setenv("XDG_RUNTIME_DIR", runtime.path().c_str(), 1);
  for (const auto& [opens, finds, time, tells] :
       testing::cases<bool, std::vector<int>, int, bool>()) {
    const testing::PrivateBus daemon("DBUS_SESSION_BUS_ADDRESS");
    testing::VirtualLoop loop;
    std::size_t asked = 0;
    milliseconds last{0};
    const testing::BusServices shell(
        ::sd_bus_open_user, {"org.gnome.Shell"},
        [&, answers = finds](sd_bus_message* call, const std::string&, sd_bus_error* error) {
          last = std::chrono::duration_cast<milliseconds>(loop.elapsed());
          const int isFound = answers.at(asked++);
          return isFound < 0 ? ::sd_bus_error_set(error, "a.b", "no extension")
                             : ::sd_bus_reply_method_return(call, "b", isFound);
        });
    const auto bus = DesktopBus::open();
    const ShellExtension extension(*bus);
    OneBrowser entries;
    entries.opens = opens;
    bool isTold = false;
    GnomeApplications applications({.extension = extension,
                                    .entries = entries,
                                    .loop = loop,
                                    .notify = [&](const std::string&) { isTold = true; }});
    bool isOpened = false;
    const auto ticket =
        applications.open("https://a.example", {.location = "web", .bundleIdentifier = {}},
                          [&](const std::optional<Error>& error) { isOpened = !error; });
    loop.run();
    EXPECT_EQ(std::tuple(isOpened, asked, last, isTold),
              std::tuple(opens, finds.size(), milliseconds(time), tells));
  }
}

// Hotkey ------------------------------------------------------------------------------------------

struct ScriptedUser : testing::ScriptedUser {
  [[nodiscard]] std::unique_ptr<GnomeHotkey> registered(
      const std::string& path = "/usr/bin/quillseal") {
    auto made = std::make_unique<GnomeHotkey>(
        GnomeHotkey::Services{.loop = loop,
                              .settings = *this,
                              .areObeyed = [] { return true; },
                              .alerts = [this]() -> desktop::Alerts& { return alerts; },
                              .defaults = [this]() -> desktop::Defaults& { return defaults; }},
        path);
    made->registerHotkey(desktop::signingHotkey, [] {});
    loop.run();
    return made;
  }
};

// What else they do is told by PortalSystemTest.
TEST(GnomeHotkeys, RunTheProgramWhateverItsPath) {
  ScriptedUser user;
  user.canAdd = false;
  static_cast<void>(user.registered("/opt/it's mine/quillseal"));
  EXPECT_THAT(user.trace,
              ElementsAre(_, _, "add <Control><Alt><Super>h '/opt/it'\\''s mine/quillseal' --sign",
                          HasSubstr("could not be added"), "set ShortcutKeys = none"));
}

TEST(GnomeHotkeys, AreNamedAsTheUserHasBoundThem) {
  ScriptedUser user;
  auto hotkey = user.registered();
  bool isOpened = false;  // rather than pressed
  for (const auto& [keys, name] : testing::cases<std::string, std::string>()) {
    const desktop::HotkeyState expected{.otherKeys = name, .isOff = keys.empty()};
    int changes = 0;
    desktop::Ticket watch = hotkey->observe([&] { ++changes; });
    user.bound = keys;
    user.loop.leap(std::chrono::hours(1));
    if (isOpened)
      hotkey->refresh();
    else
      static_cast<void>(hotkey->isNewPress());
    isOpened = !isOpened;
    EXPECT_EQ(changes, 1) << keys;
    EXPECT_EQ(hotkey->state(), expected);
    user.reads = 0;
    watch = {};
    hotkey = user.registered();
    EXPECT_EQ(hotkey->state(), expected) << "after a new start";
    EXPECT_EQ(user.reads, 0) << "the start needs no GIO";
  }
}

// An older version stored no keys.
TEST(GnomeHotkeys, AreReadOnceWhereNoneOrBadOnesAreStored) {
  for (const std::string& stored :
       {std::string(), std::string("<Super>F5, and more"), std::string(101, 'a')}) {
    ScriptedUser user;
    user.bound = "<Super>F6";
    user.defaults.strings = {{"ShortcutOffered", "true"}, {"ShortcutKeys", stored}};
    for (int start = 0; start < 2; ++start)
      EXPECT_EQ(user.registered()->state().otherKeys, "Super+F6") << stored;
    EXPECT_EQ(user.reads, 1);
    EXPECT_THAT(user.trace, ElementsAre("set ShortcutKeys = <Super>F6"));
    user.bound = "<Super>F7\nServerURL=elsewhere";  // which the user may have written there
    user.registered()->refresh();
    EXPECT_EQ(user.trace.size(), 1);
    user.isBroken = true;
    const auto hotkey = user.registered();
    hotkey->refresh();
    EXPECT_EQ(hotkey->state().otherKeys, "Super+F6");
  }
}

}  // namespace
}  // namespace quillseal::linux
