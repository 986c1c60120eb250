#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include <fcntl.h>
#include <gmock/gmock.h>

#include "Cases.h"
#include "FakeDesktop.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "ScriptedPortal.h"
#include "TemporaryFolder.h"
#include "applications/WindowDocument.h"
#include "core/text/Error.h"
#include "core/text/UniqueHandle.h"
#include "desktop/SigningHotkey.h"
#include "portal/Portal.h"
#include "portal/PortalHotkey.h"
#include "portal/PortalKeyEvents.h"
#include "portal/PortalPasteboard.h"
#include "portal/PortalRemote.h"
#include "session/DesktopBus.h"
#include "session/PollLoop.h"
#include "x11/X11Selection.h"

namespace quillseal::linux {
namespace {

using namespace std::chrono_literals;
using namespace ::testing;
using desktop::Delivery;
using desktop::Key;
using testing::ScriptedPortal;
using Script = ScriptedPortal::Script;
using Owner = ScriptedPortal::Owner;
using Calls = std::vector<std::string>;

constexpr std::chrono::seconds portalPatience{1};

/// The agent's side, with a portal.
class PortalTest : public ::testing::Test {
 protected:
  /// Starts the portal and what uses it anew. `token` is what an earlier session left.
  void begin(Script script, const std::string& token = {}) {
    keys.reset();
    pasteboard.reset();
    hotkey.reset();
    remote.reset();
    portal.reset();
    bus.reset();
    desk.reset();
    told.clear();
    const PortalOffer offer = script.offer;
    desk.emplace(std::move(script));
    bus = DesktopBus::openThrough({QUILLSEAL_WAYLAND_CONNECTOR});
    bus->serve(loop, loop);
    static_cast<void>(offerOfPortal(*bus, portalPatience));
    portal.emplace(*bus);
    std::filesystem::remove_all(tokenFile.parent_path());
    const PrivateFile file(tokenFile);
    if (!token.empty()) file.replace(token);
    const auto tell = [this](const std::string& sentence) { told += sentence; };
    remote.emplace(PortalRemote::Services{
        .loop = loop, .portal = *portal, .offer = offer, .token = file, .tell = tell});
    hotkey.emplace(PortalHotkey::Services{
        .loop = loop,
        .portal = *portal,
        .defaults = [this]() -> desktop::Defaults& { return defaults; },
        .tell = tell,
        .activated = [this](const std::string& value) { activation = value; }});
    pasteboard.emplace(
        PortalPasteboard::Services{
            .loop = loop, .descriptors = loop, .portal = *portal, .remote = *remote},
        ClipboardKeeper({QUILLSEAL_CLIPBOARD_KEEPER_FOR_X11}),
        PortalPasteboard::Patience{{.silence = 200ms, .transfer = 400ms, .largest = 1000}, 500ms});
    keys.emplace(PortalKeyEvents::Services{.loop = loop,
                                           .remote = *remote,
                                           .applications = applications,
                                           .pasteboard = *pasteboard,
                                           .isHotkeyHeld = [this] { return isHeld; },
                                           .isKeyboardTaken = [this] { return isTaken; },
                                           .catchUp =
                                               [this](std::function<void()> done) {
                                                 return loop.after({}, [this, done] {
                                                   if (!meanwhile) return done();
                                                   meanwhile();
                                                   catchingUp = loop.after(200ms, done);
                                                 });
                                               },
                                           .explain = [this] { told += remote->obstacle(); },
                                           .tell = tell});
  }

  void offerBlock() {
    pasteboard->write({.plainText = "block", .html = "<p>"});
    desk->copy({"text/plain"}, ScriptedPortal::Report::ofTheAgent);
    testing::runUntil(loop, [&] { return pasteboard->isWritten(); });
  }

  bool open() {
    return testing::awaited<bool>(loop, [this](auto done) { return remote->open(done); });
  }

  Delivery press(Key key, const std::optional<desktop::RunningApplication>& target) {
    changesBefore.reset();
    return testing::awaited<Delivery>(loop, [&](auto done) {
      return keys->press(
          {.key = key, .modifiers = desktop::Modifiers::command}, target,
          [this] { changesBefore = pasteboard->changeCount(); }, done);
    });
  }

  [[nodiscard]] std::string storedToken() const {
    return PrivateFile(tokenFile).read().value_or("");
  }

  /// Has another program address a signal to the agent, which needs no subscription.
  template <typename... Arguments>
  void forge(const DesktopBus::Signal& signal, const char* types, Arguments... arguments) {
    sd_bus* opened = nullptr;
    ::sd_bus_open_user(&opened);
    const UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> other(opened);
    sd_bus_message* made = nullptr;
    ::sd_bus_message_new_signal(opened, &made, signal.path, signal.interface, signal.name);
    const DesktopBus::Message message(made);
    ::sd_bus_message_append(made, types, arguments...);
    ::sd_bus_send_to(opened, made, bus->ownName().c_str(), nullptr);
    ::sd_bus_flush(opened);
    settle();
  }

