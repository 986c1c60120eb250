#include <array>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <mutex>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "Cases.h"
#include "RunUntil.h"
#include "ScriptedCompositor.h"
#include "TemporaryFolder.h"
#include "core/text/Error.h"
#include "desktop/SigningHotkey.h"
#include "session/FileDescriptor.h"
#include "session/PollLoop.h"
#include "wayland/SwayHotkey.h"
#include "wayland/SwayIpc.h"
#include "wayland/SwayReports.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using namespace std::chrono_literals;
using testing::ScriptedCompositor;

constexpr desktop::KeyPress hotkey = desktop::signingHotkey;

/// A fake of sway's IPC socket, on its own thread.
class ScriptedSway {
 public:
  struct Script {
    std::string configuration{};
    bool binds = true;
    bool bindsReleases = true;
    int silences = 0;  ///< requests before the first that it answers
    std::string magic = "i3-ipc";
  };

  explicit ScriptedSway(Script script) : script_(std::move(script)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path().copy(address.sun_path, sizeof address.sun_path - 1);
    bind(listening_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(listening_.get(), 4);
    thread_ = std::thread([this] { serve(); });
  }
  ~ScriptedSway() {
    shutdown(listening_.get(), SHUT_RDWR);
    thread_.join();
  }
  ScriptedSway(const ScriptedSway&) = delete;
  ScriptedSway& operator=(const ScriptedSway&) = delete;

  [[nodiscard]] std::string path() const { return (folder_.path() / "sway").string(); }

  /// Sends an event to the subscribed program.
  void tell(const std::string& event) {
    constexpr std::uint32_t bindingEvent = 0x80000005;
    const std::lock_guard lock(mutex_);
    send(subscriber_, bindingEvent, event);
  }
  /// Ends the connection to the subscribed program.
  void leave() {
    const std::lock_guard lock(mutex_);
    shutdown(subscriber_, SHUT_RDWR);
  }
  [[nodiscard]] std::vector<std::string> commands() {
    const std::lock_guard lock(mutex_);
    return commands_;
  }

 private:
  void send(int client, std::uint32_t type, const std::string& text) const {
    const std::array<std::uint32_t, 2> numbers{static_cast<std::uint32_t>(text.size()), type};
    std::string message = script_.magic;
    message.append(reinterpret_cast<const char*>(numbers.data()), sizeof numbers).append(text);
    static_cast<void>(!::send(client, message.data(), message.size(), MSG_NOSIGNAL));
  }

  /// Each program on a thread of its own, until it leaves.
  void serve() {
    std::vector<std::jthread> programs;
    for (int client = 0; (client = accept(listening_.get(), nullptr, nullptr)) >= 0;)
      programs.emplace_back([this, socket = FileDescriptor(client)] {
        while (answer(socket.get())) {
        }
      });
  }

  bool answer(int client) {
    std::array<char, 14> header{};
    if (recv(client, header.data(), header.size(), MSG_WAITALL) <= 0) return false;
    std::array<std::uint32_t, 2> numbers{};
    std::memcpy(numbers.data(), header.data() + 6, sizeof numbers);
    std::string text(numbers[0], '\0');
    if (!text.empty()) recv(client, text.data(), text.size(), MSG_WAITALL);
    const std::lock_guard lock(mutex_);
    if (script_.silences-- > 0) return true;
    std::string reply = R"({"config": ")" + script_.configuration + R"("})";
    if (numbers[1] == 0) {
      commands_.push_back(text);
      const bool isRelease = text.find("--release") != std::string::npos;
      reply = script_.binds && (script_.bindsReleases || !isRelease) ? R"([{"success": true}])"
                                                                     : R"([{"success": false}])";
    } else if (numbers[1] == 2) {
      subscriber_ = client;
      reply = R"({"success": true})";
    }
    send(client, numbers[1], reply);
    return true;
  }

  testing::TemporaryFolder folder_;
  Script script_;
  FileDescriptor listening_{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
  std::mutex mutex_;
  int subscriber_ = -1;                // guarded by mutex_
  std::vector<std::string> commands_;  // guarded by mutex_
  std::thread thread_;
};

std::string bindingEvent(const std::string& what) {
  return R"({"change": "run", "binding": {"command": "nop quillseal )" + std::to_string(getpid()) +
         " " + what + R"("}})";
}

