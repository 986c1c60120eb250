#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <optional>
#include <thread>

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Cases.h"
#include "TemporaryFolder.h"
#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"
#include "core/text/UnicodeText.h"
#include "session/PrivateFolder.h"

namespace quillseal::linux {
namespace {

using namespace std::literals;
using testing::TemporaryFolder;

constexpr int patience = 10'000;  // milliseconds

bool isReadable(const FileDescriptor& descriptor, int milliseconds = patience) {
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

/// Runs the relay as a browser does.
class Relay {
 public:
  explicit Relay(std::vector<std::string> arguments) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
      throw std::runtime_error("socketpair");
    browser_ = FileDescriptor(ends[0]);
    const FileDescriptor itsEnd(ends[1]);
    process_ = ::fork();
    if (process_ != 0) return;
    ::signal(SIGPIPE, SIG_DFL);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO})
      ::dup2(itsEnd.get(), standard);
    arguments.insert(arguments.begin(), QUILLSEAL_TAB_RELAY);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
      pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(pointers[0], pointers.data());
    ::_exit(127);
  }
  Relay(const Relay&) = delete;
  Relay& operator=(const Relay&) = delete;
  ~Relay() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
  }

  [[nodiscard]] const FileDescriptor& browser() const { return browser_; }

  void write(std::string_view bytes) const { EXPECT_TRUE(TabSocket::send(browser_, bytes)); }

  /// Waits until the relay has found no agent and watches the folder.
  void awaitWatching() const {
    const std::filesystem::path descriptors = "/proc/" + std::to_string(process_) + "/fdinfo";
    const auto isWatching = [&] {
      std::error_code gone;
      return std::ranges::any_of(
          std::filesystem::directory_iterator(descriptors, gone), [](const auto& file) {
            return testing::contentsOf(file.path()).find("inotify wd:") != std::string::npos;
          });
    };
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(patience);
    while (!isWatching() && std::chrono::steady_clock::now() < end)
      std::this_thread::sleep_for(2ms);
    EXPECT_TRUE(isWatching());
  }

  /// `direction`: SHUT_WR as if the browser wrote nothing more, SHUT_RD as if it read nothing more.
  void close(int direction) const { ::shutdown(browser_.get(), direction); }

  /// Returns the exit status; 128 and more for a signal, -1 when it does not end.
  int status() {
    for (const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(patience);
         std::chrono::steady_clock::now() < end; std::this_thread::sleep_for(2ms)) {
      int state = 0;
      if (::waitpid(process_, &state, WNOHANG) != process_) continue;
      process_ = 0;
      return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    }
    return -1;
  }

 private:
  pid_t process_ = 0;
  FileDescriptor browser_{-1};
};

const std::string request = R"({"id":1,"operation":"currentTab"})";
const std::string answer = R"({"id":1,"operation":"currentTab","tab":4,"focusedAt":9})";
const std::vector<std::string> chromiumCall = {"chrome-extension://" QUILLSEAL_CHROMIUM_EXTENSION
                                               "/"};

TEST(TabMessages, AreCutFromAStreamHoweverItIsSplit) {
  const std::string longest(TabMessages::longestMessage, 'x');
  const std::string stream =
      TabMessages::framed("{}") + TabMessages::framed(longest) + TabMessages::framed("[1]");
  for (const std::size_t step : {std::size_t{1}, std::size_t{3}, stream.size()}) {
    TabMessages::Deframer deframer;
    std::vector<std::string> messages;
    for (std::size_t at = 0; at < stream.size(); at += step) {
      deframer.append(std::string_view(stream).substr(at, step));
      while (const auto message = deframer.next())
        messages.push_back(*message);
    }
    EXPECT_EQ(messages, (std::vector<std::string>{"{}", longest, "[1]"})) << step;
  }
}

TEST(TabMessages, RefusesLengthsThatNobodyMaySend) {
  for (const std::uint32_t length : {0U, 4097U, 0x7fffffffU, 0xffffffffU}) {
    TabMessages::Deframer deframer;
    deframer.append({reinterpret_cast<const char*>(&length), sizeof length});
    EXPECT_THROW((void)deframer.next(), TabMessages::ProtocolError) << length;
  }
  EXPECT_THROW((void)TabMessages::framed(""), TabMessages::ProtocolError);
  EXPECT_THROW((void)TabMessages::framed(std::string(TabMessages::longestMessage + 1, 'x')),
               TabMessages::ProtocolError);
}

