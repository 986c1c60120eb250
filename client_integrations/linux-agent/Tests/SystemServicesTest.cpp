#include <array>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <set>

#include <gmock/gmock.h>
#include <unistd.h>

#include "Cases.h"
#include "session/PollLoop.h"
#include "session/SystemMachineIdentity.h"
#include "session/SystemWallClock.h"

namespace quillseal::linux {
namespace {

using ::testing::MatchesRegex;

TEST(SystemWallClock, NamesTheZoneAsUsersExpect) {
  const std::set<std::string> installed{"Europe/Berlin", "Asia/Kolkata", "EST5EDT", "Etc/GMT+3"};
  for (const auto& [variable, localtime, timezoneFile, offset, expected] :
       testing::cases<nlohmann::json, std::string, std::string, int, std::string>())
    EXPECT_EQ(
        timeZoneIdentifier(
            {.variable = variable.is_null()
                             ? std::nullopt
                             : std::optional<std::string>(variable.get<std::string>()),
             .localtime = localtime,
             .timezoneFile = timezoneFile,
             .secondsFromGmt = offset,
             .isInstalled = [&](const std::string& name) { return installed.contains(name); }}),
        expected)
        << variable << ' ' << localtime << ' ' << timezoneFile;
}

TEST(SystemWallClock, FollowsTheEnvironmentWhileItRuns) {
  const SystemWallClock clock;
  EXPECT_THAT(clock.today(), MatchesRegex("[0-9]{4}-[01][0-9]-[0-3][0-9]"));
  setenv("TZ", "NPT-5:45", 1);
  EXPECT_EQ(clock.timeZone().secondsFromGmt, 20700);
  setenv("TZ", "NST+3:30", 1);
  EXPECT_EQ(clock.timeZone().secondsFromGmt, -12600);
  unsetenv("TZ");
}

TEST(SystemMachineIdentity, IsAStableUuidOrNothing) {
  const SystemMachineIdentity machine;
  const std::optional<std::string> uuid = machine.platformUuid();
  EXPECT_EQ(machine.platformUuid(), uuid);
  if (uuid) {
    EXPECT_THAT(*uuid, MatchesRegex("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"));
  }
}

TEST(PollLoop, RunsWhatManyThreadsPostInTheirOrder) {
  constexpr int workers = 4;
  constexpr int posts = 20'000;
  PollLoop loop;
  std::vector<int> seen(workers);
  int finished = 0;
  std::vector<desktop::Ticket> tickets;
  for (int& count : seen)
    tickets.push_back(loop.runBlocking(
        [&] {
          for (int i = 0; i < posts; ++i)
            loop.post([&count, i] { count += count == i ? 1 : 0; });
        },
        [&] {
          if (++finished == workers) loop.stop();
        }));
  desktop::Ticket withdrawn = loop.runBlocking([] {}, [] { ADD_FAILURE() << "was withdrawn"; });
  withdrawn = {};
  loop.run();
  EXPECT_EQ(seen, std::vector<int>(workers, posts));
}

TEST(PollLoop, AnEarlierTicketEndsNoNewWatch) {
  using Interest = Descriptors::Interest;
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  PollLoop loop;
  bool isReady = false;
  desktop::Ticket old = loop.watch(ends[0], Interest::reading, [](Interest) { ADD_FAILURE(); });
  const desktop::Ticket current = loop.watch(ends[0], Interest::reading, [&](Interest) {
    isReady = true;
    loop.stop();
  });
  old = {};
  const desktop::Ticket end = loop.after(std::chrono::seconds(5), [&] { loop.stop(); });
  EXPECT_EQ(::write(ends[1], "x", 1), 1);
  loop.run();
  EXPECT_TRUE(isReady);
  for (const int descriptor : ends)
    ::close(descriptor);
}

}  // namespace
}  // namespace quillseal::linux
