#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <sstream>

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

constexpr std::chrono::seconds portalTimeout{1};
constexpr auto timeout = 1500ms;  // for what the user is not asked

/// The agent's side, with a portal.
struct Story {
  std::string stateOf(const std::string& name);
  void act(const std::string& line);

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
    static_cast<void>(offerOfPortal(*bus, portalTimeout));
    portal.emplace(*bus);
    std::filesystem::remove_all(tokenFile.parent_path());
    const PrivateFile file(tokenFile);
    if (!token.empty()) file.replace(token);
    const auto tell = [this](const std::string& sentence) { told += sentence; };
    remote.emplace(PortalRemote::Services{.loop = loop,
                                          .portal = *portal,
                                          .offer = offer,
                                          .token = file,
                                          .notify = tell,
                                          .timeout = timeout});
    hotkey.emplace(PortalHotkey::Services{
        .loop = loop,
        .portal = *portal,
        .defaults = [this]() -> desktop::Defaults& { return defaults; },
        .notify = tell,
        .activated = [this](const std::string& value) { activation = value; },
        .timeout = timeout});
    pasteboard.emplace(
        PortalPasteboard::Services{
            .loop = loop, .descriptors = loop, .portal = *portal, .remote = *remote, .log = log},
        ClipboardKeeper({keeper}),
        PortalPasteboard::Limits{{.silence = 200ms, .transfer = 400ms, .largest = 1000}, 500ms});
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
                                           .showLimits = [this] { told += remote->obstacle(); },
                                           .notify = tell});
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

  /// Returns what the user is told.
  std::string writing() {
    try {
      pasteboard->write({.plainText = "block", .html = "<p>"});
      return {};
    } catch (const Error& error) {
      return error.what();
    }
  }

  std::string markupOnX() {
    return testing::awaited<X11Selection::Content>(loop, [this](auto done) {
      return X11Selection::read(
          {.loop = loop, .descriptors = loop},
          {.selection = X11Selection::Name::clipboard, .formats = {{"text/html"}}, .isEnough = {}},
          done);
    })["text/html"];
  }

  testing::PrivateBus sessionBus{"DBUS_SESSION_BUS_ADDRESS"};
  testing::TemporaryFolder folder;
  std::filesystem::path tokenFile = folder.path() / "quillseal" / "token";
  PollLoop loop;
  testing::Record record;
  testing::FakeApplications applications{record};
  testing::FakeDefaults defaults{record};
  testing::FakeLog log{record};
  bool isHeld = false;
  bool isTaken = false;
  std::function<void()> meanwhile;  ///< happens before the compositor has told its latest state
  std::filesystem::path keeper = QUILLSEAL_CLIPBOARD_KEEPER_FOR_X11;
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

  // What a story remembers.
  desktop::Ticket run;
  std::string delivery;
  std::string outcome;  ///< of what was begun last
  desktop::Ticket watching;
  std::optional<testing::PrivateBus> starting;
  int presses = 0;
  int changes = 0;
};

class PortalTest : public ::testing::Test, protected Story {};

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
  script.offer.clipboard = fields.value("clipboard", script.offer.clipboard);
  script.answers = fields.value("answers", script.answers);
  script.opensSessions = fields.value("opensSessions", script.opensSessions);
  script.takenSelections = fields.value("takenSelections", script.takenSelections);
  script.owner =
      std::map<std::string, Owner>{
          {"writes", Owner::writes},      {"is replaced", Owner::isReplaced},
          {"is silent", Owner::isSilent}, {"writes too much", Owner::writesTooMuch},
          {"closes", Owner::closes},      {"gives no file", Owner::givesNoFile}}
          .at(fields.value("owner", "writes"));
  return script;
}

const std::map<std::string, Delivery> deliveries{{"delivered", Delivery::delivered},
                                                 {"declined", Delivery::declined},
                                                 {"another document", Delivery::documentChanged},
                                                 {"keys held", Delivery::keysHeld},
                                                 {"unknown target", Delivery::targetUnknown},
                                                 {"keyboard taken", Delivery::keyboardTaken},
                                                 {"not allowed", Delivery::notAllowed}};

