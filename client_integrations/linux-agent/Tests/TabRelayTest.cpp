#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <thread>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "Cases.h"
#include "Programs.h"
#include "TemporaryFolder.h"
#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"
#include "core/text/UnicodeText.h"
#include "session/PrivateFolder.h"

namespace quillseal::linux {
namespace {

using testing::eventually;
using testing::TemporaryFolder;

constexpr int timeout = 10'000;  // milliseconds

bool isReadable(const FileDescriptor& descriptor, int milliseconds = timeout) {
  pollfd state{.fd = descriptor.get(), .events = POLLIN, .revents = 0};
  return ::poll(&state, 1, milliseconds) == 1;
}

/// Reads one message; nothing when the other end has closed.
std::optional<std::string> messageFrom(const FileDescriptor& descriptor) {
  TabMessages::Deframer deframer;
  while (isReadable(descriptor)) {
    const std::string bytes = TabSocket::receive(descriptor);
    if (bytes.empty()) return std::nullopt;
    deframer.append(bytes);
    if (auto message = deframer.next()) return message;
  }
  ADD_FAILURE() << "nothing has come";
  return std::nullopt;
}

/// The relay as a browser runs it.
struct Relay {
  explicit Relay(std::vector<std::string> arguments) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
      throw std::runtime_error("socketpair");
    browser = FileDescriptor(ends[0]);
    const FileDescriptor its(ends[1]);
    program.emplace(Spawn{.file = QUILLSEAL_TAB_RELAY,
                          .arguments = std::move(arguments),
                          .input = its.get(),
                          .output = its.get()});
  }

  /// Waits until the relay has found no agent and watches the folder.
  void awaitWatching() const {
    const std::string descriptors = "/proc/" + std::to_string(program->process) + "/fdinfo";
    EXPECT_TRUE(eventually([&] {
      std::error_code gone;
      return std::ranges::any_of(
          std::filesystem::directory_iterator(descriptors, gone), [](const auto& file) {
            return testing::contentsOf(file.path()).find("inotify wd:") != std::string::npos;
          });
    }));
  }

  /// Returns the exit status; 128 and more for a signal, -1 when it does not end.
  int status() {
    int state = 0;
    if (!eventually([&] { return ::waitpid(program->process, &state, WNOHANG) != 0; })) return -1;
    program->process = 0;
    return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
  }

  FileDescriptor browser;
  std::optional<testing::Program> program;
};

const std::string request = R"({"id":1,"operation":"currentTab"})";
const std::string answer = R"({"id":1,"operation":"currentTab","tab":4,"focusedAt":9})";
const std::vector<std::string> chromiumCall = {"chrome-extension://" QUILLSEAL_CHROMIUM_EXTENSION
                                               "/"};

TEST(TabMessages, ArePassedOnOrRefused) {
  for (const auto& [kind, message, isOne] : testing::cases<std::string, std::string, bool>()) {
    const auto read = [&] {
      return kind == "request" ? written(TabMessages::readRequest(message))
                               : written(TabMessages::readAnswer(message));
    };
    if (isOne) {
      EXPECT_EQ(read(), message);
    } else {
      EXPECT_THROW(read(), TabMessages::ProtocolError) << message;
    }
  }
  EXPECT_EQ(TabMessages::readGreeting(written(TabMessages::Greeting{"chromium"})).program,
            "chromium");
  EXPECT_EQ(written(TabMessages::Greeting{"\xff"}), "{\"program\":\"\uFFFD\"}");
  EXPECT_THROW((void)TabMessages::framed(std::string(TabMessages::longestMessage + 1, 'x')),
               TabMessages::ProtocolError);
  EXPECT_THROW((void)TabMessages::readGreeting(R"({"program":null})"), TabMessages::ProtocolError);
}

class TabRelayTest : public ::testing::Test {
 protected:
  TabRelayTest() { ::setenv("XDG_RUNTIME_DIR", runtime_.path().c_str(), 1); }

  /// A relay that has connected to the agent and sent its greeting.
  void connect() {
    listening_.reset();
    listening_.emplace(TabSocket::listen());
    relay_.emplace(chromiumCall);
    accept();
  }