  /// Lets everything arrive that was sent, on both sides.
  void settle() {
    static_cast<void>(bus->call({.service = Portal::service,
                                 .path = Portal::path,
                                 .interface = "org.freedesktop.DBus.Properties",
                                 .name = "Get"},
                                "ss", "Clipboard", "version"));
    testing::runUntil(loop, [turns = 0]() mutable { return ++turns > 5; });
  }

  Calls pressed() {
    settle();
    Calls result = desk->calls();
    std::erase_if(result, [](const std::string& call) { return std::isdigit(call.front()) == 0; });
    return result;
  }

  testing::PrivateBus sessionBus{"DBUS_SESSION_BUS_ADDRESS"};
  testing::TemporaryFolder folder;
  std::filesystem::path tokenFile = folder.path() / "quillseal" / "token";
  PollLoop loop;
  testing::Record record;
  testing::FakeApplications applications{record};
  testing::FakeDefaults defaults{record};
  bool isHeld = false;
  bool isTaken = false;
  std::function<void()> meanwhile;  ///< happens before the compositor has told its latest state
  std::string told;
  std::string activation;
  desktop::Ticket catchingUp;
  std::optional<std::int64_t> changesBefore;  ///< of the clipboard, before the keys were pressed
  std::optional<ScriptedPortal> desk;
  std::unique_ptr<DesktopBus> bus;
  std::optional<Portal> portal;
  std::optional<PortalRemote> remote;
  std::optional<PortalHotkey> hotkey;
  std::optional<PortalPasteboard> pasteboard;
  std::optional<PortalKeyEvents> keys;
};

using PortalKeys = PortalTest;

/// A script from its fields in cases.jsonl.
Script scriptOf(const testing::Json& fields) {
  Script script;
  script.offer.remoteDesktop = fields.value("version", script.offer.remoteDesktop);
  script.answer = fields.value("answer", script.answer);
  script.devices = fields.value("devices", script.devices);
  script.allowsClipboard = fields.value("allowsClipboard", script.allowsClipboard);
  script.token = fields.value("token", script.token);
  script.knownToken = fields.value("knownToken", script.knownToken);
  script.closesSession = fields.value("closesSession", script.closesSession);
  script.isMalformed = fields.value("isMalformed", script.isMalformed);
  script.keys = fields.value("keys", script.keys);
  return script;
}

TEST_F(PortalKeys, NeedWhatTheUserAllowsAndRemembersIt) {
  for (const auto& [name, script, token, isTrusted, isOpen, tokenAfter, calls] :
       testing::cases<std::string, testing::Json, std::string, bool, bool, std::string, Calls>()) {
    SCOPED_TRACE(name);
    begin(scriptOf(script), token);
    EXPECT_EQ(keys->isTrusted(), isTrusted);
    EXPECT_EQ(open(), isOpen);
    EXPECT_EQ(storedToken(), tokenAfter);
    const auto mode = std::filesystem::status(tokenFile).permissions();
    EXPECT_EQ(tokenAfter.empty() ? 0600 : static_cast<int>(mode), 0600);
    EXPECT_EQ(press(Key::c, {}), isOpen ? Delivery::delivered : Delivery::notAllowed);
    EXPECT_EQ(pressed(), isOpen ? (Calls{"29+", "110+", "110-", "29-"}) : Calls{});
    EXPECT_EQ(remote->obstacle().empty(), isOpen);
    const Calls made = desk->calls();
    EXPECT_EQ(made.front(), calls.front());
    auto position = made.begin();
    for (const std::string& call : calls) {
      position = std::find(position, made.end(), call);
      EXPECT_NE(position, made.end()) << call;
    }
  }
}

TEST_F(PortalKeys, AreOnlyThoseThatDoNoHarmWhereverTheyGo) {
  const auto application = [](std::uint64_t instance, std::string categories, std::string title) {
    return desktop::RunningApplication{
        .instance = instance,
        .name = {},
        .bundleIdentifier = {},
        .categories = std::move(categories),
        .document = documentName({.title = std::move(title), .focus = 0})};
  };
  const std::map<std::string, std::optional<desktop::RunningApplication>> known{
      {"none", {}},
      {"editor", application(1, "", "a")},
      {"another document", application(1, "", "b")},
      {"another window", application(2, "", "a")},
      {"terminal", application(1, "TerminalEmulator", "a")}};
  const std::map<std::string, Key> letters{{"copy", Key::c}, {"paste", Key::v}, {"all", Key::a}};
  const std::map<std::string, Delivery> outcomes{{"delivered", Delivery::delivered},
                                                 {"declined", Delivery::declined},
                                                 {"another document", Delivery::documentChanged},
                                                 {"keys held", Delivery::keysHeld}};
  for (const auto& [target, front, key, held, delivery, keysPressed] :
       testing::cases<std::string, std::string, std::string, bool, std::string, Calls>()) {
    SCOPED_TRACE(target + " " + front + " " + key);
    begin({});
    ASSERT_TRUE(open());
    applications.front = applications.active = known.at(front);
    if (key == "paste") offerBlock();
    isHeld = held;
    const auto start = loop.now();
    EXPECT_EQ(press(letters.at(key), known.at(target)), outcomes.at(delivery));
    // The block has reached every program by then.
    if (!keysPressed.empty() && key == "paste") {
      EXPECT_GE(loop.now() - start, 100ms);
    }
    EXPECT_EQ(pressed(), keysPressed);
    EXPECT_EQ(changesBefore.has_value(), delivery == "delivered");
  }
  const auto terminal = known.at("terminal");
  isTaken = true;  // by the screen lock
  EXPECT_EQ(press(Key::v, terminal), Delivery::keyboardTaken);
  isTaken = false;
  applications.active.reset();  // as under GNOME's overview
  EXPECT_EQ(press(Key::v, terminal), Delivery::keyboardTaken);
  applications.active = terminal;
  desk->copy({"text/plain"});  // another program's
  testing::runUntil(loop, [&] { return !pasteboard->isWritten(); });
  EXPECT_EQ(press(Key::v, terminal), Delivery::notWritten);
  offerBlock();
  meanwhile = [&] { applications.front = applications.active = known.at("another window"); };
  EXPECT_EQ(press(Key::v, terminal), Delivery::declined);
  meanwhile = [&] { desk->emit("Session", "Closed", ""); };
  applications.front = applications.active = terminal;
  EXPECT_EQ(press(Key::v, terminal), Delivery::notAllowed);
  EXPECT_THAT(told, HasSubstr("has ended the permission"));
  EXPECT_THAT(pressed(), IsEmpty());
}

TEST_F(PortalKeys, AreNotPressedBeforeTheClipboardOfANewSessionIsKnown) {
  begin({}, "old");
  const desktop::Ticket report = loop.after(10ms, [&] {
    testing::runUntil(loop, [&] { return remote->isOpen(); });
    desk->copy({"text/plain"});
  });
  EXPECT_EQ(press(Key::c, {}), Delivery::delivered);
  EXPECT_EQ(changesBefore, 1);
}

TEST_F(PortalKeys, SayWhenTheyCannotBeRemembered) {
  begin({});
  std::ofstream(tokenFile.parent_path()) << "no folder";
  EXPECT_TRUE(open());
  EXPECT_THAT(told, HasSubstr("will ask you again next time"));
}

TEST_F(PortalKeys, AreAllowedAgainOnlyWhenTheUserSigns) {
  begin({}, "old");
  ASSERT_TRUE(open());
  forge({.sender = nullptr,
         .path = ScriptedPortal::session,
         .interface = "org.freedesktop.portal.Session",
         .name = "Closed",
         .firstArgument = nullptr},
        "");
  forge({.sender = nullptr,
         .path = "/org/freedesktop/DBus",
         .interface = "org.freedesktop.DBus",
         .name = "NameOwnerChanged",
         .firstArgument = nullptr},
        "sss", Portal::service, ":1.1", "");
  EXPECT_TRUE(remote->isOpen());
  desk->emit("Session", "Closed", "");  // by the user, in the panel
  testing::runUntil(loop, [&] { return !remote->isOpen(); });
  EXPECT_EQ(std::ranges::count(desk->calls(), "Start"), 1);
  EXPECT_EQ(press(Key::c, {}), Delivery::delivered);
  EXPECT_EQ(std::ranges::count(desk->calls(), "Start"), 2);

  desk.reset();
  desk.emplace(Script{.answer = 1});  // restarts, and the user refuses
  testing::runUntil(loop, [&] { return !remote->isOpen(); });
  EXPECT_EQ(press(Key::c, {}), Delivery::notAllowed);
  EXPECT_EQ(desk->calls().front(), "Register com.quillseal.agent");
  EXPECT_FALSE(keys->isTrusted());
  EXPECT_THAT(told, HasSubstr("did not let Quillseal press keys"));
  EXPECT_THAT(pressed(), IsEmpty());
  told.clear();
  keys->askForTrust();
  testing::runUntil(loop, [&] { return !told.empty(); });
  EXPECT_THAT(told, HasSubstr("allow it when the desktop asks"));
}

TEST_F(PortalKeys, AreNotPressedAfterTheRunWasCalledOffOrTheUserWasElsewhere) {
  std::optional<Delivery> delivery;
  const auto pressing = [&] {
    return keys->press({.key = Key::c, .modifiers = desktop::Modifiers::command}, {}, {},
                       [&](Delivery result) { delivery = result; });
  };
  for (const bool isCalledOff : {true, false}) {
    begin({.answers = false}, "old");
    desktop::Ticket run = pressing();
    testing::runUntil(loop, [&] { return desk->hasCall("Start"); });
    if (isCalledOff) {
      run = {};
    } else {
      const auto end = loop.now() + 3100ms;
      testing::runUntil(loop, [&] { return loop.now() > end; });
    }
    desk->allow();
    testing::runUntil(loop, [&] { return remote->isOpen(); });
    EXPECT_THAT(pressed(), IsEmpty());
    EXPECT_EQ(delivery.has_value(), !isCalledOff);
  }
  EXPECT_EQ(delivery, Delivery::keyboardTaken);

  begin({.answers = false});
  for (const bool isRestarted : {false, true}) {
    std::optional<bool> isOpen;
    const desktop::Ticket opening = remote->open([&](bool result) { isOpen = result; });
    testing::runUntil(loop, [&] { return desk->hasCall("Start"); });
    if (!isRestarted) desk->emit("Session", "Closed", "");
    if (!isRestarted) testing::runUntil(loop, [&] { return isOpen.has_value(); });
    desk.reset();
    desk.emplace(Script{.answers = false});
    testing::runUntil(loop, [&] { return isOpen.has_value(); });
    EXPECT_EQ(isOpen, false);
  }

  begin({.answers = false});
  keys->askForTrust();
  testing::runUntil(loop, [&] { return desk->hasCall("Start"); });
  keys.reset();
  remote.reset();
  testing::runUntil(loop, [&] { return desk->hasCall("Session.Close"); });
  EXPECT_TRUE(desk->hasCall("Request.Close"));
}

// Hotkey ------------------------------------------------------------------------------------------

using PortalHotkeys = PortalTest;

TEST_F(PortalHotkeys, ArePressedOnceUntilTheyAreReleased) {
  begin({});
  int presses = 0;
  hotkey->registerHotkey(desktop::signingHotkey, [&] { ++presses; });
  const auto tell = [&](const char* signal, const char* id, const char* session) {
    desk->emit("GlobalShortcuts", signal, "osta{sv}", session, id, std::uint64_t{1}, 1,
               "activation_token", "s", "abc");
  };
  testing::runUntil(loop, [&] { return desk->hasCall("BindShortcuts"); });
  forge({.sender = nullptr,
         .path = Portal::path,
         .interface = "org.freedesktop.portal.GlobalShortcuts",
         .name = "Activated",
         .firstArgument = nullptr},
        "osta{sv}", ScriptedPortal::session, "sign", std::uint64_t{1}, 0);
  for (const int expected : {1, 2}) {
    EXPECT_EQ(presses, expected - 1);
    desk->emit("GlobalShortcuts", "Activated", "s", "malformed");
    tell("Activated", "sign", "/other");
    tell("Activated", "other", ScriptedPortal::session);
    tell("Activated", "sign", ScriptedPortal::session);
    tell("Activated", "sign", ScriptedPortal::session);
    testing::runUntil(loop, [&] { return presses == expected; });
    EXPECT_TRUE(hotkey->mayBeHeld());
    const auto release = loop.now();
    tell("Deactivated", "sign", ScriptedPortal::session);
    testing::runUntil(loop, [&] { return !hotkey->mayBeHeld(); });
    EXPECT_GE(loop.now() - release, 100ms);  // for the other keys
    EXPECT_EQ(presses, expected);
  }
  EXPECT_EQ(activation, "abc");
  desk.reset();
  desk.emplace(Script{});
  testing::runUntil(loop, [&] { return desk->hasCall("BindShortcuts"); });
  tell("Activated", "sign", ScriptedPortal::session);
  testing::runUntil(loop, [&] { return presses == 3; });
  const auto lost = loop.now() + 1100ms;  // the release, that is
  testing::runUntil(loop, [&] { return loop.now() > lost; });
  tell("Activated", "sign", ScriptedPortal::session);
  testing::runUntil(loop, [&] { return presses == 4; });
}

TEST_F(PortalHotkeys, AreBoundOnceByAPortalThatTheirCallStarts) {
  testing::overwrite(
      folder.path() / "portal.service",
      std::string("[D-BUS Service]\nExec=/bin/sleep 5\nName=") + Portal::service + "\n");
  const testing::PrivateBus starting("DBUS_SESSION_BUS_ADDRESS", folder.path().string());
  begin({});
  desk.reset();
  hotkey->registerHotkey(desktop::signingHotkey, [] {});
  const auto later = loop.now() + 200ms;
  testing::runUntil(loop, [&] { return loop.now() > later; });
  desk.emplace(Script{});
  testing::runUntil(loop, [&] { return desk->hasCall("BindShortcuts"); });
  settle();
  EXPECT_EQ(std::ranges::count(desk->calls(), "CreateSession"), 1);
}

TEST_F(PortalHotkeys, AreBoundAgainWhenTheDesktopEndsThemOnce) {
  begin({});
  hotkey->registerHotkey(desktop::signingHotkey, [] {});
  for (const int bindings : {1, 2}) {
    testing::runUntil(
        loop, [&] { return std::ranges::count(desk->calls(), "BindShortcuts") == bindings; });
    settle();
    EXPECT_EQ(told, "");
    desk->emit("Session", "Closed", "");
  }
  testing::runUntil(loop, [&] { return !told.empty(); });
  EXPECT_THAT(told, HasSubstr("has ended Quillseal’s hotkey"));
  EXPECT_TRUE(hotkey->state().isOff);
}

TEST_F(PortalHotkeys, AreNamedAsTheDesktopBoundThem) {
  for (const auto& [name, script, otherKeys, part] :
       testing::cases<std::string, testing::Json, std::string, std::string>()) {
    SCOPED_TRACE(name);
    begin(scriptOf(script));
    hotkey->registerHotkey(desktop::signingHotkey, [] {});
    testing::runUntil(loop, [&] { return !told.empty() || desk->hasCall("BindShortcuts"); });
    settle();
    EXPECT_EQ(hotkey->state().otherKeys, otherKeys);
    EXPECT_THAT(told, HasSubstr(part));
    EXPECT_EQ(told.empty(), part.empty());
    if (!told.empty()) continue;
    desk->emit("GlobalShortcuts", "ShortcutsChanged", "oa(sa{sv})", ScriptedPortal::session, 1,
               "sign", 1, "trigger_description", "s", "Ctrl+J");
    bool isReported = false;
    const desktop::Ticket watch = hotkey->observe([&] { isReported = true; });
    testing::runUntil(loop, [&] { return isReported; });
    EXPECT_EQ(hotkey->state().otherKeys, "Ctrl+J");
  }
}

TEST_F(PortalHotkeys, MayHaveNoKeysOrUnknownOnes) {
  const auto isOff = [this] { return hotkey->state().isOff; };
  begin({.keys = ""});
  hotkey->registerHotkey(desktop::signingHotkey, [] {});
  testing::runUntil(loop, isOff);
  EXPECT_EQ(told, "");
  hotkey->askAgain();
  testing::runUntil(loop, [&] { return !told.empty(); });
  EXPECT_THAT(told, HasSubstr("has no keys"));
  EXPECT_TRUE(isOff());
  desk->emit("GlobalShortcuts", "ShortcutsChanged", "oa(sa{sv})", ScriptedPortal::session, 1,
             "sign", 1, "trigger_description", "s", "");
  testing::runUntil(loop, [&] { return !isOff(); });
  EXPECT_EQ(hotkey->state().otherKeys, "the shortcut of your choice");
}

TEST_F(PortalHotkeys, ThatWereRefusedAreAskedForOnlyWhenTheUserWants) {
  const auto start = [this](const Script& script) {
    begin(script);
    hotkey->registerHotkey(desktop::signingHotkey, [] {});
    settle();
  };
  const auto isAsked = [this] { return desk->hasCall("BindShortcuts"); };
  const auto isOff = [this] { return hotkey->state().isOff; };
  const auto isSettled = [&] {
    return !told.empty() || defaults.string("HotkeyRefused") == "false";
  };

  start({.isMalformed = true});  // failed, but not refused
  testing::runUntil(loop, isSettled);
  EXPECT_TRUE(isOff());
  desk.reset();
  desk.emplace(Script{});
  testing::runUntil(loop, [&] { return isAsked() && !isOff(); });
  for (const std::uint32_t answer : {1U, 2U}) {  // as other desktops and GNOME say it
    defaults.strings.clear();
    start({.answer = answer});
    testing::runUntil(loop, isSettled);
    EXPECT_TRUE(isOff());
    EXPECT_THAT(told,
                AllOf(HasSubstr("turn it on in the settings"), HasSubstr("quillseal --sign")));
  }
  desk.reset();
  desk.emplace(Script{});  // the portal restarts
  testing::runUntil(loop, [&] { return bus->knows(Portal::service) == true; });
  settle();
  EXPECT_FALSE(desk->hasCall("CreateSession"));

  for (const std::uint32_t answer : {1U, 2U, 0U}) {
    start({.answer = answer});
    EXPECT_FALSE(isAsked());
    EXPECT_TRUE(isOff());
    EXPECT_EQ(told, "");
    hotkey->askAgain();
    EXPECT_FALSE(isOff());
    testing::runUntil(loop, isSettled);
    EXPECT_TRUE(isAsked());
    EXPECT_EQ(isOff(), answer != 0);
  }
  start({});
  testing::runUntil(loop, isAsked);
  EXPECT_FALSE(isOff());
}

// Clipboard ---------------------------------------------------------------------------------------

class PortalClipboard : public PortalTest {
 protected:
  using Report = ScriptedPortal::Report;

