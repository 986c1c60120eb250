#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <memory>
#include <numeric>
#include <optional>

#include <gmock/gmock.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "BusServices.h"
#include "Cases.h"
#include "KeymapText.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "ScriptedCompositor.h"
#include "core/text/Error.h"
#include "desktop/SigningHotkey.h"
#include "session/DesktopBus.h"
#include "session/PollLoop.h"
#include "wayland/KwinHotkey.h"
#include "wayland/KwinKeyboard.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using namespace std::chrono_literals;
using testing::PrivateBus;
using testing::ScriptedCompositor;

constexpr int controlAltMetaH = 0x1C000048;  // in Qt's numbering

/// KDE's services on the session bus.
class ScriptedKde : public testing::BusServices {
 public:
  struct Script {
    std::optional<std::uint32_t> layout{};  ///< the layout service is absent if empty
    bool isLocked = false;
    const char* effect = "kscreen";  ///< of KWin's; active. KWin does not say it if null
    bool answers = true;
    int granted = controlAltMetaH;  ///< 0 when the keys are refused
    std::string owner{};            ///< component that owns them
    bool pressesMeanwhile = false;  ///< the user, while the screen lock is asked
  };

  explicit ScriptedKde(const Script& script)
      : BusServices(
            ::sd_bus_open_user,
            {"org.kde.KWin", "org.kde.kglobalaccel", "org.kde.keyboard",
             "org.freedesktop.ScreenSaver"},
            [this, script](sd_bus_message* call, const std::string& method, sd_bus_error* error) {
              note(method);
              if (script.pressesMeanwhile && method == "GetActive")
                emit(::sd_bus_message_get_bus(call), "globalShortcutPressed", "sign");
              return answer(script, call, method, error);
            }) {}

  /// The person chooses other keys in KDE's settings.
  void choose(int keys) {
    post([keys](sd_bus* bus) {
      ::sd_bus_emit_signal(bus, "/kglobalaccel", "org.kde.KGlobalAccel", "yourShortcutsChanged",
                           "asa(ai)", 4, "quillseal", "sign", "", "", 1, 4, keys, 0, 0, 0);
    });
  }

  /// Emits "globalShortcutPressed" or the like, for an action of Quillseal's.
  void tell(const std::string& signal, const std::string& action = "sign") {
    post([signal, action](sd_bus* bus) { emit(bus, signal, action); });
  }

 private:
  static void emit(sd_bus* bus, const std::string& signal, const std::string& action) {
    ::sd_bus_emit_signal(bus, "/component/quillseal", "org.kde.kglobalaccel.Component",
                         signal.c_str(), "ssx", "quillseal", action.c_str(),
                         static_cast<std::int64_t>(0));
  }

  static int answer(const Script& script, sd_bus_message* call, const std::string& method,
                    sd_bus_error* error) {
    const auto reply = [&](const char* types, auto... values) {
      return ::sd_bus_reply_method_return(call, types, values...);
    };
    if (!script.answers) return 1;
    if (method == "GetActive") return reply("b", static_cast<int>(script.isLocked));
    if (method == "Get")
      return script.effect == nullptr ? 1 : reply("v", "as", 2, "zoom", script.effect);
    if (method == "getLayout" && script.layout) return reply("u", *script.layout);
    if (method == "setShortcutKeys") {
      std::uint32_t flags = 0;
      ::sd_bus_message_skip(call, "asa(ai)");
      ::sd_bus_message_read(call, "u", &flags);
      // KDE's NoAutoloading, which replaces the keys that the user has chosen.
      if ((flags & 4U) != 0) return ::sd_bus_error_set(error, "org.example.Overwritten", "");
      if (script.granted == 0) return reply("a(ai)", 1, 4, 0, 0, 0, 0);
      return reply("a(ai)", 2, 4, 0, 0, 0, 0, 4, script.granted, 0, 0, 0);
    }
    if (method == "actionList")
      return script.owner.empty() ? reply("as", 0) : reply("as", 2, script.owner.c_str(), "act");
    if (method == "unregister") return reply("b", 1);
    if (method == "doRegister" || method == "setInactive") return reply("");
    return ::sd_bus_error_set(error, "org.freedesktop.DBus.Error.UnknownMethod", method.c_str());
  }
};

