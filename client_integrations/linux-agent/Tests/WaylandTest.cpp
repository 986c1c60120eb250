#include <chrono>
#include <csignal>
#include <optional>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "Cases.h"
#include "KeymapText.h"
#include "PrivateBus.h"
#include "RunUntil.h"
#include "ScriptedCompositor.h"
#include "core/text/Error.h"
#include "core/text/UnicodeText.h"
#include "session/PollLoop.h"
#include "wayland/KeyboardFactory.h"
#include "wayland/WaylandApplications.h"
#include "wayland/WaylandConnection.h"
#include "wayland/WaylandConnector.h"
#include "wayland/WaylandKeyEvents.h"
#include "wayland/WaylandLayout.h"
#include "wayland/WaylandPasteboard.h"
#include "wayland/WaylandReach.h"
#include "wayland/WaylandWindows.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using namespace std::chrono_literals;
using desktop::Delivery;
using desktop::Key;
using desktop::Modifiers;
using testing::Offered;
using testing::ScriptedCompositor;

constexpr desktop::KeyPress copyKeys{.key = Key::c, .modifiers = Modifiers::command};
constexpr desktop::KeyPress pasteKeys{.key = Key::v, .modifiers = Modifiers::command};
constexpr desktop::KeyPress selectAllKeys{.key = Key::a, .modifiers = Modifiers::command};

/// The only installed application is a terminal.
class Entries : public DesktopEntries {
 public:
  std::optional<DesktopEntry> forWindow(const WindowTraits& traits) override {
    if (traits.windowClass != "foot") return std::nullopt;
    return DesktopEntry{.id = "foot",
                        .name = "Foot",
                        .categories = "System;TerminalEmulator;",
                        .executable = "foot",
                        .snap = {},
                        .seesOurFiles = true};
  }
  std::optional<DesktopEntry> withId(std::string_view) override { return std::nullopt; }
  std::optional<DesktopEntry> defaultFor(const std::string&) override { return std::nullopt; }
  bool open(const std::string&, std::string_view) override { return false; }
};

/// A keyboard whose desktop takes its time to answer.
struct SlowKeyboard : AgentKeyboard {
  explicit SlowKeyboard(std::unique_ptr<AgentKeyboard> made) : its(std::move(made)) {}
  [[nodiscard]] bool isUsable() const override { return its->isUsable(); }
  void prepare() override {
    its->prepare();
    if (const auto once = std::exchange(meanwhile, nullptr)) once();
  }
  [[nodiscard]] bool reachesActiveWindow() const override { return its->reachesActiveWindow(); }
  void releaseHeldKeys() override {
    its->releaseHeldKeys();
    if (const auto once = std::exchange(atRelease, nullptr)) once();
  }
  void tap(std::span<const Keysym> chord) override { its->tap(chord); }

  std::unique_ptr<AgentKeyboard> its;
  std::function<void()> meanwhile;
  std::function<void()> atRelease;
};

constexpr std::size_t largest = 200'000;

/// The agent's objects, connected to a compositor.
struct Agent {
  explicit Agent(std::filesystem::path keeper = QUILLSEAL_CLIPBOARD_KEEPER, bool hasBus = true)
      : connection(WaylandConnection::open()),
        windows(*connection, "quillseal"),
        pasteboard(
            {.loop = loop, .descriptors = loop, .connection = *connection, .windows = windows},
            ClipboardKeeper({std::move(keeper)}),
            {.silence = 300ms, .transfer = 2000ms, .largest = largest}),
        applications({.windows = windows, .entries = entries, .loop = loop}, nullptr),
        keyboard(makeKeyboard(*connection, hasBus ? bus.get() : nullptr)),
        keys({.loop = loop,
              .connection = *connection,
              .windows = windows,
              .pasteboard = pasteboard,
              .keyboard = keyboard,
              .showLimits = [this] { ++explanations; }}) {
    connection->serve(loop, loop);
    catchUp();
  }

  /// Waits until all events have arrived. KWin describes a window only on request.
  void catchUp() {
    for (int round = 0; round < 2; ++round)
      testing::awaited<bool>(
          loop, [this](auto done) { return connection->catchUp([done] { done(true); }); });
  }