  void fetch() {
    bool isFetched = false;
    const desktop::Ticket fetching = pasteboard->fetch([&] { isFetched = true; });
    testing::runUntil(loop, [&] { return isFetched; });
  }

  void await(std::int64_t changeCount) {
    testing::runUntil(loop, [&] { return pasteboard->changeCount() == changeCount; });
  }

  /// Returns what the user is told.
  std::string writing() {
    try {
      pasteboard->write({.plainText = "block", .html = "<p>"});
      return {};
    } catch (const Error& error) {
      return error.what();
    }
  }

  std::string preparedWriting() {
    bool isReady = false;
    const desktop::Ticket preparing = pasteboard->prepareWrite([&] { isReady = true; });
    testing::runUntil(loop, [&] { return isReady; });
    return writing();
  }

  std::string markupOnX() {
    return testing::awaited<X11Selection::Content>(loop, [this](auto done) {
      return X11Selection::read(
          {.loop = loop, .descriptors = loop},
          {.selection = X11Selection::Name::clipboard, .formats = {{"text/html"}}, .isEnough = {}},
          done);
    })["text/html"];
  }
};

TEST_F(PortalClipboard, HoldsWhatWasCopied) {
  begin({});
  desk->copy({"text/plain"});  // before there is a session
  settle();
  ASSERT_TRUE(open());
  EXPECT_EQ(pasteboard->changeCount(), 0);
  int changes = 0;
  const desktop::Ticket watch = pasteboard->onNextChange([&] { ++changes; });
  desk->copy({"image/png"}, Report::malformed);
  desk->copy({}, Report::documented);  // nobody's, before the real one
  desk->copy({"text/plain"}, Report::ofTheAgent);
  desk->copy({"text/html", "text/plain;charset=utf-8", "UTF8_STRING"});
  await(1);
  fetch();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(pasteboard->plainText(), "UTF8_STRING");
  EXPECT_EQ(pasteboard->html(), "text/html");
  EXPECT_FALSE(pasteboard->isConcealed());

  desk->copy({"text/plain"}, Report::nested);
  await(2);
  fetch();
  EXPECT_EQ(pasteboard->plainText(), "text/plain");

  desk->copy({"text/plain", "text/rtf", "x-kde-passwordManagerHint"});
  await(3);
  fetch();
  EXPECT_TRUE(pasteboard->isConcealed());
  EXPECT_EQ(pasteboard->plainText(), std::nullopt);

  desk->copy({"text/rtf"});
  await(4);
  std::optional<std::string> rtf;
  const desktop::Ticket fetching =
      pasteboard->fetchRtf([&](std::optional<std::string> bytes) { rtf = std::move(bytes); });
  testing::runUntil(loop, [&] { return rtf.has_value(); });
  EXPECT_EQ(rtf, "text/rtf");
}

TEST_F(PortalClipboard, OutlivesEveryOwner) {
  for (const Owner owner : {Owner::isReplaced, Owner::isSilent, Owner::writesTooMuch, Owner::closes,
                            Owner::givesNoFile}) {
    begin({.owner = owner});
    ASSERT_TRUE(open());
    desk->copy({"text/plain"});
    await(1);
    const auto start = loop.now();
    fetch();
    EXPECT_EQ(pasteboard->plainText(), std::nullopt);
    EXPECT_LT(loop.now() - start, 2s);
  }
  begin({.owner = Owner::isSilent});
  ASSERT_TRUE(open());
  desk->copy({"text/plain"});
  await(1);
  bool isFetched = false;
  const desktop::Ticket fetching = pasteboard->fetch([&] { isFetched = true; });
  testing::runUntil(loop, [&] { return desk->hasCall("SelectionRead"); });
  desk->copy({"text/html"});
  testing::runUntil(loop, [&] { return isFetched; });
  EXPECT_EQ(pasteboard->html(), std::nullopt);
}

TEST_F(PortalClipboard, OffersTheBlockOrSaysThatItDoesNot) {
  begin({});
  EXPECT_THAT(writing(), StartsWith("The clipboard could not be written. "));
  ASSERT_TRUE(open());
  EXPECT_EQ(writing(), "");
  EXPECT_EQ(pasteboard->changeCount(), 1);
  EXPECT_TRUE(desk->hasCall("SetSelection"));
  settle();
  EXPECT_FALSE(pasteboard->isWritten());
  desk->copy({"text/plain"}, Report::ofTheAgent);
  testing::runUntil(loop, [&] { return pasteboard->isWritten(); });
  desk->copy({"text/plain"});
  testing::runUntil(loop, [&] { return !pasteboard->isWritten(); });
  desk->copy({"text/plain"}, Report::ofTheAgent);
  desk->emit("Clipboard", "SelectionTransfer", "osu", "/other", "text/plain", 6U);
  constexpr int transfers = 24;  // more than are served at once
  for (int transfer = 0; transfer < transfers; ++transfer) {
    const bool isHtml = transfer % 2 == 0;
    desk->emit("Clipboard", "SelectionTransfer", "osu", ScriptedPortal::session,
               isHtml ? "text/html" : "text/plain", 7U);
    const auto before = std::ranges::count(desk->calls(), "SelectionWriteDone done");
    testing::runUntil(loop, [&] {
      return std::ranges::count(desk->calls(), "SelectionWriteDone done") > before;
    });
    EXPECT_EQ(desk->received(), isHtml ? "<p>" : "block");
  }
  EXPECT_EQ(std::ranges::count(desk->calls(), "SelectionWrite"), transfers);
  EXPECT_TRUE(pasteboard->isWritten());
  // The reader goes in the middle.
  pasteboard->write({.plainText = std::string(std::size_t{1} << 20, 'x'), .html = {}});
  EXPECT_FALSE(pasteboard->isWritten());
  desk->emit("Clipboard", "SelectionTransfer", "osu", ScriptedPortal::session, "text/plain", 8U);
  testing::runUntil(
      loop, [&] { return std::ranges::count(desk->calls(), "SelectionWrite") > transfers; });
  settle();
  desk->stopReading();
  testing::runUntil(loop, [&] { return desk->hasCall("SelectionWriteDone failed"); });

  begin({.takenSelections = 1});
  ASSERT_TRUE(open());
  EXPECT_EQ(writing(), "");
  EXPECT_THROW(pasteboard->write({.plainText = "other", .html = "<p>"}), Error);
  desk->emit("Clipboard", "SelectionTransfer", "osu", ScriptedPortal::session, "text/plain", 9U);
  testing::runUntil(loop, [&] { return desk->hasCall("SelectionWriteDone done"); });
  EXPECT_EQ(desk->received(), "block");
  begin({.offer = {.remoteDesktop = 2}});
  ASSERT_TRUE(open());
  EXPECT_THAT(writing(), HasSubstr("did not take"));
  EXPECT_FALSE(desk->hasCall("RequestClipboard"));
}

TEST_F(PortalClipboard, OpensALostSessionAgainOrSaysWhyNot) {
  begin({}, "old");
  ASSERT_TRUE(open());
  desk->emit("Session", "Closed", "");
  testing::runUntil(loop, [&] { return !remote->isOpen(); });
  EXPECT_EQ(preparedWriting(), "");
  EXPECT_TRUE(desk->hasCall("SetSelection"));

  begin({.answer = 1});
  EXPECT_THAT(preparedWriting(), HasSubstr("Your desktop did not let Quillseal"));
  begin({.answers = false});
  EXPECT_THAT(preparedWriting(), HasSubstr("has not answered yet"));
  desk->allow();
  EXPECT_EQ(preparedWriting(), "");
  desk.reset();
  testing::runUntil(loop, [&] { return !remote->isOpen(); });
  EXPECT_THAT(preparedWriting(), HasSubstr("does not let Quillseal in"));
}

// As on a desktop that keeps the X server's clipboard equal to its own.
TEST_F(PortalClipboard, IsHandedOverToAKeeperWhenTheSessionEnds) {
  const FileDescriptor nothing(::open("/dev/null", O_RDONLY));
  const testing::Server server({.file = "/usr/bin/Xvfb",
                                .arguments = {"-displayfd", "1", "-noreset", "-nolisten", "tcp"},
                                .input = nothing.get()});
  ::setenv("DISPLAY", (":" + server.address).c_str(), 1);
  enum class End { ofSession, ofAgent, ofOffer };
  for (const End end : {End::ofOffer, End::ofAgent, End::ofSession}) {
    begin({.takenSelections = 2});
    ASSERT_TRUE(open());
    offerBlock();
    const std::string markup = "<p>" + std::to_string(static_cast<int>(end));
    pasteboard->write({.plainText = "block", .html = markup});
    desk->copy({"text/plain"}, Report::ofTheAgent);
    testing::runUntil(loop, [&] { return pasteboard->isWritten(); });
    if (end == End::ofOffer) {
      EXPECT_NE(writing(), "");  // and the offer before it stays
      EXPECT_TRUE(pasteboard->isWritten());
      desk->copy({"text/plain"});
      testing::runUntil(loop, [&] { return !pasteboard->isWritten(); });
    }
    if (end == End::ofSession)
      desk->emit("Session", "Closed", "");
    else
      pasteboard.reset();
    if (end == End::ofOffer) {
      const auto later = loop.now() + 500ms;
      testing::runUntil(loop, [&] { return loop.now() > later; });
      const auto start = loop.now();
      EXPECT_EQ(markupOnX(), "");
      EXPECT_LT(loop.now() - start, 2s) << "nobody has it, which the server says at once";
    } else {
      testing::runUntil(loop, [&] { return markupOnX() == markup; });
    }
  }
  ::unsetenv("DISPLAY");
}

// Offer -------------------------------------------------------------------------------------------

using PortalOffers = PortalTest;

// Portals refuse a client whose folder in /proc is hidden.
TEST_F(PortalOffers, AreMadeToAProgramThatHidesNothing) {
  const auto client = DesktopBus::openThrough({QUILLSEAL_WAYLAND_CONNECTOR});
  const auto answer = client->call({.service = "org.freedesktop.DBus",
                                    .path = "/org/freedesktop/DBus",
                                    .interface = "org.freedesktop.DBus",
                                    .name = "GetConnectionUnixProcessID"},
                                   "s", client->ownName().c_str());
  std::uint32_t process = 0;
  ASSERT_GT(::sd_bus_message_read(answer.get(), "u", &process), 0);
  const std::string entry = "/proc/" + std::to_string(process);
  EXPECT_EQ(std::filesystem::read_symlink(entry + "/exe").filename(),
            std::filesystem::path(QUILLSEAL_WAYLAND_CONNECTOR).filename());
  // Nor can anybody reach the connection through it.
  EXPECT_FALSE(std::filesystem::exists(entry + "/fd/0"));
}

TEST_F(PortalOffers, AreWhatThePortalSays) {
  const struct {
    Script script;
    PortalOffer offer;
  } rows[] = {
      {{}, {.remoteDesktop = 2, .globalShortcuts = 2, .clipboard = 1}},
      {{.offer = {.remoteDesktop = 1}}, {.remoteDesktop = 1}},
      {{.devices = 2}, {.globalShortcuts = 2, .clipboard = 1}},
      {{.isMalformed = true}, {}},
  };
  const auto own = DesktopBus::open();
  EXPECT_EQ(DesktopBus::openThrough({"/absent"}), nullptr);
  EXPECT_EQ(offerOfPortal(*own, portalPatience), PortalOffer{});
  for (const auto& row : rows) {
    const ScriptedPortal scripted(row.script);
    EXPECT_EQ(offerOfPortal(*own, portalPatience), row.offer);
  }
}

// Also a start-up must not wait for long.
TEST_F(PortalOffers, AreNotWaitedForWhereThePortalHangs) {
  const auto services = folder.path() / "services";
  const auto portals = folder.path() / "xdg-desktop-portal" / "portals";
  const auto started = folder.path() / "started";
  std::filesystem::create_directories(services);
  std::filesystem::create_directories(portals);
  testing::overwrite(services / "portal.service",
                     std::string("[D-BUS Service]\nName=") + Portal::service +
                         "\nExec=/bin/sh -c 'touch " + started.string() +
                         "; exec sleep 5 >/dev/null 2>&1'\n");
  testing::overwrite(portals / "screen.portal",
                     "[portal]\nInterfaces=org.freedesktop.impl.portal.ScreenCast\n"
                     "InterfacesLater=org.freedesktop.impl.portal.RemoteDesktop\n");
  ::setenv("XDG_DATA_DIRS", ("/absent:" + folder.path().string()).c_str(), 1);
  ::setenv("XDG_DATA_HOME", "/absent", 1);
  const testing::PrivateBus hanging("DBUS_SESSION_BUS_ADDRESS", services.string());
  const auto own = DesktopBus::open();
  const auto offerAndTime = [&] {
    const auto start = loop.now();
    const PortalOffer offer = offerOfPortal(*own, portalPatience);
    return std::pair(offer, loop.now() - start);
  };
  // Only the start of the portal can hang here, and it would bring nothing.
  const auto [nothing, shortTime] = offerAndTime();
  EXPECT_EQ(nothing, PortalOffer{});
  EXPECT_LT(shortTime, 1s);
  EXPECT_FALSE(std::filesystem::exists(started));

  testing::overwrite(
      portals / "keys.portal",
      "[portal]\nInterfaces = a;org.freedesktop.impl.portal.RemoteDesktop;b\nUseIn=gnome\n");
  const auto [ofStarting, startingTime] = offerAndTime();
  EXPECT_EQ(ofStarting, PortalOffer{.isSilent = true});
  EXPECT_LT(startingTime, 1500ms);
  EXPECT_TRUE(std::filesystem::exists(started));

  // It runs, and hangs after its first answers.
  const testing::BusServices half(::sd_bus_open_user, {Portal::service},
                                  [](sd_bus_message* call, const std::string&, sd_bus_error*) {
                                    const char* interface = "";
                                    ::sd_bus_message_read(call, "s", &interface);
                                    if (!std::string_view(interface).ends_with("RemoteDesktop"))
                                      return 1;  // and no reply
                                    return ::sd_bus_reply_method_return(call, "v", "u", 3U);
                                  });
  const auto [ofHalf, halfTime] = offerAndTime();
  EXPECT_EQ(ofHalf, PortalOffer{.isSilent = true});
  EXPECT_LT(halfTime, 1500ms);
  ::unsetenv("XDG_DATA_DIRS");
  ::unsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace quillseal::linux
