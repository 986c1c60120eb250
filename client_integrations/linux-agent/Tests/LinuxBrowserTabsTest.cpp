#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <system_error>

#include <gmock/gmock.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "Cases.h"
#include "TemporaryFolder.h"
#include "VirtualLoop.h"
#include "browsers/LinuxBrowserTabs.h"
#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"
#include "core/text/UnicodeText.h"
#include "session/PrivateFolder.h"

namespace quillseal::linux {
namespace {

using desktop::TabReturn;
using desktop::Ticket;
using ::testing::HasSubstr;
using testing::TemporaryFolder;
using testing::VirtualLoop;

class PolledDescriptors final : public Descriptors {
 public:
  Ticket watch(int descriptor, Interest, std::function<void(Interest)> ready) override {
    watches_[descriptor] = std::move(ready);
    return Ticket([this, descriptor] { watches_.erase(descriptor); });
  }

  /// Runs the loop until nothing is ready.
  void serve() {
    const auto isReady = [](const auto& watch) {
      pollfd state{.fd = watch.first, .events = POLLIN, .revents = 0};
      return ::poll(&state, 1, 0) > 0;
    };
    while (true) {
      const auto watch = std::ranges::find_if(watches_, isReady);
      if (watch == watches_.end()) return;
      const auto call = watch->second;  // which may end the watch
      call(Interest::reading);
    }
  }

 private:
  std::map<int, std::function<void(Interest)>> watches_;
};

class RecordingLog final : public desktop::Log {
 public:
  void write(std::string_view line) override { text.append(line).append("\n"); }
  std::string text;
};

/// The relay's end of a connection.
struct Browser {
  explicit Browser(const std::string& program) {
    send(TabMessages::framed(written(TabMessages::Greeting{program})));
  }

  void send(std::string_view bytes) const { EXPECT_TRUE(TabSocket::send(socket, bytes)); }

  /// Returns the next request.
  std::string heard() {
    deframer.append(TabSocket::receive(socket));
    return deframer.next().value();
  }

  FileDescriptor socket = TabSocket::connect().value();
  TabMessages::Deframer deframer;
};

bool isClosed(const FileDescriptor& socket) {
  char byte = 0;
  const ssize_t count = ::recv(socket.get(), &byte, 1, MSG_DONTWAIT);
  return count == 0 || (count < 0 && errno == ECONNRESET);
}

/// Returns the result of `call` as the user nobody. Works only for root.
int asAnotherUser(const std::function<int()>& call) {
  constexpr uid_t nobody = 65534;
  if (::seteuid(nobody) != 0) throw std::system_error(errno, std::generic_category(), "seteuid");
  const int result = call();
  if (::seteuid(0) != 0) throw std::system_error(errno, std::generic_category(), "seteuid");
  return result;
}

class LinuxBrowserTabsTest : public ::testing::Test {
 protected:
  LinuxBrowserTabsTest() {
    ::setenv("XDG_RUNTIME_DIR", runtime_.path().c_str(), 1);
    tabs_.emplace(LinuxBrowserTabs::Services{loop_, descriptors_, log_});
  }

  std::unique_ptr<Browser> connected(const std::string& program) {
    auto browser = std::make_unique<Browser>(program);
    descriptors_.serve();
    return browser;
  }

  /// Returns what the agent learns if the browser answers that this tab is current.
  std::optional<std::string> tabShownBy(Browser& browser, std::int64_t tab) {
    ticket_ = tabs_->currentTab("chromium", [this](const auto& told) { tab_ = told; });
    const auto id = TabMessages::readRequest(browser.heard()).id;
    browser.send(TabMessages::framed(
        written(TabMessages::Answer{.id = id, .result = TabMessages::TabShown{tab, 1}})));
    settle();
    return tab_;
  }

  void settle() {
    descriptors_.serve();
    while (loop_.step())
      descriptors_.serve();
  }