  void fetch() {
    testing::awaited<bool>(loop,
                           [this](auto done) { return pasteboard.fetch([done] { done(true); }); });
  }

  std::optional<std::string> rtf() {
    return testing::awaited<std::optional<std::string>>(
        loop, [this](auto done) { return pasteboard.fetchRtf(done); });
  }

  std::optional<std::string> plainText() {
    catchUp();
    fetch();
    return pasteboard.plainText();
  }

  Delivery press(desktop::KeyPress keyPress,
                 const std::optional<desktop::RunningApplication>& target) {
    const auto delivery = testing::awaited<Delivery>(loop, [&](auto done) {
      return keys.press(
          keyPress, target, [this] { ++pressesAnnounced; }, done);
    });
    catchUp();
    return delivery;
  }

  PollLoop loop;
  Entries entries;
  std::unique_ptr<WaylandConnection> connection;
  WaylandWindows windows;
  WaylandPasteboard pasteboard;
  WaylandApplications applications;
  // KWin says there whether the screen is locked.
  testing::PrivateBus sessionBus{"DBUS_SESSION_BUS_ADDRESS"};
  std::unique_ptr<DesktopBus> bus = DesktopBus::open();
  SlowKeyboard keyboard;
  WaylandKeyEvents keys;
  int pressesAnnounced = 0;
  int explanations = 0;
};

const std::string utf8Text = "text/plain;charset=utf-8";

class EitherDesktop : public ::testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Compositors, EitherDesktop, ::testing::Bool(),
                         [](const auto& isKwin) { return isKwin.param ? "Kwin" : "Wlroots"; });

// Choice ------------------------------------------------------------------------------------------

TEST(WaylandReach, TakesWhatHasClipboardKeysAndWindows) {
  const struct {
    ScriptedCompositor::Traits traits;
    bool isEnough;
  } rows[] = {{{}, true},
              {{.dataControl = "ext_data_control_manager_v1"}, true},
              {{.dataControl = ""}, false},
              {{.hasKeyboards = false}, false},
              {{.namesWindows = false}, false},
              {{.isKwin = true}, true},
              {{.isKwin = true, .hasKeyboards = false}, false},
              {{.isKwin = true, .fakeInputVersion = 5}, false},  // what is held stays held
              {{.isKwin = true, .namesWindows = false}, false}};
  for (const auto& row : rows) {
    const ScriptedCompositor compositor(row.traits);
    EXPECT_EQ(reachesApplications(*WaylandConnection::open()), row.isEnough);
  }
}

TEST(WaylandReach, IsNoneWhereNobodyTellsWhetherTheScreenIsLocked) {
  const ScriptedCompositor compositor({.isKwin = true});
  Agent agent(QUILLSEAL_CLIPBOARD_KEEPER, false);
  EXPECT_FALSE(agent.keys.isTrusted());
  EXPECT_EQ(agent.press(copyKeys, {}), Delivery::notAllowed);
  EXPECT_EQ(agent.explanations, 1);
  EXPECT_EQ(agent.pressesAnnounced, 0);
}

TEST(WaylandReach, EndsWithTheCompositor) {
  std::optional<ScriptedCompositor> compositor(std::in_place);
  Agent agent;
  compositor->open({.applicationId = "editor", .title = "letter"});
  agent.catchUp();
  const auto front = agent.applications.frontmost();
  bool hasEnded = false;
  agent.connection->onEnd([&] { hasEnded = true; });
  compositor.reset();
  testing::runUntil(agent.loop, [&] { return hasEnded; });
  EXPECT_FALSE(agent.keys.isTrusted());
  EXPECT_EQ(agent.press(pasteKeys, front), Delivery::notAllowed);
  EXPECT_EQ(agent.explanations, 0);  // the agent says where the block is
  EXPECT_EQ(agent.press(copyKeys, front), Delivery::notAllowed);
  EXPECT_EQ(agent.explanations, 1);
  EXPECT_EQ(agent.plainText(), std::nullopt);
  EXPECT_THROW(agent.pasteboard.write({.plainText = "x", .html = "x"}), Error);
}