std::string yes(bool isTrue) {
  return isTrue ? "yes" : "no";
}

/// What there is now, or the outcome of an action, by the name that a story gives it.
std::string Story::stateOf(const std::string& name) {
  const auto [verb, what] = testing::divided(name, " ");
  const auto isFetched = [this] {
    return testing::awaited<bool>(
        loop, [this](auto done) { return pasteboard->fetch([done] { done(true); }); });
  };
  if (verb == "calls") return std::to_string(std::ranges::count(desk->calls(), what));
  if (verb == "pressed") {
    const Calls keysPressed = pressed();
    return std::accumulate(keysPressed.begin(), keysPressed.end(), std::string());
  }
  if (verb == "first") return desk->calls().front();
  if (verb == "told") return told;
  if (verb == "told-something") return yes(!told.empty());
  if (verb == "delivery") return delivery;
  if (verb == "before") return std::to_string(changesBefore.value_or(-1));
  if (verb == "outcome") return outcome;
  if (verb == "open") return yes(remote->isOpen());
  if (verb == "trusted") return yes(keys->isTrusted());
  if (verb == "presses") return std::to_string(presses);
  if (verb == "held") return yes(hotkey->mayBeHeld());
  if (verb == "activation") return activation;
  if (verb == "refused") return defaults.string("HotkeyRefused").value_or("none");
  if (verb == "knows") return yes(bus->hasOwner(Portal::service) == true);
  if (verb == "off") return yes(hotkey->state().isOff);
  if (verb == "keys") return hotkey->state().otherKeys;
  if (verb == "count") return std::to_string(pasteboard->changeCount());
  if (verb == "changes") return std::to_string(changes);
  if (verb == "text") return isFetched() ? pasteboard->plainText().value_or("none") : "";
  if (verb == "html") return pasteboard->html().value_or("none");
  if (verb == "concealed") return yes(pasteboard->isConcealed());
  if (verb == "written") return yes(pasteboard->isWritten());
  if (verb == "writing") return writing();
  if (verb == "received") return desk->received();
  if (verb == "rtf")
    return testing::awaited<std::optional<std::string>>(
               loop, [this](auto done) { return pasteboard->fetchRtf(done); })
        .value_or("none");
  ADD_FAILURE() << "no story knows of " << name;
  return {};
}