class Kwin : public ::testing::Test {
 protected:
  Kwin() { bus->serve(loop, loop); }

  std::optional<PrivateBus> sessionBus{std::in_place, "DBUS_SESSION_BUS_ADDRESS"};
  PollLoop loop;
  std::unique_ptr<DesktopBus> bus = DesktopBus::open();
};

// Keys --------------------------------------------------------------------------------------------

/// Returns the keys that are pressed after the releases of keys that the user may hold.
std::string chordIn(const std::vector<std::string>& keys) {
  const auto first = std::ranges::find_if(keys, [](const auto& key) { return key.back() == '+'; });
  return std::accumulate(first, keys.end(), std::string());
}

using KwinKeys = Kwin;

TEST_F(KwinKeys, AreThoseOfTheLayoutInUse) {
  const std::map<char, Keysym> symbols{{'C', XKB_KEY_Control_L}, {'S', XKB_KEY_Shift_L}};
  for (const auto& [layout, used, chord, keys] :
       testing::cases<std::string, int, std::string, std::string>()) {
    ScriptedCompositor compositor(
        {.isKwin = true, .layout = layout.empty() ? "" : testing::keymapText(layout.c_str())});
    const ScriptedKde kde({.layout = used < 0 ? std::nullopt : std::optional(used)});
    const auto connection = WaylandConnection::open();
    KwinKeyboard keyboard(*connection, bus.get());
    EXPECT_TRUE(connection->roundTrip() && connection->roundTrip());
    keyboard.prepare();
    std::vector<Keysym> pressed;
    for (const char key : chord)
      pressed.push_back(symbols.contains(key) ? symbols.at(key) : static_cast<Keysym>(key));
    keyboard.releaseHeldKeys();
    keyboard.tap(pressed);
    EXPECT_TRUE(connection->roundTrip());
    EXPECT_EQ(chordIn(compositor.keys()), keys) << layout << used << chord;
    EXPECT_THAT(compositor.keys(), IsSupersetOf({"35-", "29-", "97-", "56-", "100-", "125-", "126-",
                                                 "42-", "54-", "58-"}));
  }
}

TEST_F(KwinKeys, ReachNoWindowBehindALockedScreenOrTheOverview) {
  const ScriptedCompositor compositor({.isKwin = true});
  const auto connection = WaylandConnection::open();
  KwinKeyboard keyboard(*connection, bus.get());
  const auto reaches = [&] {
    keyboard.prepare();
    return keyboard.reachesActiveWindow();
  };
  EXPECT_TRUE(reaches());  // nobody locks screens here
  const struct {
    ScriptedKde::Script script;
    bool isReached;
  } rows[] = {{{.isLocked = true}, false},       {{}, true},
              {{.effect = nullptr}, false},      {{.effect = "overview"}, false},
              {{.effect = "windowview"}, false}, {{.effect = "tileseditor"}, false},
              {{.answers = false}, false}};
  for (const auto& row : rows) {
    const ScriptedKde kde(row.script);
    EXPECT_EQ(reaches(), row.isReached);
  }
  EXPECT_TRUE(reaches());
  sessionBus.reset();  // and now nobody can tell
  EXPECT_FALSE(reaches());
  KwinKeyboard withoutBus(*connection, nullptr);
  withoutBus.prepare();
  EXPECT_FALSE(withoutBus.reachesActiveWindow());
}

// Hotkey ------------------------------------------------------------------------------------------

using KwinHotkeys = Kwin;