TEST(WaylandConnection, TellsThatItHasCaughtUpAlsoWhereARoundTripReadTheAnswer) {
  const ScriptedCompositor compositor;
  Agent agent;
  bool isTold = false;
  const desktop::Ticket waiting = agent.connection->catchUp([&] { isTold = true; });
  EXPECT_TRUE(agent.connection->roundTrip());
  EXPECT_FALSE(isTold) << "not inside of the round trip";
  testing::runUntil(agent.loop, [&] { return isTold; });
}

TEST(WaylandReach, WaitsForNoCompositorThatHangs) {
  ScriptedCompositor compositor;
  compositor.hang();
  EXPECT_EQ(WaylandConnection::open(), nullptr);
}

TEST(WaylandConnector, ConnectsAndEnds) {
  const auto hasEnded = [] { return waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD; };
  ScriptedCompositor compositor({.isKwin = true});
  EXPECT_EQ(WaylandConnector::open({"/nowhere"}), nullptr);
  const auto connection = WaylandConnector::open({"/nowhere", QUILLSEAL_WAYLAND_CONNECTOR});
  ASSERT_NE(connection, nullptr);
  EXPECT_TRUE(reachesApplications(*connection) && connection->roundTrip());
  EXPECT_TRUE(hasEnded());
  compositor.hang();
  EXPECT_EQ(WaylandConnector::open({QUILLSEAL_WAYLAND_CONNECTOR}), nullptr);
  EXPECT_TRUE(hasEnded());
  setenv("WAYLAND_DISPLAY", "none", 1);
  EXPECT_EQ(WaylandConnector::open({QUILLSEAL_WAYLAND_CONNECTOR}), nullptr);
  EXPECT_TRUE(hasEnded());
}

// Clipboard ---------------------------------------------------------------------------------------

TEST(WaylandPasteboard, ReadsTheFormatsThatProgramsUse) {
  ScriptedCompositor compositor;
  Agent agent;
  for (const auto& [formats, plain, html, rtf] :
       testing::cases<testing::Json, std::string, std::string, std::string>()) {
    SCOPED_TRACE(formats.dump());
    Offered offered;
    for (const auto& [format, text] : formats.get<std::map<std::string, std::string>>()) {
      std::string& bytes = offered.formats[format];
      for (std::size_t at = 0; at < text.size();)
        bytes += static_cast<char>(unicode::nextScalar(text, at));
    }
    compositor.offer(ScriptedCompositor::clipboard, offered);
    EXPECT_EQ(agent.plainText().value_or("none"), plain);
    EXPECT_EQ(agent.pasteboard.html().value_or("none"), html);
    EXPECT_EQ(agent.rtf().value_or("none"), rtf);
  }
}

TEST(WaylandPasteboard, ThrowsUnlessTheBlockIsReallyOffered) {
  const desktop::PasteboardContent block{.plainText = "block", .html = "<p>block</p>"};
  {
    ScriptedCompositor compositor({.takesSelections = false});
    EXPECT_THROW(Agent().pasteboard.write(block), Error);
  }
  ScriptedCompositor compositor;
  EXPECT_THROW(Agent("/nowhere/quillseal-clipboard-keeper").pasteboard.write(block), Error);
  EXPECT_THROW(Agent("/bin/false").pasteboard.write(block), Error);
  const auto former = std::signal(SIGCHLD, SIG_IGN);  // the exit status of children is lost
  EXPECT_THROW(Agent("/bin/false").pasteboard.write(block), Error);
  static_cast<void>(std::signal(SIGCHLD, former));
  EXPECT_EQ(compositor.pasted(utf8Text), "");
}

TEST(WaylandPasteboard, WritesAlthoughSignalsArrive) {
  ScriptedCompositor compositor;
  Agent agent;
  const auto former = std::signal(SIGALRM, [](int) {});
  constexpr timeval millisecond{.tv_sec = 0, .tv_usec = 1000};
  const itimerval often{.it_interval = millisecond, .it_value = millisecond};
  setitimer(ITIMER_REAL, &often, nullptr);
  EXPECT_NO_THROW(agent.pasteboard.write({.plainText = "block", .html = "<p>block</p>"}));
  constexpr itimerval never{};
  setitimer(ITIMER_REAL, &never, nullptr);
  static_cast<void>(std::signal(SIGALRM, former));
  EXPECT_EQ(compositor.pasted(utf8Text), "block");
  compositor.offer(ScriptedCompositor::clipboard, Offered());  // and the keeper ends
}