  TemporaryFolder runtime_;
  VirtualLoop loop_;
  PolledDescriptors descriptors_;
  RecordingLog log_;
  std::optional<LinuxBrowserTabs> tabs_;
  Ticket ticket_;
  std::optional<std::string> tab_;
};

TEST_F(LinuxBrowserTabsTest, GoesAsTold) {
  std::map<std::string, std::unique_ptr<Browser>> browsers;
  std::string title;
  std::string told;
  auto asked = loop_.now();
  const auto tell = [&](const std::string& what) {
    const auto waited = loop_.now() - asked;
    told = what + (waited == LinuxBrowserTabs::longestWait ? " late"
                   : waited.count() > 0                    ? "?"
                                                           : "");
  };
  for (const std::string& line : testing::textCases()) {
    const auto [first, others] = testing::divided(line, " ");
    const auto [second, rest] = testing::divided(others, " ");
    SCOPED_TRACE(title + " before " + line.substr(0, 80));
    if (line.starts_with('[')) {
      title = line;
      browsers.clear();
      tabs_.reset();
      tabs_.emplace(LinuxBrowserTabs::Services{loop_, descriptors_, log_});
    } else if (second == "greets") {
      browsers[first] = connected(rest);
    } else if (second == "leaves") {
      browsers.erase(first);
    } else if (second == "hears") {
      EXPECT_EQ(browsers.at(first)->heard(), rest);
    } else if (second == "says") {
      browsers.at(first)->send(TabMessages::framed(rest));
    } else if (second == "sends") {
      browsers.at(first)->send(unicode::replacingAll(rest, "{ff}", "\xFF"));
    } else if (first == "forget") {
      ticket_ = {};
    } else if (first == ">") {
      settle();
      EXPECT_EQ(std::exchange(told, "waits"), others);
    } else if (first == "log") {
      EXPECT_THAT(log_.text, HasSubstr(others));
    } else {
      asked = loop_.now();
      told = "waits";
      const auto [mark, tab] = testing::divided(rest, " ");
      if (first == "tab")
        ticket_ =
            tabs_->currentTab(second, [&](const auto& shown) { tell(shown.value_or("none")); });
      else if (first == "close")
        ticket_ = tabs_->closeAndRestore(
            {.browser = second,
             .urlContains = mark,
             .tab = tab.empty() ? std::nullopt : std::optional(tab == "empty" ? "" : tab)},
            [&](bool isDone) { tell(isDone ? "done" : "not done"); });
      else
        ADD_FAILURE() << "no story can do this";
    }
  }
}

TEST_F(LinuxBrowserTabsTest, HoldsNoMoreConnectionsThanAPersonHasBrowsers) {
  std::vector<std::unique_ptr<Browser>> browsers;
  for (int i = 0; i < 32; ++i)
    browsers.push_back(connected("chromium"));
  const FileDescriptor oneTooMany = TabSocket::connect().value();
  descriptors_.serve();
  EXPECT_TRUE(isClosed(oneTooMany));
  browsers.pop_back();
  descriptors_.serve();
  browsers.clear();
  descriptors_.serve();
  EXPECT_EQ(tabShownBy(*connected("chromium"), 5), "33.5");
}

TEST_F(LinuxBrowserTabsTest, LetsSilentConnectionsShutNobodyOut) {
  std::vector<FileDescriptor> silent;
  for (int i = 0; i < 40; ++i) {
    silent.push_back(TabSocket::connect().value());
    descriptors_.serve();
  }
  const auto chromium = connected("chromium");
  EXPECT_EQ(tabShownBy(*chromium, 5), "41.5");
  EXPECT_EQ(loop_.elapsed(), LinuxBrowserTabs::greetingTimeout);
  EXPECT_TRUE(std::ranges::all_of(silent, isClosed)) << "the last of them by their time";
  EXPECT_THAT(log_.text, HasSubstr("a relay: has sent no greeting"));
  EXPECT_EQ(tabShownBy(*chromium, 6), "41.6") << "a greeting holds";
}

TEST_F(LinuxBrowserTabsTest, AsRootHearsNoOtherUserEvenWhereTheFoldersWouldLetOneIn) {
  const auto folder = runtime_.path() / "quillseal";
  for (const auto& path : {runtime_.path(), folder, folder / "tabs"})
    ASSERT_EQ(::chmod(path.c_str(), 0777), 0);
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  (folder / "tabs").string().copy(address.sun_path, sizeof address.sun_path - 1);
  const FileDescriptor foreign(::socket(AF_UNIX, SOCK_STREAM, 0));
  const int isRefused = asAnotherUser([&] {
    return ::connect(foreign.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
  });
  ASSERT_EQ(isRefused, 0);
  descriptors_.serve();
  EXPECT_TRUE(isClosed(foreign));
  EXPECT_EQ(log_.text, "");
}

TEST_F(LinuxBrowserTabsTest, MayBeDestroyedByACompletion) {
  const auto chromium = connected("chromium");
  bool isTold = false;
  ticket_ = tabs_->currentTab("chromium", [&](const auto&) {
    tabs_.reset();
    isTold = true;
  });
  chromium->send(TabMessages::framed(
      written(TabMessages::Answer{.id = 1, .result = TabMessages::TabShown{6, 1}})));
  settle();
  EXPECT_TRUE(isTold);
}

TEST_F(LinuxBrowserTabsTest, TakesThePlaceOfAnAgentThatHasGoneButNotOfOneThatRuns) {
  const LinuxBrowserTabs second({loop_, descriptors_, log_});
  EXPECT_THAT(log_.text, HasSubstr("browsers cannot connect: another agent"));
  tabs_.reset();
  // Files that a killed agent may leave behind.
  testing::overwrite(runtime_.path() / "quillseal" / ("tabs." + std::to_string(::getpid())), "");
  tabs_.emplace(LinuxBrowserTabs::Services{loop_, descriptors_, log_});
  const auto chromium = connected("chromium");
  EXPECT_EQ(tabShownBy(*chromium, 5), "1.5");
}

TEST_F(LinuxBrowserTabsTest, KeepsItsFolderToItselfAndTrustsNoneThatOthersCouldChange) {
  using std::filesystem::perms;
  const auto folder = runtime_.path() / "quillseal";
  EXPECT_EQ(std::filesystem::status(folder).permissions(), perms::owner_all);
  EXPECT_EQ(std::filesystem::status(folder / "tabs").permissions(),
            perms::owner_read | perms::owner_write);
  const auto expectNone = [] { EXPECT_THROW((void)runtimeFolder(), std::runtime_error); };
  for (const mode_t mode : {0755U, 0701U}) {
    ASSERT_EQ(::chmod(folder.c_str(), mode), 0);
    expectNone();
  }
  ASSERT_EQ(::chmod(folder.c_str(), 0700), 0);
  std::filesystem::rename(folder, runtime_.path() / "other");
  std::filesystem::create_directory_symlink("other", folder);
  expectNone();
  std::filesystem::remove(folder);
  ASSERT_EQ(::chmod(runtime_.path().c_str(), 0777), 0);
  expectNone();
  ::setenv("XDG_RUNTIME_DIR", "relative", 1);
  expectNone();
}

TEST(TabSocketTest, SendsAWholeMessageOrFails) {
  std::array<int, 2> pair{};
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()), 0);
  const FileDescriptor own(pair[0]);
  {
    const FileDescriptor peer(pair[1]);
    EXPECT_TRUE(TabSocket::send(own, "x"));
    EXPECT_FALSE(TabSocket::send(own, std::string(10'000'000, 'x')));
  }
  (void)std::signal(SIGPIPE, SIG_DFL);
  EXPECT_FALSE(TabSocket::send(own, "x"));
  EXPECT_FALSE(TabSocket::isPeerThisUser(FileDescriptor(-1)));
}

TEST_F(LinuxBrowserTabsTest, AsRootConnectsToNoOtherUsersAgent) {
  tabs_.reset();
  const FileDescriptor listening = TabSocket::listen();
  EXPECT_FALSE(TabSocket::accept(listening));  // nobody has connected
  EXPECT_TRUE(TabSocket::connect());
  // A listening socket belongs to the user that called listen() last.
  EXPECT_EQ(asAnotherUser([&] { return ::listen(listening.get(), 1); }), 0);
  EXPECT_FALSE(TabSocket::connect());
}

}  // namespace
}  // namespace quillseal::linux
