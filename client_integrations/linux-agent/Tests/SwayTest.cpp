#include <array>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "RunUntil.h"
#include "ScriptedCompositor.h"
#include "TemporaryFolder.h"
#include "core/text/Error.h"
#include "desktop/SigningHotkey.h"
#include "session/PollLoop.h"
#include "wayland/SwayHotkey.h"
#include "wayland/SwayIpc.h"
#include "wayland/WaylandConnection.h"

namespace quillseal::linux {
namespace {

using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::ScriptedCompositor;

constexpr desktop::KeyPress hotkey = desktop::signingHotkey;

/// A fake of sway's IPC socket, on its own thread.
class ScriptedSway {
 public:
  struct Script {
    std::string configuration{};
    bool binds = true;
    bool bindsReleases = true;
    bool answers = true;
  };

  explicit ScriptedSway(Script script) : script_(std::move(script)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path().copy(address.sun_path, sizeof address.sun_path - 1);
    bind(listening_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(listening_, 4);
    thread_ = std::thread([this] { serve(); });
  }
  ~ScriptedSway() {
    shutdown(listening_, SHUT_RDWR);
    thread_.join();
    for (const int client : clients_)
      close(client);
    close(listening_);
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
  [[nodiscard]] std::vector<std::string> commands() {
    const std::lock_guard lock(mutex_);
    return commands_;
  }

 private:
  static void send(int client, std::uint32_t type, const std::string& text) {
    std::string message = "i3-ipc";
    for (const std::uint32_t number : {static_cast<std::uint32_t>(text.size()), type}) {
      std::array<char, sizeof number> bytes{};
      std::memcpy(bytes.data(), &number, sizeof number);
      message.append(bytes.data(), bytes.size());
    }
    message += text;
    static_cast<void>(!::send(client, message.data(), message.size(), MSG_NOSIGNAL));
  }

  void serve() {
    while (true) {
      std::vector<pollfd> files = {{.fd = listening_, .events = POLLIN, .revents = 0}};
      for (const int client : clients_)
        files.push_back({.fd = client, .events = POLLIN, .revents = 0});
      poll(files.data(), files.size(), -1);
      if (files.front().revents != 0) {
        const int client = accept(listening_, nullptr, nullptr);
        if (client < 0) return;
        clients_.push_back(client);
      }
      for (std::size_t i = 1; i < files.size(); ++i)
        if (files[i].revents != 0) answer(files[i].fd);
    }
  }

  void answer(int client) {
    std::array<char, 14> header{};
    if (recv(client, header.data(), header.size(), MSG_WAITALL) <= 0) {
      std::erase(clients_, client);
      close(client);
      return;
    }
    std::array<std::uint32_t, 2> numbers{};
    std::memcpy(numbers.data(), header.data() + 6, sizeof numbers);
    std::string text(numbers[0], '\0');
    if (!text.empty()) recv(client, text.data(), text.size(), MSG_WAITALL);
    const std::lock_guard lock(mutex_);
    if (!script_.answers) return;
    switch (numbers[1]) {
      case 0:
        commands_.push_back(text);
        return send(
            client, 0,
            script_.binds && (script_.bindsReleases || text.find("--release") == std::string::npos)
                ? R"([{"success": true}])"
                : R"([{"success": false}])");
      case 2:
        subscriber_ = client;
        return send(client, 2, R"({"success": true})");
      default:
        return send(client, numbers[1], R"({"config": ")" + script_.configuration + R"("})");
    }
  }

  testing::TemporaryFolder folder_;
  Script script_;
  int listening_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  std::vector<int> clients_;  // of the thread
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
    return {.loop = loop, .descriptors = loop, .connection = *connection, .socket = socket};
  }

  PollLoop loop;
  std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
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
  for (const auto& [number, start, key] : {std::tuple{2, "unbindcode --no", "+43"},
                                           {3, "unbindcode --release", "+43"},
                                           {4, "bindcode --no", "+44 nop"},
                                           {5, "bindcode --release", "+44 nop"}})
    EXPECT_THAT(commands[static_cast<std::size_t>(number)],
                AllOf(::testing::StartsWith(start), HasSubstr(key)));
}

TEST(SwayHotkeyTest, SaysWhyThereIsNone) {
  const ScriptedCompositor compositor;
  const struct {
    ScriptedSway::Script script;
    bool isSway;
    const char* part;
  } rows[] = {
      {{}, false, "gives programs no hotkey"},
      {{.configuration = "bindsym Ctrl+Alt+Super+h exec x"}, true, "configuration already uses"},
      {{.binds = false}, true, "Sway does not bind Ctrl+Alt+Super+H"},
      {{.answers = false}, true, "Sway does not bind"}};
  for (const auto& row : rows) {
    ScriptedSway sway(row.script);
    Agent agent;
    SwayHotkey keys(agent.services(row.isSway ? sway.path() : ""));
    try {
      keys.registerHotkey(hotkey, [] {});
      ADD_FAILURE() << row.part;
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), AllOf(HasSubstr(row.part), HasSubstr("quillseal --sign")));
    }
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

TEST(SwayTree, NamesTheApplicationOfATitle) {
  const std::string tree = R"({"type": "root", "name": "root", "nodes": [
      {"type": "output", "name": "letter", "nodes": [{"type": "workspace", "nodes": [
        {"pid": 1, "name": "letter", "app_id": "writer"},
        {"pid": 2, "name": "twice", "app_id": "editor"}],
       "floating_nodes": [
        {"pid": 3, "name": "twice", "app_id": "chat"},
        {"pid": 4, "name": null, "app_id": "untitled"},
        {"pid": 5, "name": "old", "app_id": null, "window_properties": {"class": "XTerm"}}]}]}]})";
  EXPECT_EQ(applicationIdIn(tree, "letter"), "writer");
  EXPECT_EQ(applicationIdIn(tree, "old"), "XTerm");
  EXPECT_EQ(applicationIdIn(tree, "twice"), std::nullopt);
  EXPECT_EQ(applicationIdIn(tree, "none"), std::nullopt);
  for (const char* text : {"", "[]", "{\"nodes\": 1}", "{"})
    EXPECT_EQ(applicationIdIn(text, ""), std::nullopt);
}