std::string layoutWithH(int key) {
  return "xkb_keymap { xkb_keycodes { <H> = " + std::to_string(key) +
         R"(; }; xkb_types { include "complete" }; xkb_compat { include "complete" };
             xkb_symbols { key <H> { [ h ] }; }; };)";
}

struct Agent {
  [[nodiscard]] SwayHotkey::Services services(const std::string& socket) {
    return {.loop = loop,
            .descriptors = loop,
            .connection = *connection,
            .socket = socket,
            .notify = [this](const std::string& sentence) { told += sentence; }};
  }

  PollLoop loop;
  std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
  std::string told;
};

TEST(SwayHotkeyTest, IsPressedOnceHoweverLongItIsHeld) {
  const ScriptedCompositor compositor;
  ScriptedSway sway({});
  Agent agent;
  int presses = 0;
  {
    SwayHotkey keys(agent.services(sway.path()));
    keys.registerHotkey(hotkey, [&] { ++presses; });
    const auto bound = [](const char* kind) {
      return AllOf(HasSubstr(kind), HasSubstr(" Control+Mod1+Mod4+43 nop quillseal "));
    };
    EXPECT_THAT(sway.commands(),
                ElementsAre(bound("bindcode --no-warn"), bound("bindcode --release --no-warn")));
    for (const char* event : {"pressed", "pressed", "pressed", "released", "pressed"})
      sway.tell(bindingEvent(event));
    sway.tell(R"({"change": "run", "binding": {"command": "nop quillseal 1 pressed"}})");
    for (const char* nonsense : {"", "[1]", R"({"binding": 1, "change": 2})"})
      sway.tell(nonsense);
    testing::runUntil(agent.loop, [&] { return presses == 2; });
    sway.tell(R"({"change": "reload"})");
    testing::runUntil(agent.loop, [&] { return sway.commands().size() == 4; });
  }
  EXPECT_EQ(presses, 2);
  EXPECT_THAT(sway.commands().back(), HasSubstr("unbindcode --release"));
}

TEST(SwayHotkeyTest, EndsWithSway) {
  ScriptedCompositor compositor({.layout = layoutWithH(43)});
  ScriptedSway sway({});
  Agent agent;
  agent.connection->serve(agent.loop, agent.loop);
  SwayHotkey keys(agent.services(sway.path()));
  keys.registerHotkey(hotkey, [] {});
  sway.leave();
  const desktop::Ticket change =
      agent.loop.after(100ms, [&] { compositor.setLayout(layoutWithH(44)); });
  const desktop::Ticket end = agent.loop.after(200ms, [&] { agent.loop.stop(); });
  const std::clock_t before = std::clock();
  agent.loop.run();
  EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 20);  // nobody reads again and again
  EXPECT_TRUE(keys.state().isOff);
  int presses = 0;
  keys.registerHotkey(hotkey, [&] { ++presses; });
  EXPECT_FALSE(keys.state().isOff);
  sway.tell(bindingEvent("pressed"));
  testing::runUntil(agent.loop, [&] { return presses == 1; });
}

TEST(SwayHotkeyTest, FollowsTheLayout) {
  ScriptedCompositor compositor({.layout = layoutWithH(43)});
  ScriptedSway sway({});
  Agent agent;
  agent.connection->serve(agent.loop, agent.loop);
  SwayHotkey keys(agent.services(sway.path()));
  keys.registerHotkey(hotkey, [] {});
  compositor.setLayout(layoutWithH(44));
  testing::runUntil(agent.loop, [&] { return sway.commands().size() == 6; });
  const std::vector<std::string> commands = sway.commands();
  const auto says = [](const char* start, const char* key) {
    return AllOf(::testing::StartsWith(start), HasSubstr(key));
  };
  EXPECT_THAT(std::vector(commands.begin() + 2, commands.end()),
              ElementsAre(says("unbindcode --no", "+43"), says("unbindcode --release", "+43"),
                          says("bindcode --no", "+44 nop"), says("bindcode --release", "+44 nop")));
}