  void accept() {
    ASSERT_TRUE(isReadable(*listening_));
    agent_ = TabSocket::accept(*listening_);
    ASSERT_TRUE(agent_);
    const auto greeting = messageFrom(*agent_);
    ASSERT_TRUE(greeting);
    EXPECT_EQ(TabMessages::readGreeting(*greeting).program,
              std::filesystem::read_symlink("/proc/self/exe").filename());
  }

  TemporaryFolder runtime_;
  std::optional<FileDescriptor> listening_;
  std::optional<Relay> relay_;
  std::optional<FileDescriptor> agent_;
};

TEST_F(TabRelayTest, IsStartedByTheExtensionAlone) {
  for (auto [arguments, status] : testing::cases<std::vector<std::string>, int>()) {
    for (std::string& argument : arguments) {
      argument = unicode::replacingAll(argument, "CHROMIUM", QUILLSEAL_CHROMIUM_EXTENSION);
      argument = unicode::replacingAll(argument, "FIREFOX", QUILLSEAL_FIREFOX_EXTENSION);
    }
    Relay relay(arguments);
    ::shutdown(relay.browser.get(), SHUT_WR);
    EXPECT_EQ(relay.status(), status) << ::testing::PrintToString(arguments);
  }
}

TEST_F(TabRelayTest, PassesOnMessagesAndEndsWithAnythingElse) {
  for (const auto& [sender, bytes, passed] :
       testing::cases<std::string, std::string, std::string>()) {
    SCOPED_TRACE(sender + " " + bytes.substr(0, 80));
    connect();
    const FileDescriptor& from = sender == "agent" ? *agent_ : relay_->browser;
    const FileDescriptor& to = sender == "agent" ? relay_->browser : *agent_;
    std::string sent = bytes;
    if (const auto length = static_cast<std::uint32_t>(bytes.size()); bytes.starts_with('{'))
      sent.insert(0, reinterpret_cast<const char*>(&length), sizeof length);
    ASSERT_TRUE(TabSocket::send(from, sent.substr(0, 3)));
    ASSERT_TRUE(TabSocket::send(from, sent.substr(3)));
    EXPECT_EQ(messageFrom(to).value_or(""), passed);
    EXPECT_EQ(passed.empty() ? relay_->status() : 1, 1);
  }
}

TEST_F(TabRelayTest, WaitsForTheAgentAlsoWhereOneHasDied) {
  for (int agents = 0; agents < 2; ++agents) {
    listening_.reset();
    relay_.emplace(chromiumCall);
    relay_->awaitWatching();
    listening_.emplace(TabSocket::listen());
    accept();
  }
  // An agent's socket is renamed into place when it already listens.
  const std::filesystem::path place = runtimeFolder() / TabSocket::name;
  const std::filesystem::path earlier = runtimeFolder() / "earlier";
  std::filesystem::rename(place, earlier);
  relay_.emplace(chromiumCall);
  relay_->awaitWatching();
  std::filesystem::rename(earlier, place);
  accept();
}

TEST_F(TabRelayTest, EndsWithTheBrowserAndWithTheAgent) {
  connect();
  ::shutdown(relay_->browser.get(), SHUT_WR);
  EXPECT_EQ(relay_->status(), 0);
  EXPECT_EQ(messageFrom(*agent_), std::nullopt);

  connect();
  ::shutdown(relay_->browser.get(), SHUT_RD);
  ASSERT_TRUE(TabSocket::send(*agent_, TabMessages::framed(request)));
  EXPECT_EQ(relay_->status(), 0);

  connect();
  agent_.reset();
  EXPECT_EQ(relay_->status(), 0);

  connect();  // the browser reads nothing
  while (!isReadable(*agent_, 0))
    if (!TabSocket::send(*agent_, TabMessages::framed(request))) std::this_thread::yield();
  EXPECT_EQ(relay_->status(), 0);
}

TEST_F(TabRelayTest, HearsNoBrowserThatWasNotAskedAndTrustsNoFolderThatOthersCouldChange) {
  relay_.emplace(chromiumCall);
  ASSERT_TRUE(TabSocket::send(relay_->browser, TabMessages::framed(answer)));
  EXPECT_EQ(relay_->status(), 1);
  std::filesystem::permissions(runtime_.path(), std::filesystem::perms::all);
  relay_.emplace(chromiumCall);
  EXPECT_EQ(relay_->status(), 1);
}

}  // namespace
}  // namespace quillseal::linux
