#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "TemporaryFolder.h"
#include "VirtualLoop.h"
#include "browsers/LinuxBrowserTabs.h"
#include "browsers/TabMessages.h"
#include "browsers/TabSocket.h"
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
    while (serveOne()) {
    }
  }

 private:
  bool serveOne() {
    for (const auto& [descriptor, ready] : watches_) {
      pollfd state{.fd = descriptor, .events = POLLIN, .revents = 0};
      if (::poll(&state, 1, 0) <= 0) continue;
      const auto call = ready;
      call(Interest::reading);
      return true;
    }
    return false;
  }

  std::map<int, std::function<void(Interest)>> watches_;
};

class RecordingLog final : public desktop::Log {
 public:
  void write(std::string_view line) override { text.append(line).append("\n"); }
  std::string text;
};

/// The relay's end of a connection.
class Browser {
 public:
  explicit Browser(const std::string& program) : socket_(TabSocket::connect().value()) {
    say(written(TabMessages::Greeting{program}));
  }

  void say(std::string_view message) { sayBytes(TabMessages::framed(message)); }
  void sayBytes(std::string_view bytes) { ASSERT_TRUE(TabSocket::send(socket_, bytes)); }

  TabMessages::Request asked() {
    deframer_.append(TabSocket::receive(socket_));
    return TabMessages::readRequest(deframer_.next().value());
  }

  void answerTab(std::optional<std::int64_t> tab, std::int64_t focusedAt) {
    say(written(
        TabMessages::Answer{.id = asked().id, .result = TabMessages::TabShown{tab, focusedAt}}));
  }

  void answerClosed(TabMessages::TabsClosed result) {
    say(written(TabMessages::Answer{.id = asked().id, .result = result}));
  }

 private:
  FileDescriptor socket_;
  TabMessages::Deframer deframer_;
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

  void askTab(const std::string& browser) {
    tab_.reset();
    ticket_ = tabs_->currentTab(
        browser, [this](std::optional<std::string> tab) { tab_ = tab.value_or("none"); });
  }

  void askClose(const TabReturn& request) {
    closed_.reset();
    ticket_ = tabs_->closeAndRestore(request, [this](bool closed) { closed_ = closed; });
  }

  /// Returns what the agent learns if the browser answers that this tab is current.
  std::optional<std::string> tabShownBy(Browser& browser, const std::string& program,
                                        std::int64_t tab) {
    askTab(program);
    browser.answerTab(tab, 1);
    settle();
    return tab_;
  }

  void settle() {
    descriptors_.serve();
    while (loop_.elapsed() < deadline_ && loop_.step())
      descriptors_.serve();
  }

