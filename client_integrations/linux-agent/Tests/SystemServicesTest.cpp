#include <cstdlib>
#include <optional>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/SystemMachineIdentity.h"
#include "session/SystemWallClock.h"

namespace quillseal::linux {
namespace {

using ::testing::MatchesRegex;

TEST(SystemWallClock, NamesTheZoneAsUsersExpect) {
  struct Case {
    std::optional<std::string> variable;
    const char* localtime;
    const char* file;
    int offset;
    const char* expected;
  };
  const std::set<std::string> installed{"Europe/Berlin", "Asia/Kolkata", "EST5EDT", "Etc/GMT+3"};
  const char* berlinLink = "/usr/share/zoneinfo/Europe/Berlin";
  for (const Case& each : {
           Case{"Asia/Kolkata", berlinLink, "", 19800, "Asia/Kolkata"},
           Case{":Asia/Kolkata", berlinLink, "", 19800, "Asia/Kolkata"},
           Case{":/usr/share/zoneinfo/posix/Asia/Kolkata", "", "", 19800, "Asia/Kolkata"},
           Case{":/usr/share/zoneinfo/right/Asia/Kolkata", "", "", 19800, "Asia/Kolkata"},
           Case{"EST5EDT", berlinLink, "", -18000, "EST5EDT"},
           // TZ is set to something without a zone name: it still decides, not the links.
           Case{"CET-1", berlinLink, "Europe/Berlin", 3600, "Etc/GMT-1"},
           Case{"<-03>3", berlinLink, "", -10800, "Etc/GMT+3"},
           Case{"IST-5:30", berlinLink, "", 19800, "UTC"},
           Case{"", berlinLink, "", 0, "UTC"},
           Case{"No/Such", berlinLink, "", 0, "UTC"},
           Case{"../../etc/passwd", berlinLink, "", 0, "UTC"},
           // TZ is not set.
           Case{std::nullopt, berlinLink, "Asia/Kolkata\n", 3600, "Europe/Berlin"},
           Case{std::nullopt, "../usr/share/zoneinfo/Europe/Berlin", "", 3600, "Europe/Berlin"},
           Case{std::nullopt, "/somewhere/else", "Asia/Kolkata\n", 19800, "Asia/Kolkata"},
           Case{std::nullopt, "", " Asia/Kolkata \n# note", 19800, "Asia/Kolkata"},
           Case{std::nullopt, "", "", 0, "UTC"},
           Case{std::nullopt, "", "", 7200, "Etc/GMT-2"},
           Case{std::nullopt, "", "", 14 * 3600, "Etc/GMT-14"},
           Case{std::nullopt, "", "", 15 * 3600, "UTC"},
           Case{std::nullopt, "", "", -12 * 3600, "Etc/GMT+12"},
           Case{std::nullopt, "", "", -13 * 3600, "UTC"},
           // TZ is set to the default.
           Case{":/etc/localtime", berlinLink, "", 3600, "Europe/Berlin"},
           Case{"/etc/localtime", "", "Asia/Kolkata\n", 19800, "Asia/Kolkata"},
       }) {
    EXPECT_EQ(
        timeZoneIdentifier(
            {.variable = each.variable,
             .localtime = each.localtime,
             .timezoneFile = each.file,
             .secondsFromGmt = each.offset,
             .isInstalled = [&](const std::string& name) { return installed.contains(name); }}),
        each.expected)
        << each.variable.value_or("(not set)") << ' ' << each.localtime << ' ' << each.file;
  }
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