TEST(SwayConfiguration, IsSearchedForTheKeys) {
  const struct {
    const char* text;
    bool binds;
  } rows[] = {
      {"", false},
      {"bindsym Ctrl+Alt+Super+h exec x", true},
      {"  bindsym --to-code --release Mod4+control+Mod1+H exec x", true},
      {"set $mod Mod4\nset $moder Shift\nbindsym $mod+Ctrl+Mod1+h nop", true},
      {"set $moder Mod4\nset $mod Shift\nbindsym $moder+Ctrl+Mod1+h nop", true},
      {"bindcode Logo+Ctrl+Alt+43 nop", true},
      {"bindsym {\n  Ctrl+Alt+Super+h nop\n}", true},
      {"bindsym \\\n  Ctrl+Alt+Super+h nop", true},
      {"# bindsym Ctrl+Alt+Super+h nop", false},
      {"bindsym Ctrl+Alt+Super+j nop", false},
      {"bindsym Ctrl+Alt+h nop", false},
      {"bindsym Shift+Ctrl+Alt+Super+h nop", false},
      {"mode \"resize\" {\n  bindsym Ctrl+Alt+Super+h nop\n}", false},
      {"mode \"resize\" {\n  bindsym x nop\n}\nbindsym Ctrl+Alt+Super+h nop", true},
      {"bindsym", false},
      {"}\n}\nbindsym --", false},
  };
  for (const auto& row : rows)
    EXPECT_EQ(bindsAlready(row.text, {.symbol = "h", .code = 43}), row.binds) << row.text;
}

}  // namespace
}  // namespace quillseal::linux
