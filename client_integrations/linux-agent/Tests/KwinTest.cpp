#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <systemd/sd-bus.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "KeymapText.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "ScriptedCompositor.h"
#include "core/text/Error.h"
#include "core/text/UniqueHandle.h"
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

/// KDE's services on the session bus, on their own thread.
class ScriptedKde {
 public:
  struct Script {
    std::optional<std::uint32_t> layout{};  ///< the layout service is absent if empty
    bool isLocked = false;
    bool answers = true;
    int granted = controlAltMetaH;  ///< 0 when the keys are refused
    std::string owner{};            ///< component that owns them
  };

  explicit ScriptedKde(Script script) : script_(std::move(script)) {
    sd_bus* opened = nullptr;
    ::sd_bus_open_user(&opened);
    bus_.reset(opened);
    ::sd_bus_add_fallback(bus_.get(), nullptr, "/", handle, this);
    for (const char* name :
         {"org.kde.kglobalaccel", "org.kde.keyboard", "org.freedesktop.ScreenSaver"})
      ::sd_bus_request_name(bus_.get(), name, 0);
    thread_ = std::thread([this] { serve(); });
  }
  ~ScriptedKde() {
    ends_ = true;
    thread_.join();
  }
  ScriptedKde(const ScriptedKde&) = delete;
  ScriptedKde& operator=(const ScriptedKde&) = delete;

  /// Emits "globalShortcutPressed" or the like, for an action of Quillseal's.
  void tell(const std::string& signal, const std::string& action = "sign") {
    const std::lock_guard lock(mutex_);
    signals_.emplace_back(signal, action);
  }
  [[nodiscard]] std::vector<std::string> calls() {
    const std::lock_guard lock(mutex_);
    return calls_;
  }

 private:
  void serve() {
    while (!ends_) {
      while (::sd_bus_process(bus_.get(), nullptr) > 0) {
      }
      std::vector<std::pair<std::string, std::string>> signals;
      {
        const std::lock_guard lock(mutex_);
        signals.swap(signals_);
      }
      for (const auto& [signal, action] : signals)
        ::sd_bus_emit_signal(bus_.get(), "/component/quillseal", "org.kde.kglobalaccel.Component",
                             signal.c_str(), "ssx", "quillseal", action.c_str(),
                             static_cast<std::int64_t>(0));
      ::sd_bus_flush(bus_.get());
      ::sd_bus_wait(bus_.get(), 2000);
    }
  }

  static int handle(sd_bus_message* message, void* self, sd_bus_error* error) {
    return static_cast<ScriptedKde*>(self)->answer(message, error);
  }

  int answer(sd_bus_message* message, sd_bus_error* error) {
    const std::string member = ::sd_bus_message_get_member(message);
    {
      const std::lock_guard lock(mutex_);
      calls_.push_back(member);
    }
    if (!script_.answers) return 1;
    if (member == "GetActive")
      return ::sd_bus_reply_method_return(message, "b", static_cast<int>(script_.isLocked));
    if (member == "getLayout" && script_.layout)
      return ::sd_bus_reply_method_return(message, "u", *script_.layout);
    if (member == "setShortcutKeys" && script_.granted != 0)
      return ::sd_bus_reply_method_return(message, "a(ai)", 2, 4, 0, 0, 0, 0, 4, script_.granted, 0,
                                          0, 0);
    if (member == "setShortcutKeys")
      return ::sd_bus_reply_method_return(message, "a(ai)", 1, 4, 0, 0, 0, 0);
    if (member == "actionList" && !script_.owner.empty())
      return ::sd_bus_reply_method_return(message, "as", 2, script_.owner.c_str(), "act");
    if (member == "actionList") return ::sd_bus_reply_method_return(message, "as", 0);
    if (member == "unregister") return ::sd_bus_reply_method_return(message, "b", 1);
    if (member == "doRegister" || member == "setInactive")
      return ::sd_bus_reply_method_return(message, "");
    return ::sd_bus_error_set(error, "org.freedesktop.DBus.Error.UnknownMethod", member.c_str());
  }

