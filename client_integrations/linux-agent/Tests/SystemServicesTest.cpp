#include <cstdlib>
#include <optional>
#include <set>

#include <gmock/gmock.h>

#include "Cases.h"
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

}  // namespace
}  // namespace quillseal::linux