TEST(KeptContent, IsReadOnlyAsItWasWritten) {
  const desktop::PasteboardContent content{.plainText = "7\nlines", .html = "<p>"};
  const auto read = KeptContent::read(KeptContent::written(content));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->plainText, content.plainText);
  EXPECT_EQ(read->html, content.html);
  for (const char* text :
       {"", "4", "x\n", "4\nabc", "4abcdefg", "-1\nabc", "99999999999999999999\nabc"})
    EXPECT_EQ(KeptContent::read(text), std::nullopt) << text;
}

// Stories -----------------------------------------------------------------------------------------

/// "ANSWER FORMAT TEXT | FORMAT TEXT".
Offered offered(const std::string& words) {
  static const std::set<std::string> answers{"all",        "nothing", "part",
                                             "thenLeaves", "endless", "onlyOnce"};
  auto [answer, left] = testing::divided(words, " ");
  if (!answers.contains(answer)) ADD_FAILURE() << "no program answers so: " << answer;
  Offered made{.formats = {}, .answer = answer};
  while (!left.empty()) {
    const auto [one, others] = testing::divided(left, " | ");
    const auto [format, text] = testing::divided(one, " ");
    made.formats[format == "utf8" ? utf8Text : format] = text;
    left = others;
  }
  return made;
}

std::string joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts)
    all += (all.empty() ? "" : " ") + part;
  return all.empty() ? "none" : all;
}

/// A compositor, the agent and what a story remembers.
struct Story {
  Story(bool isKwin, const std::string& dataControl)
      : compositor({.isKwin = isKwin, .dataControl = dataControl}) {}

  std::string stateOf(const std::string& name);
  void act(const std::string& line);
  void doNow(const std::string& line);
  void press(const std::string& keys, const std::string& outcome);

  ScriptedCompositor compositor;
  std::optional<Agent> agent{std::in_place};
  std::optional<desktop::RunningApplication> target;
  bool isFetched = true;
  desktop::Ticket fetching;
  int changesTold = 0;
  desktop::Ticket watching;
  desktop::Ticket browsing;
};

/// What there is now, by the name that a story gives it.
std::string Story::stateOf(const std::string& name) {
  Agent& its = *agent;
  if (name == "keys") return joined(compositor.keys());
  if (name == "asked") return joined(compositor.asked());
  if (name == "presses") return std::to_string(its.pressesAnnounced);
  if (name == "changes") return std::to_string(its.pasteboard.changeCount());
  if (name == "concealed") return its.pasteboard.isConcealed() ? "yes" : "no";
  if (name == "html") return its.pasteboard.html().value_or("none");
  if (name == "rtf") return its.rtf().value_or("none");
  if (name == "window") {
    const auto active = its.windows.active();
    return active ? active->applicationId + " " + active->title : "none";
  }
  if (name == "front") {
    const auto front = its.applications.frontmost();
    if (!front) return "none";
    const bool isActive = its.applications.isActive(*front);
    return front->name.value_or("?") + (isActive ? "" : ", behind");
  }
  if (name == "told") return std::to_string(changesTold);
  if (name == "trusted") return its.keys.isTrusted() ? "yes" : "no";
  if (name.starts_with("pasted ")) return compositor.pasted(name.substr(7));
  if (name != "text") ADD_FAILURE() << "no story knows of " << name;
  if (isFetched) its.fetch();
  testing::runUntil(its.loop, [&] { return isFetched; });
  return its.pasteboard.plainText().value_or("none");
}

void Story::press(const std::string& keys, const std::string& outcome) {
  const std::map<std::string, desktop::KeyPress> presses{{"copy", copyKeys},
                                                         {"paste", pasteKeys},
                                                         {"select all", selectAllKeys},
                                                         {"nowhere", pasteKeys}};
  const std::map<std::string, Delivery> outcomes{
      {"delivered", Delivery::delivered},          {"declined", Delivery::declined},
      {"keyboard taken", Delivery::keyboardTaken}, {"another document", Delivery::documentChanged},
      {"not written", Delivery::notWritten},       {"closed", Delivery::targetClosed}};
  EXPECT_EQ(agent->press(presses.at(keys), keys == "nowhere" ? std::nullopt : target),
            outcomes.at(outcome));
}

