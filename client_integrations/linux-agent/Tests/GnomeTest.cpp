#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gio/gio.h>
#include <gmock/gmock.h>

#include "Cases.h"
#include "RunUntil.h"
#include "core/text/Error.h"
#include "core/text/UniqueHandle.h"
#include "desktop/SigningHotkey.h"
#include "gnome/GioShortcutSettings.h"
#include "gnome/GnomeHotkey.h"
#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

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
  EXPECT_EQ(textOf(own.get(), "binding"), "'<Super>F5'");
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

// Hotkey ------------------------------------------------------------------------------------------

/// Settings, answers and alerts of a scripted user.
struct ScriptedUser : ShortcutSettings, desktop::Alerts, desktop::Defaults {
  PollLoop loop;
  ShortcutState state = ShortcutState::missing;
  bool canAdd = true;
  std::vector<std::string> added;
  std::vector<std::string> shown;
  std::map<std::string, std::string, std::less<>> stored;
  std::function<void(desktop::Answer)> answer;

  ShortcutState stateOf(const CustomShortcut&) override { return state; }
  bool add(const CustomShortcut& one) override {
    added.push_back(one.keys + " " + one.command);
    return canAdd;
  }
  desktop::Ticket show(const desktop::Alert&, std::function<void()>) override { return {}; }
  desktop::Ticket ask(const desktop::Question& question,
                      std::function<void(desktop::Answer)> answered) override {
    shown.push_back(question.title);
    answer = std::move(answered);
    return desktop::Ticket([this] { answer = nullptr; });
  }
  desktop::Ticket confirm(const desktop::ConfirmationForm&,
                          std::function<void(std::optional<desktop::ConfirmationEntry>)>) override {
    return {};
  }
  void notify(const desktop::Notification& one) override { shown.push_back(one.body); }
  [[nodiscard]] std::optional<std::string> string(std::string_view) const override { return {}; }
  [[nodiscard]] bool boolean(std::string_view key) const override { return stored.contains(key); }
  void setString(std::string_view key, std::string_view value) override {
    stored[std::string(key)] = value;
  }
  desktop::Ticket observe(std::function<void()>) override { return {}; }

  [[nodiscard]] std::unique_ptr<GnomeHotkey> hotkey(
      const std::string& program = "/usr/bin/quillseal") {
    return std::make_unique<GnomeHotkey>(
        GnomeHotkey::Services{.loop = loop,
                              .settings = *this,
                              .alerts = [this]() -> desktop::Alerts& { return *this; },
                              .defaults = [this]() -> desktop::Defaults& { return *this; }},
        program);
  }
};

TEST(GnomeHotkeys, AreAddedOnceTheUserSaysYesAndAskedForOnce) {
  for (const bool isYes : {true, false}) {
    ScriptedUser user;
    const auto hotkey = user.hotkey("/opt/it's mine/quillseal");
    hotkey->registerHotkey(desktop::signingHotkey, [] {});
    EXPECT_THAT(user.shown, ElementsAre("Add Ctrl+Alt+Super+H to Your Keyboard Settings?"));
    EXPECT_TRUE(user.added.empty());
    user.answer(isYes ? desktop::Answer::confirmed : desktop::Answer::cancelled);
    EXPECT_EQ(user.added, isYes ? std::vector<std::string>{"<Control><Alt><Super>h '/opt/it'\\''s "
                                                           "mine/quillseal' --sign"}
                                : std::vector<std::string>{});
    user.hotkey()->registerHotkey(desktop::signingHotkey, [] {});
    EXPECT_EQ(user.shown.size(), 1U);
  }
}

TEST(GnomeHotkeys, ArePressedOnceHoweverLongTheyAreHeld) {
  ScriptedUser user;
  const auto hotkey = user.hotkey();
  EXPECT_FALSE(hotkey->mayBeHeld());
  EXPECT_TRUE(hotkey->isNewPress());
  EXPECT_TRUE(hotkey->mayBeHeld());
  EXPECT_FALSE(hotkey->isNewPress());
  testing::runUntil(user.loop, [&] { return !hotkey->mayBeHeld(); });
}

TEST(GnomeHotkeys, SayWhyThereAreNone) {
  const std::pair<ShortcutState, const char*> rows[] = {
      {ShortcutState::taken, "already uses Ctrl+Alt+Super+H"},
      {ShortcutState::unsupported, "gives programs no hotkey"}};
  for (const auto& [state, part] : rows) {
    ScriptedUser user;
    user.state = state;
    EXPECT_THAT([&] { user.hotkey()->registerHotkey(desktop::signingHotkey, [] {}); },
                ::testing::ThrowsMessage<Error>(
                    ::testing::AllOf(HasSubstr(part), HasSubstr("quillseal --sign"))));
    EXPECT_TRUE(user.shown.empty() && user.stored.empty());
  }
  ScriptedUser user;
  user.canAdd = false;
  const auto hotkey = user.hotkey();
  hotkey->registerHotkey(desktop::signingHotkey, [] {});
  user.answer(desktop::Answer::confirmed);
  EXPECT_THAT(user.shown.back(), HasSubstr("could not be added"));
}

}  // namespace
}  // namespace quillseal::linux