  TemporaryFolder runtime_;
  VirtualLoop loop_;
  PolledDescriptors descriptors_;
  RecordingLog log_;
  std::optional<LinuxBrowserTabs> tabs_;
  Ticket ticket_;
  std::optional<std::string> tab_;
  std::optional<bool> closed_;
  std::chrono::milliseconds deadline_{10'000};
};

TEST_F(LinuxBrowserTabsTest, KeepsTheSocketToItself) {
  struct stat status {};
  ASSERT_EQ(::stat((runtime_.path() / "quillseal").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0700U);
  ASSERT_EQ(::stat((runtime_.path() / "quillseal/tabs").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(LinuxBrowserTabsTest, AsksOnlyTheBrowserInQuestion) {
  const auto chromium = connected("chromium");
  const auto firefox = connected("firefox-esr");
  EXPECT_EQ(tabShownBy(*chromium, "chromium", 12), "1.12");
  EXPECT_EQ(tabShownBy(*firefox, "firefox-esr", 1), "2.1");
  EXPECT_LT(loop_.elapsed(), LinuxBrowserTabs::longestWait);
}

TEST_F(LinuxBrowserTabsTest, KnowsNothingOfABrowserThatIsNotConnected) {
  const auto chromium = connected("chromium");
  for (const char* browser : {"firefox-esr", "com.google.Chrome", "org.gnome.TextEditor", ""}) {
    askTab(browser);
    EXPECT_EQ(tab_, "none") << browser;
    askClose({.browser = browser, .urlContains = "/handoff?h=1", .tab = "1.2"});
    EXPECT_EQ(closed_, false) << browser;
  }
  for (const char* mark : {"", "h", "/handoff?h=", "https://a/handoff?h=1", "/handoff?h=1#t"}) {
    askClose({.browser = "chromium", .urlContains = mark, .tab = "1.2"});
    EXPECT_EQ(closed_, false) << mark;
  }
}

TEST_F(LinuxBrowserTabsTest, TakesTheProfileThatWasLookedAtLast) {
  const auto first = connected("chromium");
  const auto second = connected("chromium");
  const auto third = connected("chromium");
  askTab("chromium");
  first->answerTab(5, 100);
  third->answerTab(std::nullopt, 900);
  second->answerTab(5, 300);
  settle();
  EXPECT_EQ(tab_, "2.5");
}

TEST_F(LinuxBrowserTabsTest, ClosesInEveryProfileAndRestoresInItsOwn) {
  const auto first = connected("chromium");
  const auto second = connected("chromium");
  askClose({.browser = "chromium", .urlContains = "/handoff?h=1", .tab = "2.5"});
  const auto askedFirst = std::get<TabMessages::CloseAndRestore>(first->asked().operation);
  EXPECT_EQ(askedFirst.urlContains, "/handoff?h=1");
  EXPECT_EQ(askedFirst.tab, std::nullopt);
  first->say(R"({"id":1,"operation":"closeAndRestore","closed":true,"restored":true})");
  const auto request = second->asked();
  EXPECT_EQ(std::get<TabMessages::CloseAndRestore>(request.operation).tab, 5);
  second->say(R"({"id":1,"operation":"closeAndRestore","closed":false,"restored":true})");
  settle();
  EXPECT_EQ(closed_, true);
}

TEST_F(LinuxBrowserTabsTest, IsDoneOnlyWhenClosedAndRestored) {
  struct Row {
    std::optional<std::string> tab;
    TabMessages::TabsClosed result;
    bool expected;
  };
  const auto chromium = connected("chromium");
  for (const Row& row : {
           Row{"1.5", {.closed = true, .restored = true}, true},
           Row{"1.5", {.closed = false, .restored = true}, false},
           Row{"1.5", {.closed = true, .restored = false}, false},
           Row{std::nullopt, {.closed = true, .restored = true}, true},
           Row{std::nullopt, {.closed = false, .restored = true}, false},
           // A tab that this browser has not reported.
           Row{"9.5", {.closed = true, .restored = true}, false},
           Row{"5", {.closed = true, .restored = true}, false},
           Row{"1.5x", {.closed = true, .restored = true}, false},
           Row{"1.99999999999999999999", {.closed = true, .restored = true}, false},
           Row{"", {.closed = true, .restored = true}, false},
       }) {
    askClose({.browser = "chromium", .urlContains = "/handoff?h=1", .tab = row.tab});
    chromium->answerClosed(row.result);
    settle();
    EXPECT_EQ(closed_, row.expected) << row.tab.value_or("none");
  }
}

TEST_F(LinuxBrowserTabsTest, GivesUpAfterTheLongestWait) {
  const auto hanging = connected("chromium");
  const auto working = connected("chromium");
  EXPECT_EQ(tabShownBy(*working, "chromium", 7), "2.7");
  EXPECT_EQ(loop_.elapsed(), LinuxBrowserTabs::longestWait);

  askClose({.browser = "chromium", .urlContains = "/handoff?h=1", .tab = "1.5"});
  working->answerClosed({.closed = true, .restored = true});
  settle();
  EXPECT_EQ(closed_, false);

  // The late answer has no effect.
  hanging->answerTab(5, 1);
  descriptors_.serve();
  askTab("chromium");
  working->answerTab(8, 2);
  settle();
  EXPECT_EQ(tab_, "2.8");
}

TEST_F(LinuxBrowserTabsTest, IsToldWhenTheBrowserGoes) {
  auto chromium = connected("chromium");
  askTab("chromium");
  chromium.reset();
  settle();
  EXPECT_EQ(tab_, "none");
  EXPECT_LT(loop_.elapsed(), LinuxBrowserTabs::longestWait);
  askTab("chromium");
  EXPECT_EQ(tab_, "none");
  EXPECT_THAT(log_.text, HasSubstr("[tabreturn] chromium: is gone"));
}

TEST_F(LinuxBrowserTabsTest, DropsABrowserThatBreaksTheProtocol) {
  const std::vector<std::string> breaches = {
      TabMessages::framed("{"),
      TabMessages::framed(R"({"id":1,"operation":"currentTab","tab":1})"),
      TabMessages::framed(
          R"({"id":1,"operation":"closeAndRestore","closed":true,"restored":true})"),
      std::string(4, '\0'),
      std::string(4, '\xff'),
      std::string(100'000, 'x'),
  };
  std::int64_t id = 0;
  for (const std::string& breach : breaches) {
    const auto chromium = connected("chromium");
    askTab("chromium");
    ++id;
    std::string bytes = breach;
    if (const auto at = bytes.find("\"id\":1"); at != std::string::npos)
      bytes.replace(at, 6, "\"id\":" + std::to_string(id));
    chromium->sayBytes(bytes);
    settle();
    EXPECT_EQ(tab_, "none") << breach.substr(0, 80);
  }
  EXPECT_LT(loop_.elapsed(), LinuxBrowserTabs::longestWait);
}

TEST_F(LinuxBrowserTabsTest, DropsABrowserWithoutNameOrWithTwoAnswers) {
  for (const std::string& program : {std::string(), std::string(5000, 'x')}) {
    const FileDescriptor nameless = TabSocket::connect().value();
    const std::string greeting = written(TabMessages::Greeting{program});
    const auto length = static_cast<std::uint32_t>(greeting.size());
    ASSERT_TRUE(TabSocket::send(
        nameless, std::string(reinterpret_cast<const char*>(&length), sizeof length) + greeting));
    descriptors_.serve();
    EXPECT_TRUE(isClosed(nameless));
  }
  const auto first = connected("chromium");
  const auto second = connected("chromium");
  askTab("chromium");
  const std::int64_t id = first->asked().id;
  const std::string answer =
      written(TabMessages::Answer{.id = id, .result = TabMessages::TabShown{5, 1}});
  first->say(answer);
  first->say(answer);
  second->answerTab(7, 2);
  settle();
  EXPECT_THAT(log_.text, HasSubstr("[tabreturn] chromium: An answer came twice."));
  EXPECT_EQ(tab_, "4.7");
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
  const auto another = connected("firefox-esr");
  EXPECT_EQ(tabShownBy(*another, "firefox-esr", 5), "33.5");
}

TEST_F(LinuxBrowserTabsTest, LetsSilentConnectionsShutNobodyOut) {
  std::vector<FileDescriptor> silent;
  for (int i = 0; i < 40; ++i) {
    silent.push_back(TabSocket::connect().value());
    descriptors_.serve();
  }
  const auto chromium = connected("chromium");
  EXPECT_EQ(tabShownBy(*chromium, "chromium", 5), "41.5");

  deadline_ += LinuxBrowserTabs::greetingPatience;
  while (loop_.step())
    descriptors_.serve();
  EXPECT_EQ(loop_.elapsed(), LinuxBrowserTabs::greetingPatience);
  EXPECT_TRUE(std::ranges::all_of(silent, isClosed)) << "the last of them by their time";
  EXPECT_THAT(log_.text, HasSubstr("a relay: has sent no greeting"));
  EXPECT_EQ(tabShownBy(*chromium, "chromium", 6), "41.6") << "a greeting holds";
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

TEST_F(LinuxBrowserTabsTest, ForgetsWhatNobodyWaitsFor) {
  const auto chromium = connected("chromium");
  askTab("chromium");
  ticket_ = {};
  chromium->answerTab(5, 1);
  settle();
  EXPECT_EQ(tab_, std::nullopt);
}

TEST_F(LinuxBrowserTabsTest, MayBeDestroyedByACompletion) {
  const auto chromium = connected("chromium");
  bool isCalled = false;
  ticket_ = tabs_->currentTab("chromium", [&](const std::optional<std::string>&) {
    tabs_.reset();
    isCalled = true;
  });
  chromium->answerTab(5, 1);
  settle();
  EXPECT_TRUE(isCalled);
}

TEST_F(LinuxBrowserTabsTest, TakesThePlaceOfAnAgentThatHasGoneButNotOfOneThatRuns) {
  const LinuxBrowserTabs second({loop_, descriptors_, log_});
  EXPECT_THAT(log_.text, HasSubstr("browsers cannot connect: another agent"));
  tabs_.reset();
  // Files that a killed agent may leave behind.
  testing::overwrite(runtime_.path() / "quillseal" / ("tabs." + std::to_string(::getpid())), "");
  tabs_.emplace(LinuxBrowserTabs::Services{loop_, descriptors_, log_});
  const auto chromium = connected("chromium");
  EXPECT_EQ(tabShownBy(*chromium, "chromium", 5), "1.5");
}

TEST_F(LinuxBrowserTabsTest, TrustsNoFolderThatOthersCouldChange) {
  for (const mode_t mode : {0755U, 0701U}) {
    ASSERT_EQ(::chmod((runtime_.path() / "quillseal").c_str(), mode), 0);
    EXPECT_THROW((void)runtimeFolder(), std::runtime_error) << mode;
  }
  ASSERT_EQ(::chmod((runtime_.path() / "quillseal").c_str(), 0700), 0);
  std::filesystem::rename(runtime_.path() / "quillseal", runtime_.path() / "other");
  std::filesystem::create_directory_symlink("other", runtime_.path() / "quillseal");
  EXPECT_THROW((void)runtimeFolder(), std::runtime_error);
  std::filesystem::remove(runtime_.path() / "quillseal");
  ASSERT_EQ(::chmod(runtime_.path().c_str(), 0777), 0);
  EXPECT_THROW((void)runtimeFolder(), std::runtime_error);
  ::setenv("XDG_RUNTIME_DIR", "relative", 1);
  EXPECT_THROW((void)runtimeFolder(), std::runtime_error);
}

TEST(TabSocketTest, RecognisesItsOwnUser) {
  std::array<int, 2> pair{};
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()), 0);
  const FileDescriptor own(pair[0]), ownPeer(pair[1]);
  EXPECT_TRUE(TabSocket::isPeerThisUser(own));
  EXPECT_FALSE(TabSocket::isPeerThisUser(FileDescriptor(-1)));
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
}

TEST_F(LinuxBrowserTabsTest, AcceptsNothingWhereNobodyConnects) {
  tabs_.reset();
  EXPECT_FALSE(TabSocket::accept(TabSocket::listen()));
}

TEST_F(LinuxBrowserTabsTest, AsRootConnectsToNoOtherUsersAgent) {
  tabs_.reset();
  const FileDescriptor listening = TabSocket::listen();
  EXPECT_TRUE(TabSocket::connect());
  // A listening socket belongs to the user that called listen() last.
  EXPECT_EQ(asAnotherUser([&] { return ::listen(listening.get(), 1); }), 0);
  EXPECT_FALSE(TabSocket::connect());
}

TEST(TabSocketTest, AsRootRecognisesAnotherUser) {
  std::array<int, 2> pair{};
  const int isRefused =
      asAnotherUser([&] { return ::socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()); });
  ASSERT_EQ(isRefused, 0);
  const FileDescriptor foreign(pair[0]), foreignPeer(pair[1]);
  EXPECT_FALSE(TabSocket::isPeerThisUser(foreign));
}

}  // namespace
}  // namespace quillseal::linux