void Story::act(const std::string& line) {
  const auto [verb, what] = testing::divided(line, " ");
  if (verb == "unseen") return doNow(what);
  doNow(line);
  agent->catchUp();
  agent->catchUp();
}

void Story::doNow(const std::string& line) {
  const auto [verb, what] = testing::divided(line, " ");
  const auto [first, rest] = testing::divided(what, " ");
  const auto window = [&, number = first] { return std::stoul(number); };
  const auto offer = [&, words = what](ScriptedCompositor::Kind kind) {
    compositor.offer(kind, offered(words));
  };
  const std::map<std::string, std::function<void()>> actions{
      {"open", [&] { compositor.open({.applicationId = first, .title = rest}); }},
      {"close", [&] { compositor.close(window()); }},
      {"activate", [&] { compositor.makeActive(window()); }},
      {"retitle", [&] { compositor.retitle(window(), rest); }},
      {"withdraw", [&] { compositor.withdraw(what); }},
      {"copy", [&] { offer(ScriptedCompositor::clipboard); }},
      {"select", [&] { offer(ScriptedCompositor::primary); }},
      {"clear", [&] { compositor.offer(ScriptedCompositor::clipboard, std::nullopt); }},
      {"start", [&] { agent.emplace(); }},
      {"raise", [&] { agent->windows.activateOwn(what); }},
      {"return", [&] { agent->applications.activate(agent->applications.frontmost().value()); }},
      {"browse",
       [&] {
         browsing = agent->applications.open("https://a.example", {what, {}}, [](auto) {});
       }},
      {"write", [&] { agent->pasteboard.write({.plainText = first, .html = rest}); }},
      {"target",
       [&] {
         target = agent->applications.frontmost();
         target->categories += what;
       }},
      {"meanwhile", [&] { agent->keyboard.meanwhile = [this, what = what] { doNow(what); }; }},
      {"at-release", [&] { agent->keyboard.atRelease = [this, what = what] { doNow(what); }; }},
      {"fetch",
       [&] {
         isFetched = false;
         fetching = agent->pasteboard.fetch([this] { isFetched = true; });
       }},
      {"await", [&] { testing::runUntil(agent->loop, [&] { return stateOf(first) == rest; }); }},
      {"watch", [&] { watching = agent->pasteboard.onNextChange([this] { ++changesTold; }); }},
      {"press", [&] {
         const auto [keys, outcome] = testing::divided(what, ": ");
         press(keys, outcome);
       }}};
  actions.at(verb)();
}

TEST_P(EitherDesktop, GoesAsTold) {
  testing::tell("EitherDesktop.GoesAsTold", [](const std::string& title) {
    if (title.starts_with(GetParam() ? "[wlroots: " : "[KWin: ")) return std::unique_ptr<Story>();
    auto [name, protocol] = testing::divided(title, " by ");
    protocol =
        protocol.empty() ? "zwlr_data_control_manager_v1" : protocol.substr(0, protocol.find(']'));
    return std::make_unique<Story>(GetParam(), protocol);
  });
}

// Layout -----------------------------------------------------------------------------------------

TEST(WaylandLayout, FindsTheKeyInEachOfThePersonsLayouts) {
  const std::string_view name = "English (US)";
  std::string ofTheAgent = testing::keymapText("us");
  ofTheAgent.replace(ofTheAgent.find(name), name.size(), "Quillseal");
  for (const auto& [names, key] : testing::cases<std::string, std::uint32_t>()) {
    const std::string text = names == "agent" ? ofTheAgent : testing::keymapText(names.c_str());
    const ScriptedCompositor compositor({.layout = names.empty() ? names : text});
    const auto connection = WaylandConnection::open();
    const WaylandLayout layout(*connection, [] {});
    EXPECT_TRUE(connection->roundTrip() && connection->roundTrip());
    EXPECT_EQ(layout.keyFor(XKB_KEY_h).value_or(0), key) << names;
  }
}

}  // namespace
}  // namespace quillseal::linux