  Script script_;
  UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> bus_;
  std::mutex mutex_;
  std::vector<std::string> calls_;                            // guarded by mutex_
  std::vector<std::pair<std::string, std::string>> signals_;  // guarded by mutex_
  std::atomic<bool> ends_ = false;
  std::thread thread_;
};

class Kwin : public ::testing::Test {
 protected:
  std::optional<PrivateBus> sessionBus{std::in_place, "DBUS_SESSION_BUS_ADDRESS"};
};

// Keys --------------------------------------------------------------------------------------------

/// Returns the keys that are pressed after the releases of keys that the user may hold.
std::vector<std::string> chordIn(const std::vector<std::string>& keys) {
  const auto first = std::ranges::find_if(keys, [](const auto& key) { return key.back() == '+'; });
  return {first, keys.end()};
}

using KwinKeys = Kwin;

TEST_F(KwinKeys, AreThoseOfTheLayoutInUse) {
  using Keys = std::vector<std::string>;
  constexpr std::array<Keysym, 2> copy{XKB_KEY_Control_L, XKB_KEY_c};
  constexpr std::array<Keysym, 2> paste{XKB_KEY_Control_L, XKB_KEY_v};
  constexpr std::array<Keysym, 2> all{XKB_KEY_Control_L, XKB_KEY_a};
  constexpr std::array<Keysym, 3> copyInTerminal{XKB_KEY_Control_L, XKB_KEY_Shift_L, XKB_KEY_c};
  const Keys copied{"29+", "46+", "46-", "29-"};
  const Keys copiedByInsert{"29+", "110+", "110-", "29-"};
  const Keys pastedByInsert{"42+", "110+", "110-", "42-"};
  const struct {
    const char* layout;
    std::optional<std::uint32_t> used;
    std::span<const Keysym> chord;
    Keys keys;
  } rows[] = {{"us", {}, copy, copied},
              {"us", {}, copyInTerminal, {"29+", "42+", "46+", "46-", "42-", "29-"}},
              {"fr", {}, all, {"29+", "16+", "16-", "29-"}},
              {"us,fr", 0U, all, {"29+", "30+", "30-", "29-"}},
              {"us,fr", 1U, all, {"29+", "16+", "16-", "29-"}},
              {"us,fr", 2U, all, {}},  // Ctrl+Q ends applications
              {"us,fr", {}, all, {}},
              {"us,fr", {}, copy, copied},
              {"us,us(dvorak)", {}, copy, copiedByInsert},
              {"us,us(dvorak)", {}, paste, pastedByInsert},
              {"us,us(dvorak)", 1U, copy, {"29+", "23+", "23-", "29-"}},
              {"ru,us", 0U, copy, copied},
              {"ru", {}, copy, copiedByInsert},
              {"ru", {}, paste, pastedByInsert},
              {"ru", {}, all, {"29+", "30+", "30-", "29-"}},
              {"", {}, copy, copiedByInsert}};
  for (const auto& row : rows) {
    const std::string layout = row.layout;
    ScriptedCompositor compositor(
        {.isKwin = true, .layout = layout.empty() ? "" : testing::keymapText(row.layout)});
    const ScriptedKde kde({.layout = row.used});
    const auto connection = WaylandConnection::open();
    const auto bus = DesktopBus::open();
    KwinKeyboard keyboard(*connection, bus.get());
    EXPECT_TRUE(connection->roundTrip() && connection->roundTrip());
    keyboard.prepare();
    keyboard.tap(row.chord);
    EXPECT_TRUE(connection->roundTrip());
    EXPECT_EQ(chordIn(compositor.keys()), row.keys) << layout << " with " << row.keys.size();
    for (const char* held :
         {"35-", "29-", "97-", "56-", "100-", "125-", "126-", "42-", "54-", "58-"})
      EXPECT_THAT(compositor.keys(), Contains(held));
  }
}

