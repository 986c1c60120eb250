#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/Reach.h"

namespace quillseal::linux {
namespace {

using testing::HasSubstr;

TEST(ReachTest, SaysWhatDoesNotWorkAndHowToGoOn) {
  const struct {
    SessionTraits session;
    const char* part;
  } rows[] = {
      {{.isWayland = true, .hasXServer = false, .canPressKeys = false},
       "Its settings work. Signing works on sway"},
      {{.isWayland = false, .hasXServer = true, .canPressKeys = false},
       "lacks the XTEST extension"},
      {{.isWayland = true, .hasXServer = true, .canPressKeys = false}, "lacks the XTEST extension"},
      {{.isWayland = true, .hasXServer = true, .canPressKeys = true}, "“quillseal --sign”"},
  };
  for (const auto& row : rows)
    EXPECT_THAT(limitsOf(row.session), HasSubstr(row.part));
  EXPECT_EQ(limitsOf({.isWayland = false, .hasXServer = true, .canPressKeys = true}), "");
}

TEST(ReachTest, ChoosesThePlatformThatReachesMost) {
  const struct {
    DisplayTraits display;
    const char* platform;
  } rows[] = {
      {{.hasXServer = true, .wantedPlatform = ""}, "xcb"},
      {{.hasXServer = true, .hasWayland = true, .hasWaylandPlugin = true, .wantedPlatform = ""},
       "xcb"},
      {{.reachesApplicationsByWayland = true,
        .hasWayland = true,
        .hasWaylandPlugin = true,
        .wantedPlatform = ""},
       "wayland"},
      {{.hasXServer = true,
        .reachesApplicationsByWayland = true,
        .hasWayland = true,
        .wantedPlatform = ""},
       "xcb"},
      {{.hasXServer = true, .hasWayland = true, .wantedPlatform = "wayland;xcb"}, "xcb"},
      {{.hasWayland = true, .hasWaylandPlugin = true, .wantedPlatform = ""}, "wayland"},
      {{.hasWayland = true, .hasWaylandPlugin = true, .wantedPlatform = "xcb"}, "wayland"},
      {{.wantedPlatform = "offscreen"}, "offscreen"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(platformFor(row.display).platform, row.platform);
    EXPECT_EQ(platformFor(row.display).obstacle, "");
  }
  EXPECT_EQ(platformFor({.wantedPlatform = "xcb"}).platform, "");
  EXPECT_THAT(platformFor({.wantedPlatform = ""}).obstacle, HasSubstr("no display"));
  EXPECT_THAT(platformFor({.hasWayland = true, .wantedPlatform = ""}).obstacle,
              HasSubstr("For its settings alone"));
  EXPECT_THAT(
      platformFor({.reachesApplicationsByWayland = true, .hasWayland = true, .wantedPlatform = ""})
          .obstacle,
      HasSubstr("to show its windows"));
}

}  // namespace
}  // namespace quillseal::linux