TEST_F(KwinHotkeys, ArePressedOnceHoweverLongTheyAreHeld) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{});
  int presses = 0;
  {
    KwinHotkey keys({.loop = loop, .bus = *bus, .notify = {}});
    keys.registerHotkey(desktop::signingHotkey, [&] { ++presses; });
    const auto registered = kde->calls();
    for (const char* signal : {"globalShortcutPressed", "globalShortcutPressed",
                               "globalShortcutReleased", "globalShortcutPressed"})
      kde->tell(signal);
    kde->tell("globalShortcutReleased", "other");
    kde->tell("globalShortcutPressed");
    testing::runUntil(loop, [&] { return presses == 2; });

    kde.reset();
    testing::runUntil(loop, [turns = 0]() mutable { return ++turns > 20; });
    kde.emplace(ScriptedKde::Script{});
    testing::runUntil(loop, [&] { return kde->calls().size() >= registered.size(); });
    EXPECT_EQ(kde->calls(), registered);
    kde->tell("globalShortcutPressed");
    testing::runUntil(loop, [&] { return presses == 3; });
  }
  EXPECT_EQ(kde->calls().back(), "setInactive");
}

TEST_F(KwinHotkeys, SayWhyThereAreNone) {
  const struct {
    ScriptedKde::Script script;
    const char* part;
    const char* lastCall;
  } rows[] = {{{.granted = 0, .owner = "other"},
               "Another program already uses Ctrl+Alt+Super+H",
               "unregister"},
              {{.granted = 0}, "give Quillseal no keys", "actionList"},
              {{.granted = 0, .owner = "quillseal"}, "give Quillseal no keys", "actionList"},
              {{.answers = false}, "do not answer", "setInactive"}};
  for (const auto& row : rows) {
    ScriptedKde kde(row.script);
    std::string told;
    auto keys = std::make_unique<KwinHotkey>(
        KwinHotkey::Services{.loop = loop, .bus = *bus, .notify = [&](const std::string& sentence) {
                               told += sentence;
                             }});
    EXPECT_THAT([&] { keys->registerHotkey(desktop::signingHotkey, [] {}); },
                ThrowsMessage<Error>(AllOf(HasSubstr(row.part), HasSubstr("quillseal --sign"))));
    keys->askAgain();
    EXPECT_THAT(told, HasSubstr(row.part));
    EXPECT_TRUE(keys->state().isOff);
    keys.reset();
    EXPECT_EQ(kde.calls().back(), row.lastCall);
  }
}

TEST_F(KwinHotkeys, AreNamedAsTheUserHasChosenThem) {
  const struct {
    int keys;
    const char* name;
  } rows[] = {{controlAltMetaH, ""},
              {0x1400004A, "Ctrl+Super+J"},
              {0x0B000034, "Alt+Shift+F5"},
              {0x01000009, "the shortcut of your choice"}};  // Print
  for (const auto& row : rows) {
    ScriptedKde kde({.granted = row.keys});
    KwinHotkey keys({.loop = loop, .bus = *bus, .notify = {}});
    keys.registerHotkey(desktop::signingHotkey, [] {});
    EXPECT_EQ(keys.state().otherKeys, row.name);
    bool isReported = false;
    const desktop::Ticket watch = keys.observe([&] { isReported = true; });
    kde.choose(0x04000051);
    testing::runUntil(loop, [&] { return isReported; });
    EXPECT_EQ(keys.state().otherKeys, "Ctrl+Q");
    kde.choose(0);
    testing::runUntil(loop, [&] { return keys.state().isOff; });
  }
  {
    ScriptedKde kde({.granted = 0});
    {
      KwinHotkey keys({.loop = loop, .bus = *bus, .notify = {}});
      EXPECT_THROW(keys.registerHotkey(desktop::signingHotkey, [] {}), Error);
      kde.choose(0x04000051);
      testing::runUntil(loop, [&] { return keys.state().otherKeys == "Ctrl+Q"; });
    }
    EXPECT_EQ(kde.calls().back(), "setInactive") << "the keys chosen later work elsewhere again";
  }
  ScriptedKde other({.granted = 0, .owner = "other"});
  KwinHotkey keys({.loop = loop, .bus = *bus, .notify = {}});
  EXPECT_THROW(keys.registerHotkey(desktop::signingHotkey, [] {}), Error);
  const ScriptedKde freed({});
  keys.askAgain();
  EXPECT_EQ(keys.state(), desktop::HotkeyState());
}