TEST_F(KwinKeys, ReachNoWindowBehindALockedScreen) {
  const ScriptedCompositor compositor({.isKwin = true});
  const auto connection = WaylandConnection::open();
  const auto bus = DesktopBus::open();
  KwinKeyboard keyboard(*connection, bus.get());
  const auto reaches = [&] {
    keyboard.prepare();
    return keyboard.reachesActiveWindow();
  };
  EXPECT_TRUE(reaches());  // nobody locks screens here
  const struct {
    ScriptedKde::Script script;
    bool isReached;
  } rows[] = {{{.isLocked = true}, false}, {{}, true}, {{.answers = false}, false}};
  for (const auto& row : rows) {
    const ScriptedKde kde(row.script);
    EXPECT_EQ(reaches(), row.isReached);
  }
  EXPECT_TRUE(reaches());
  sessionBus.reset();  // and now nobody can tell
  EXPECT_FALSE(reaches());
}

// Hotkey ------------------------------------------------------------------------------------------

using KwinHotkeys = Kwin;

TEST_F(KwinHotkeys, ArePressedOnceHoweverLongTheyAreHeld) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{});
  PollLoop loop;
  const auto bus = DesktopBus::open();
  bus->serve(loop, loop);
  int presses = 0;
  {
    KwinHotkey keys({.loop = loop, .bus = *bus});
    keys.registerHotkey(desktop::signingHotkey, [&] { ++presses; });
    const auto registered = kde->calls();
    for (const char* signal : {"globalShortcutPressed", "globalShortcutPressed",
                               "globalShortcutReleased", "globalShortcutPressed"})
      kde->tell(signal);
    kde->tell("globalShortcutReleased", "other");
    kde->tell("globalShortcutPressed");
    testing::runUntil(loop, [&] { return presses == 2; });

    kde.reset();
    kde.emplace(ScriptedKde::Script{});
    testing::runUntil(loop, [&] { return kde->calls().size() >= registered.size(); });
    EXPECT_EQ(kde->calls(), registered);
    kde->tell("globalShortcutPressed");
    testing::runUntil(loop, [&] { return presses == 3; });
  }
  EXPECT_EQ(kde->calls().back(), "setInactive");
}

TEST_F(KwinHotkeys, SayWhyThereAreNone) {
  PollLoop loop;
  const auto bus = DesktopBus::open();
  bus->serve(loop, loop);
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
    auto keys = std::make_unique<KwinHotkey>(KwinHotkey::Services{.loop = loop, .bus = *bus});
    try {
      keys->registerHotkey(desktop::signingHotkey, [] {});
      ADD_FAILURE() << row.part;
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), AllOf(HasSubstr(row.part), HasSubstr("quillseal --sign")));
    }
    keys.reset();
    EXPECT_EQ(kde.calls().back(), row.lastCall);
  }
}

/// Counts how often something is ready.
class Counting : public Descriptors {
 public:
  explicit Counting(Descriptors& descriptors) : descriptors_(descriptors) {}
  [[nodiscard]] desktop::Ticket watch(int descriptor, Interest interest,
                                      std::function<void(Interest)> ready) override {
    return descriptors_.watch(descriptor, interest, [this, ready](Interest now) {
      ++count;
      ready(now);
    });
  }
  int count = 0;

 private:
  Descriptors& descriptors_;
};

TEST_F(KwinHotkeys, EndWithTheBus) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{});
  PollLoop loop;
  Counting descriptors(loop);
  const auto bus = DesktopBus::open();
  bus->serve(loop, descriptors);
  KwinHotkey keys({.loop = loop, .bus = *bus});
  keys.registerHotkey(desktop::signingHotkey, [] {});
  kde.reset();
  sessionBus.reset();
  const desktop::Ticket end = loop.after(200ms, [&] { loop.stop(); });
  loop.run();
  EXPECT_LT(descriptors.count, 10);  // nobody looks again and again
  EXPECT_EQ(bus->knows("org.kde.kglobalaccel"), std::nullopt);
}

TEST_F(KwinHotkeys, AreOfKwinOnly) {
  const auto bus = DesktopBus::open();
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
  const auto bus = DesktopBus::open();
  EXPECT_EQ(bus->knows("org.kde.kglobalaccel"), false);
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

TEST_F(KwinBus, AnswersLaterUnlessTheCallIsDropped) {
  std::optional<ScriptedKde> kde(std::in_place, ScriptedKde::Script{.answers = false});
  PollLoop loop;
  const auto bus = DesktopBus::open();
  bus->serve(loop, loop);
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