TEST(TabMessages, SurviveBeingPassedOn) {
  for (const auto& [kind, message] : testing::cases<std::string, std::string>())
    EXPECT_EQ(kind == "request" ? TabMessages::written(TabMessages::readRequest(message))
                                : TabMessages::written(TabMessages::readAnswer(message)),
              message);
  EXPECT_EQ(
      TabMessages::readGreeting(TabMessages::written(TabMessages::Greeting{"chromium"})).program,
      "chromium");
  EXPECT_EQ(TabMessages::written(TabMessages::Greeting{"\xff"}), "{\"program\":\"\uFFFD\"}");
}

TEST(TabMessages, RefusesWhatIsNoSuchMessage) {
  for (const auto& [kind, message] : testing::cases<std::string, std::string>())
    EXPECT_THROW(kind == "request" ? (void)TabMessages::readRequest(message)
                                   : (void)TabMessages::readAnswer(message),
                 TabMessages::ProtocolError)
        << message;
  EXPECT_THROW((void)TabMessages::readGreeting(R"({"program":null})"), TabMessages::ProtocolError);
}

class TabRelayTest : public ::testing::Test {
 protected:
  TabRelayTest() {
    ::signal(SIGPIPE, SIG_IGN);
    ::setenv("XDG_RUNTIME_DIR", runtime_.path().c_str(), 1);
  }

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
    relay.close(SHUT_WR);
    EXPECT_EQ(relay.status(), status) << ::testing::PrintToString(arguments);
  }
}

TEST_F(TabRelayTest, PassesMessagesBothWays) {
  connect();
  for (const std::string& asked :
       {request,
        R"({"id":2,"operation":"closeAndRestore","urlContains":"/handoff?h=1","tab":4})"s}) {
    ASSERT_TRUE(TabSocket::send(*agent_, TabMessages::framed(asked)));
    EXPECT_EQ(messageFrom(relay_->browser()), asked);
  }
  relay_->write(TabMessages::framed(answer).substr(0, 9));
  relay_->write(TabMessages::framed(answer).substr(9));
  EXPECT_EQ(messageFrom(*agent_), answer);
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
  relay_->close(SHUT_WR);
  EXPECT_EQ(relay_->status(), 0);
  EXPECT_EQ(messageFrom(*agent_), std::nullopt);

  connect();
  relay_->close(SHUT_RD);
  ASSERT_TRUE(TabSocket::send(*agent_, TabMessages::framed(request)));
  EXPECT_EQ(relay_->status(), 0);

  connect();
  agent_.reset();
  EXPECT_EQ(relay_->status(), 0);
}

TEST_F(TabRelayTest, EndsWhenEitherSideBreaksTheProtocol) {
  for (const std::string& bytes : {std::string(4, '\xff'), TabMessages::framed(R"({"id":1})")}) {
    connect();
    relay_->write(bytes);
    EXPECT_EQ(relay_->status(), 1);
    EXPECT_EQ(messageFrom(*agent_), std::nullopt);

    connect();
    ASSERT_TRUE(TabSocket::send(*agent_, bytes));
    EXPECT_EQ(relay_->status(), 1);
    EXPECT_EQ(messageFrom(relay_->browser()), std::nullopt);
  }
}

TEST_F(TabRelayTest, PassesOnNothingThatIsNoPartOfAMessage) {
  connect();
  ASSERT_TRUE(TabSocket::send(
      *agent_, TabMessages::framed(R"({"id":1,"operation":"currentTab","eval":"x"})")));
  EXPECT_EQ(messageFrom(relay_->browser()), request);
  // The longest message that may come, and one byte more.
  relay_->write(
      TabMessages::framed(answer + std::string(TabMessages::longestMessage - answer.size(), ' ')));
  EXPECT_EQ(messageFrom(*agent_), answer);
  const std::uint32_t tooLong = TabMessages::longestMessage + 1;
  relay_->write({reinterpret_cast<const char*>(&tooLong), sizeof tooLong});
  EXPECT_EQ(relay_->status(), 1);
}

TEST_F(TabRelayTest, HearsNoBrowserThatWasNotAskedAndTrustsNoFolderThatOthersCouldChange) {
  relay_.emplace(chromiumCall);
  relay_->write(TabMessages::framed(answer));
  EXPECT_EQ(relay_->status(), 1);
  std::filesystem::permissions(runtime_.path(), std::filesystem::perms::all);
  relay_.emplace(chromiumCall);
  EXPECT_EQ(relay_->status(), 1);
}

TEST_F(TabRelayTest, DoesNotWaitForABrowserThatReadsNothing) {
  connect();
  for (int i = 0; i < 5000 && !isReadable(*agent_, 0); ++i) {
    if (!TabSocket::send(*agent_, TabMessages::framed(request))) std::this_thread::sleep_for(1ms);
  }
  EXPECT_EQ(relay_->status(), 0);
}

}  // namespace
}  // namespace quillseal::linux
