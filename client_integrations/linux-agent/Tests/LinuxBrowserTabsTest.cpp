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
  explicit Browser(const std::string& program) { say(written(TabMessages::Greeting{program})); }

  void say(std::string_view message) { sayBytes(TabMessages::framed(message)); }
  void sayBytes(std::string_view bytes) { ASSERT_TRUE(TabSocket::send(socket, bytes)); }

  TabMessages::Request asked() {
    deframer.append(TabSocket::receive(socket));
    return TabMessages::readRequest(deframer.next().value());
  }

  /// `result`: TabShown or TabsClosed.
  void answer(const auto& result) {
    say(written(TabMessages::Answer{.id = asked().id, .result = result}));
  }
  void answerTab(std::optional<std::int64_t> tab, std::int64_t focusedAt) {
    answer(TabMessages::TabShown{tab, focusedAt});
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

TEST_F(LinuxBrowserTabsTest, AsksOnlyTheBrowserInQuestion) {
  const auto chromium = connected("chromium");
  const auto firefox = connected("firefox-esr");
  EXPECT_EQ(tabShownBy(*chromium, "chromium", 12), "1.12");
  EXPECT_EQ(tabShownBy(*firefox, "firefox-esr", 1), "2.1");
  EXPECT_LT(loop_.elapsed(), LinuxBrowserTabs::longestWait);
}

TEST_F(LinuxBrowserTabsTest, KnowsNothingOfABrowserThatIsNotConnected) {
  const auto chromium = connected("chromium");
  for (const auto& [browser, mark] : testing::cases<std::string, std::string>()) {
    if (browser != "chromium") {
      askTab(browser);
      EXPECT_EQ(tab_, "none") << browser;
    }
    askClose({.browser = browser, .urlContains = mark, .tab = "1.2"});
    EXPECT_EQ(closed_, false) << browser << mark;
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
  EXPECT_EQ(written(first->asked()),
            R"({"id":1,"operation":"closeAndRestore","urlContains":"/handoff?h=1","tab":null})");
  first->say(R"({"id":1,"operation":"closeAndRestore","closed":true,"restored":true})");
  EXPECT_EQ(written(second->asked()),
            R"({"id":1,"operation":"closeAndRestore","urlContains":"/handoff?h=1","tab":5})");
  second->say(R"({"id":1,"operation":"closeAndRestore","closed":false,"restored":true})");
  settle();
  EXPECT_EQ(closed_, true);
}

TEST_F(LinuxBrowserTabsTest, IsDoneOnlyWhenClosedAndRestored) {
  const auto chromium = connected("chromium");
  for (const auto& [tab, isClosed, isRestored, isDone] :
       testing::cases<nlohmann::json, bool, bool, bool>()) {
    TabReturn request{.browser = "chromium", .urlContains = "/handoff?h=1", .tab = {}};
    if (tab.is_string()) request.tab = tab.get<std::string>();
    askClose(request);
    chromium->answer(TabMessages::TabsClosed{.closed = isClosed, .restored = isRestored});
    settle();
    EXPECT_EQ(closed_, isDone) << tab;
  }
}

TEST_F(LinuxBrowserTabsTest, GivesUpAfterTheLongestWait) {
  const auto hanging = connected("chromium");
  const auto working = connected("chromium");
  EXPECT_EQ(tabShownBy(*working, "chromium", 7), "2.7");
  EXPECT_EQ(loop_.elapsed(), LinuxBrowserTabs::longestWait);

  askClose({.browser = "chromium", .urlContains = "/handoff?h=1", .tab = "1.5"});
  working->answer(TabMessages::TabsClosed{.closed = true, .restored = true});
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
      TabMessages::framed(R"({"id":ID,"operation":"currentTab","tab":1})"),
      TabMessages::framed(
          R"({"id":ID,"operation":"closeAndRestore","closed":true,"restored":true})"),
      std::string(4, '\0'),
      std::string(4, '\xff'),
      std::string(100'000, 'x')};
  for (const std::string& breach : breaches) {
    const auto chromium = connected("chromium");
    askTab("chromium");
    const std::string id = std::to_string(chromium->asked().id);
    ASSERT_LT(id.size(), 2U) << "else the length changes";
    chromium->sayBytes(unicode::replacingAll(breach, "ID", id + " "));
    settle();
    EXPECT_EQ(tab_, "none") << breach.substr(0, 80);
  }
  EXPECT_LT(loop_.elapsed(), LinuxBrowserTabs::longestWait);
}

TEST_F(LinuxBrowserTabsTest, DropsABrowserWithoutNameOrWithTwoAnswers) {
  EXPECT_TRUE(isClosed(connected("")->socket));
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
  EXPECT_EQ(tab_, "3.7");
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

TEST_F(LinuxBrowserTabsTest, ForgetsWhatNobodyWaitsForAndMayBeDestroyedByACompletion) {
  const auto chromium = connected("chromium");
  askTab("chromium");
  ticket_ = {};
  chromium->answerTab(5, 1);
  settle();
  EXPECT_EQ(tab_, std::nullopt);

  ticket_ = tabs_->currentTab("chromium", [&](const std::optional<std::string>& tab) {
    tabs_.reset();
    tab_ = tab;
  });
  chromium->answerTab(6, 1);
  settle();
  EXPECT_EQ(tab_, "1.6");
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

}  // namespace
}  // namespace quillseal::linux