void Story::act(const std::string& line) {
  const auto [verb, what] = testing::divided(line, " ");
  const auto [first, rest] = testing::divided(what, " ");
  const auto await = [this](const std::string& name, const std::string& value) {
    testing::runUntil(loop, [&] { return stateOf(name) == value; });
  };
  const auto shortcut = [this, id = first, session = rest](const char* signal) {
    desk->emit("GlobalShortcuts", signal, "osta{sv}",
               session.empty() ? ScriptedPortal::session : session.c_str(), id.c_str(),
               std::uint64_t{1}, 1, "activation_token", "s", "abc");
    settle();  // before the texts go
  };
  const auto copy = [this, formats = what](ScriptedPortal::Report report) {
    std::istringstream words(formats);
    desk->copy({std::istream_iterator<std::string>(words), {}}, report);
  };
  const auto transfer = [this](const char* session, const std::string& format) {
    desk->emit("Clipboard", "SelectionTransfer", "osu", session, format.c_str(), 7U);
    settle();
  };
  const std::map<std::string, std::function<void()>> actions{
      {"begin",
       [&] {
         const auto fields = testing::Json::parse(what);
         begin(scriptOf(fields), fields.value("stored", ""));
       }},
      {"restart",
       [&] {
         desk.reset();
         desk.emplace(scriptOf(testing::Json::parse(what)));
       }},
      {"stop", [&] { desk.reset(); }},
      {"settle", [&] { settle(); }},
      {"await",
       [&] {
         const auto [name, value] = testing::divided(what, " = ");
         await(name, value);
       }},
      {"pause",
       [&] {
         const auto end = loop.now() + std::chrono::milliseconds(std::stoi(what));
         testing::runUntil(loop, [&] { return loop.now() > end; });
       }},
      {"close", [&] { desk->emit("Session", "Closed", ""); }},
      {"forge",
       [&] {
         DesktopBus::Signal signal{.sender = nullptr,
                                   .path = ScriptedPortal::session,
                                   .interface = "org.freedesktop.portal.Session",
                                   .name = "Closed",
                                   .firstArgument = nullptr};
         forge(signal, "");
         signal.path = Portal::path;
         signal.interface = "org.freedesktop.portal.GlobalShortcuts";
         signal.name = "Activated";
         forge(signal, "osta{sv}", ScriptedPortal::session, "sign", std::uint64_t{1}, 0);
         signal.path = "/org/freedesktop/DBus";
         signal.interface = "org.freedesktop.DBus";
         signal.name = "NameOwnerChanged";
         forge(signal, "sss", Portal::service, ":1.1", "");
       }},
      {"allow", [&] { desk->allow(); }},
      {"open",
       [&] {
         outcome = "waits";
         run = remote->open([this](bool isOpen) { outcome = yes(isOpen); });
       }},
      {"press",
       [&] {
         changesBefore.reset();
         delivery = "waits";
         run = keys->press(
             {.key = Key::c, .modifiers = desktop::Modifiers::command}, {},
             [this] { changesBefore = pasteboard->changeCount(); },
             [this](Delivery result) {
               for (const auto& [name, value] : deliveries)
                 if (value == result) delivery = name;
             });
       }},
      {"withdraw", [&] { run = {}; }},
      {"ask-for-trust", [&] { keys->askForTrust(); }},
      {"quit",
       [&] {
         keys.reset();
         remote.reset();
       }},
      {"spoil", [&] { std::ofstream(tokenFile.parent_path()) << "no folder"; }},
      {"register", [&] { hotkey->registerHotkey(desktop::signingHotkey, [this] { ++presses; }); }},
      {"ask-again", [&] { hotkey->askAgain(); }},
      {"activate", [&] { shortcut("Activated"); }},
      {"deactivate", [&] { shortcut("Deactivated"); }},
      {"malformed", [&] { desk->emit("GlobalShortcuts", "Activated", "s", "sign"); }},
      {"bind",
       [&] {
         desk->emit("GlobalShortcuts", "ShortcutsChanged", "oa(sa{sv})", ScriptedPortal::session, 1,
                    "sign", 1, "trigger_description", "s", what.c_str());
         settle();
       }},
      {"observe", [&] { watching = hotkey->observe([this] { ++changes; }); }},
      {"start-later",
       [&] {
         testing::overwrite(
             folder.path() / "portal.service",
             std::string("[D-BUS Service]\nExec=/bin/sleep 5\nName=") + Portal::service + "\n");
         starting.emplace("DBUS_SESSION_BUS_ADDRESS", folder.path().string());
       }},
      {"watch", [&] { watching = pasteboard->onNextChange([this] { ++changes; }); }},
      {"copy", [&] { copy(ScriptedPortal::Report::documented); }},
      {"copy-nested", [&] { copy(ScriptedPortal::Report::nested); }},
      {"copy-malformed", [&] { copy(ScriptedPortal::Report::malformed); }},
      {"copy-own", [&] { copy(ScriptedPortal::Report::ofTheAgent); }},
      {"fetch", [&] { run = pasteboard->fetch([this] { outcome = "fetched"; }); }},
      {"write", [&] { pasteboard->write({.plainText = what, .html = {}}); }},
      {"prepare", [&] { run = pasteboard->prepareWrite([this] { outcome = "prepared"; }); }},
      {"transfer",
       [&] {
         for (int times = std::stoi(first); times > 0; --times)
           desk->emit("Clipboard", "SelectionTransfer", "osu", ScriptedPortal::session,
                      rest.c_str(), 7U);
         settle();
       }},
      {"transfer-elsewhere", [&] { transfer("/other", what); }},
      {"read",
       [&] {
         for (int times = std::stoi(first); times > 0; --times) {
           const std::string done = "calls SelectionWriteDone done";
           const int before = std::stoi(stateOf(done));
           transfer(ScriptedPortal::session, rest);
           await(done, std::to_string(before + 1));
         }
       }},
      {"stop-reading", [&] { desk->stopReading(); }}};
  actions.at(verb)();
}

