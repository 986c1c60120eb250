#include <QCoreApplication>
#include <array>
#include <chrono>
#include <optional>
#include <string>

#include <gmock/gmock.h>

#include "BusServices.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "ScriptedPortal.h"
#include "ScriptedUser.h"
#include "TemporaryFolder.h"
#include "core/text/Error.h"
#include "desktop/SigningHotkey.h"
#include "modules/LoadedDesktopEntries.h"
#include "systems/PortalSystem.h"

namespace quillseal::linux {
namespace {

using namespace std::chrono_literals;
using namespace ::testing;
using testing::ScriptedPortal;

/// The agent on a desktop whose compositor keeps keys to itself.
class PortalSystemTest : public ::testing::Test {
 protected:
  void begin(PortalOffer offer) {
    system.reset();
    offer.remoteDesktop = 2;
    offer.clipboard = 1;
    desk.emplace(ScriptedPortal::Script{.offer = offer});
    DesktopAccess access;
    access.bus = DesktopBus::open();
    access.portalBus = DesktopBus::open();
    access.offer = offer;
    access.token = folder.path() / "token";
    system.emplace(std::move(access),
                   WindowingSystem::Services{
                       .loop = loop,
                       .descriptors = loop,
                       .log = log,
                       .entries = entries,
                       .shortcuts = user,
                       .showLimits = [] {},
                       .notify = [](const std::string&) {},
                       .alerts = [this]() -> desktop::Alerts& { return user.alerts; },
                       .defaults = [this]() -> desktop::Defaults& { return user.defaults; }});
  }

  std::array<char*, 1> arguments{const_cast<char*>("test")};
  int count = 1;
  QCoreApplication application{count, arguments.data()};
  testing::PrivateBus sessionBus{"DBUS_SESSION_BUS_ADDRESS"};
  testing::TemporaryFolder folder;
  PollLoop loop;
  testing::ScriptedUser user;
  testing::FakeLog log{user};
  LoadedDesktopEntries entries{LoadedModule({.places = {}, .version = "", .duty = ""})};
  std::optional<ScriptedPortal> desk;
  std::optional<PortalSystem> system;
};

TEST_F(PortalSystemTest, HasTheHotkeyOfThePortal) {
  begin({.globalShortcuts = 2});
  int presses = 0;
  system->hotkey().registerHotkey(desktop::signingHotkey, [&] { ++presses; });
  testing::runUntil(loop, [&] { return desk->hasCall("BindShortcuts"); });
  testing::runUntil(loop, [&, sent = 0]() mutable {
    if (sent++ % 50 == 0)
      desk->emit("GlobalShortcuts", "Activated", "osta{sv}", ScriptedPortal::session, "sign",
                 std::uint64_t{1}, 0);
    return presses > 0;
  });
  EXPECT_TRUE(system->isNewPress());
  EXPECT_TRUE(system->isNewPress());
  EXPECT_THAT(user.trace, IsEmpty());
}

// As on GNOME 45 to 47.
TEST_F(PortalSystemTest, ElseAsksForAShortcutInTheUsersSettings) {
  begin({});
  const auto asked = StartsWith("ask: Add Ctrl+Alt+Super+H to Your Keyboard Settings?");
  const std::string kept = "set ShortcutOffered = true";
  const std::string off = "set ShortcutKeys = none";
  const std::string on = "set ShortcutKeys = <Control><Alt><Super>h";
  const std::string added = "add <Control><Alt><Super>h " +
                            QCoreApplication::applicationFilePath().toStdString() + " --sign";
  const auto start = [this] {
    user.trace.clear();
    begin({});
    int changes = 0;
    const desktop::Ticket watch = system->hotkey().observe([&] { ++changes; });
    system->hotkey().registerHotkey(desktop::signingHotkey, [] {});
    user.loop.run();
    return changes > 0;
  };
  const auto isOff = [this] { return system->hotkey().state().isOff; };

  // Another desktop, where the user's answer on GNOME does not count.
  user.defaults.strings = {{"ShortcutOffered", "true"}, {"ShortcutKeys", "<Super>F6"}};
  user.bound = "<Super>F6";
  EXPECT_THAT(start, ThrowsMessage<Error>(HasSubstr("gives programs no hotkey")));
  system->hotkey().refresh();
  system->hotkey().askAgain();
  EXPECT_TRUE(isOff());
  EXPECT_THAT(user.trace, ElementsAre(HasSubstr("gives programs no hotkey")));
  user.bound.clear();
  user.defaults.strings.clear();

  const testing::BusServices shell(::sd_bus_open_user, {"org.gnome.Shell"},
                                   [](sd_bus_message*, const std::string&, sd_bus_error* error) {
                                     return ::sd_bus_error_set(error, "a.b", "no extension");
                                   });
  for (const auto& [state, part] : {std::pair{ShortcutState::locked, "administrator has locked"},
                                    {ShortcutState::taken, "already uses Ctrl+Alt+Super+H"},
                                    {ShortcutState::unsupported, "gives programs no hotkey"}}) {
    user.state = state;
    EXPECT_THAT(start, ThrowsMessage<Error>(AllOf(HasSubstr(part), HasSubstr("--sign"))));
    EXPECT_THAT(user.trace, IsEmpty());
    EXPECT_TRUE(isOff());
  }
  user.state = ShortcutState::present;
  user.bound = "<Super><Shift>F5";
  EXPECT_TRUE(start());
  EXPECT_EQ(system->hotkey().state().otherKeys, "Shift+Super+F5");
  EXPECT_THAT(user.trace, ElementsAre(kept, "set ShortcutKeys = <Super><Shift>F5"));
  user.bound.clear();
  user.state = ShortcutState::missing;
  user.defaults.strings.clear();  // another user
  user.alerts.answer = desktop::Answer::cancelled;
  EXPECT_TRUE(start());
  EXPECT_THAT(user.trace, ElementsAre(asked, kept, off));
  EXPECT_TRUE(start());
  EXPECT_THAT(user.trace, IsEmpty());
  EXPECT_TRUE(isOff());

  user.alerts.answer = desktop::Answer::confirmed;
  bool isReported = false;
  const desktop::Ticket watch = system->hotkey().observe([&] { isReported = !isOff(); });
  system->hotkey().askAgain();
  EXPECT_TRUE(isReported) << "while the user is asked";
  system->hotkey().askAgain();
  user.loop.run();
  EXPECT_THAT(user.trace, ElementsAre(asked, kept, added, on));
  EXPECT_FALSE(start());
  EXPECT_THAT(user.trace, IsEmpty());

  const auto press = loop.now();
  EXPECT_TRUE(system->isNewPress());
  EXPECT_FALSE(system->isNewPress());  // the keys are held
  const auto delivery = testing::awaited<desktop::Delivery>(loop, [this](auto done) {
    return system->keys().press(
        {.key = desktop::Key::c, .modifiers = desktop::Modifiers::command}, {}, [] {}, done);
  });
  EXPECT_EQ(delivery, desktop::Delivery::delivered);
  EXPECT_GE(loop.now() - press, 700ms);

  user.bound.clear();  // removed by the user
  EXPECT_FALSE(start());
  system->hotkey().refresh();
  EXPECT_THAT(user.trace, ElementsAre(off));
  EXPECT_TRUE(isOff());
  user.trace.clear();
  user.state = ShortcutState::taken;
  system->hotkey().askAgain();
  EXPECT_THAT(user.trace, ElementsAre(AllOf(StartsWith("notify: "), HasSubstr("already uses"))));
}

}  // namespace
}  // namespace quillseal::linux