TEST_F(KwinHotkeys, EndWithTheBus) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{});
  KwinHotkey keys({.loop = loop, .bus = *bus, .notify = {}});
  keys.registerHotkey(desktop::signingHotkey, [] {});
  kde.reset();
  sessionBus.reset();
  const desktop::Ticket end = loop.after(200ms, [&] { loop.stop(); });
  const std::clock_t before = std::clock();
  loop.run();
  EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 20);  // nobody looks again and again
  EXPECT_EQ(bus->hasOwner("org.kde.kglobalaccel"), std::nullopt);
}

TEST_F(KwinHotkeys, AreOfKwinOnly) {
  const auto areOfferedBy = [&](bool isKwin) {
    const ScriptedCompositor compositor({.isKwin = isKwin});
    return KwinHotkey::isOfferedBy(*WaylandConnection::open(), *bus);
  };
  EXPECT_FALSE(areOfferedBy(true));
  const ScriptedKde kde({});
  EXPECT_TRUE(areOfferedBy(true));
  EXPECT_FALSE(areOfferedBy(false));
}

using KwinBus = Kwin;

TEST_F(KwinBus, IsNotWaitedForWhenItHangs) {
  EXPECT_EQ(bus->hasOwner("org.kde.kglobalaccel"), false);
  sessionBus->hang();
  const auto start = std::chrono::steady_clock::now();
  DesktopBus::Receiver nobody;
  EXPECT_EQ(
      bus->subscribe(
          {.sender = "a.b", .path = "/", .interface = "a.b", .name = "c", .firstArgument = "d"},
          nobody),
      nullptr);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
}

TEST_F(KwinBus, DeliversASignalThatCameWhileAnAnswerWasAwaited) {
  ScriptedKde kde({.pressesMeanwhile = true});
  for (const bool isServedBefore : {true, false}) {
    const auto own = DesktopBus::open();
    if (isServedBefore) own->serve(loop, loop);
    int presses = 0;
    KwinHotkey keys({.loop = loop, .bus = *own, .notify = {}});
    keys.registerHotkey(desktop::signingHotkey, [&] { ++presses; });
    EXPECT_NE(own->call({.service = "org.freedesktop.ScreenSaver",
                         .path = "/",
                         .interface = "org.freedesktop.ScreenSaver",
                         .name = "GetActive"},
                        ""),
              nullptr);
    if (!isServedBefore) own->serve(loop, loop);
    testing::runUntil(loop, [&] { return presses == 1; });
  }
}

TEST_F(KwinBus, AnswersLaterUnlessTheCallIsDropped) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{.answers = false});
  std::vector<bool> isError;
  const auto call = [&](const char* service, const char* name) {
    const auto request = bus->newCall(
        {.service = service, .path = "/", .interface = "org.kde.KGlobalAccel", .name = name});
    return bus->callLater(*request, [&](sd_bus_message* answer) {
      isError.push_back(::sd_bus_message_is_method_error(answer, nullptr) != 0);
    });
  };
  desktop::Ticket dropped = call("org.kde.kglobalaccel", "unregister");
  const desktop::Ticket absent = call("org.kde.absent", "unregister");
  testing::runUntil(loop, [&] { return isError.size() == 1; });
  dropped = {};
  const desktop::Ticket unanswered = call("org.kde.kglobalaccel", "unregister");
  testing::runUntil(loop, [&] { return kde->calls().size() == 2; });
  kde.reset();
  kde.emplace(ScriptedKde::Script{});
  const desktop::Ticket answered = call("org.kde.kglobalaccel", "unregister");
  testing::runUntil(loop, [&] { return isError.size() == 3; });
  EXPECT_EQ(isError, std::vector({true, true, false}));
}

TEST_F(KwinBus, IsNoneWhereTheSessionHasNone) {
  setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
  EXPECT_EQ(DesktopBus::open(), nullptr);
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace
}  // namespace quillseal::linux