TEST(SwayHotkeyTest, SaysWhyThereIsNone) {
  const ScriptedCompositor compositor;
  const std::pair<ScriptedSway::Script, const char*> rows[] = {
      {{.configuration = "bindsym Ctrl+Alt+Super+h exec x"}, "configuration already uses"},
      {{.binds = false}, "Sway does not bind Ctrl+Alt+Super+H"},
      {{.silences = 9}, "Sway does not bind"},
      {{}, "gives programs no hotkey"}};
  for (const auto& [script, part] : rows) {
    const ScriptedSway sway(script);
    Agent agent;
    const bool isSway = &script != &rows[3].first;
    SwayHotkey keys(agent.services(isSway ? sway.path() : ""));
    EXPECT_THAT(
        [&] { keys.registerHotkey(hotkey, [] {}); },
        ::testing::ThrowsMessage<Error>(AllOf(HasSubstr(part), HasSubstr("quillseal --sign"))));
    EXPECT_TRUE(keys.state().isOff);
    keys.askAgain();
    EXPECT_THAT(agent.told, HasSubstr(part));
    EXPECT_TRUE(keys.state().isOff);
  }
}

TEST(SwayHotkeyTest, LeavesNothingBoundAfterItWasRefused) {
  ScriptedCompositor compositor({.layout = layoutWithH(43)});
  ScriptedSway sway({.configuration = "bindsym Ctrl+Alt+Super+h exec x"});
  ScriptedSway halfWilling({.bindsReleases = false});
  Agent agent;
  for (ScriptedSway* refusing : {&sway, &halfWilling}) {
    SwayHotkey keys(agent.services(refusing->path()));
    EXPECT_THROW(keys.registerHotkey(hotkey, [] {}), Error);
    const auto atOnce = refusing->commands();
    compositor.setLayout(layoutWithH(refusing == &sway ? 44 : 45));
    EXPECT_TRUE(agent.connection->roundTrip());
    const desktop::Ticket end = agent.loop.after(50ms, [&] { agent.loop.stop(); });
    agent.loop.run();
    EXPECT_EQ(refusing->commands(), atOnce);
  }
  EXPECT_THAT(sway.commands(), IsEmpty());
  EXPECT_THAT(halfWilling.commands().back(), HasSubstr("unbindcode --release"));
}

TEST(SwayIpcTest, AsksAgainAfterAnAnswerThatDidNotCome) {
  const ScriptedSway sway({.silences = 1});
  const auto ipc = SwayIpc::open(sway.path());
  EXPECT_FALSE(ipc->ask(SwayIpc::Request::getTree, ""));
  EXPECT_TRUE(ipc->ask(SwayIpc::Request::getTree, ""));
}

TEST(SwayIpcTest, TakesNoAnswerOfAnotherProtocol) {
  const ScriptedSway other({.magic = "i4-ipc"});
  EXPECT_FALSE(SwayIpc::open(other.path())->ask(SwayIpc::Request::getTree, ""));
}

TEST(SwayTree, NamesTheApplicationOfATitle) {
  for (const auto& [tree, title, id, process] :
       testing::cases<nlohmann::json, std::string, std::string, std::uint32_t>())
    EXPECT_EQ(applicationIn(tree.dump(), title).value_or(SwayApplication{.id = "none"}),
              (SwayApplication{.id = id, .process = process}))
        << title;
  for (const char* text : {"", "[]", "{\"nodes\": 1}", "{"})
    EXPECT_EQ(applicationIn(text, ""), std::nullopt);
}

TEST(SwayConfiguration, IsSearchedForTheKeys) {
  for (const auto& [text, binds] : testing::cases<std::string, bool>())
    EXPECT_EQ(bindsAlready(text, {.symbol = "h", .code = 43}), binds) << text;
}

}  // namespace
}  // namespace quillseal::linux