using PortalKeys = PortalTest;

TEST(Portal, GoesAsTold) {
  testing::tell(testing::runningTest(), [](const auto&) { return std::make_unique<Story>(); });
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
      {"unknown", application(1, "", "a")},
      {"editor", application(1, "Utility", "a")},
      {"another document", application(1, "Utility", "b")},
      {"another window", application(2, "Utility", "a")},
      {"terminal", application(1, "TerminalEmulator", "a")}};
  const std::map<std::string, Key> letters{{"copy", Key::c}, {"paste", Key::v}, {"all", Key::a}};
  for (const auto& [target, front, key, held, expected, keysPressed] :
       testing::cases<std::string, std::string, std::string, bool, std::string, Calls>()) {
    SCOPED_TRACE(target + " " + front + " " + key);
    begin({});
    ASSERT_TRUE(open());
    applications.front = applications.active = known.at(front);
    if (key == "paste") offerBlock();
    isHeld = held;
    const auto start = loop.now();
    EXPECT_EQ(press(letters.at(key), known.at(target)), deliveries.at(expected));
    // The block has reached every program by then.
    if (!keysPressed.empty() && key == "paste") {
      EXPECT_GE(loop.now() - start, 100ms);
    }
    EXPECT_EQ(pressed(), keysPressed);
    EXPECT_EQ(changesBefore.has_value(), expected == "delivered");
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
  EXPECT_EQ(told, "");  // the agent says where the block is
  EXPECT_THAT(pressed(), IsEmpty());
}

// Clipboard ---------------------------------------------------------------------------------------

using PortalClipboard = PortalTest;

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
    desk->copy({"text/plain"}, ScriptedPortal::Report::ofTheAgent);
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
  EXPECT_THAT(record.trace, Not(Contains(HasSubstr("[inject]"))));
  ::unsetenv("DISPLAY");
  keeper = "/missing";
  begin({});
  ASSERT_TRUE(open());
  offerBlock();
  EXPECT_THAT(record.trace, Contains(HasSubstr("[inject] The clipboard cannot be kept")));
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
  EXPECT_EQ(offerOfPortal(*own, portalTimeout), PortalOffer{});
  for (const auto& row : rows) {
    const ScriptedPortal scripted(row.script);
    EXPECT_EQ(offerOfPortal(*own, portalTimeout), row.offer);
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
    const PortalOffer offer = offerOfPortal(*own, portalTimeout);
    return std::pair(offer, loop.now() - start);
  };
  // Only the start of the portal can hang here, and it would bring nothing.
  const auto [nothing, shortTime] = offerAndTime();
  EXPECT_EQ(nothing, PortalOffer{});
  EXPECT_LT(shortTime, 1s);
  EXPECT_FALSE(std::filesystem::exists(started));

  for (const std::string interface : {"RemoteDesktop", "GlobalShortcuts"}) {
    testing::overwrite(
        portals / "keys.portal",
        "[portal]\nInterfaces = a;org.freedesktop.impl.portal." + interface + ";b\nUseIn=gnome\n");
    const auto [ofStarting, startingTime] = offerAndTime();
    EXPECT_EQ(ofStarting, PortalOffer{.isSilent = true});
    EXPECT_LT(startingTime, 1500ms);
    EXPECT_TRUE(std::filesystem::exists(started));
  }

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
