#include <gmock/gmock.h>

#include "Cases.h"
#include "session/Reach.h"

namespace quillseal::linux {
namespace {

void expectPart(const std::string& text, const std::string& part) {
  EXPECT_THAT(text, ::testing::HasSubstr(part));
  EXPECT_EQ(text.empty(), part.empty()) << text;
}

TEST(ReachTest, SaysWhatDoesNotWorkAndHowToGoOn) {
  for (const auto& [isWayland, hasXServer, canPressKeys, part] :
       testing::cases<bool, bool, bool, std::string>())
    expectPart(
        limitsOf({.isWayland = isWayland, .hasXServer = hasXServer, .canPressKeys = canPressKeys}),
        part);
}

TEST(ReachTest, ChoosesThePlatformThatReachesMost) {
  for (const auto& [hasXServer, reachesApplications, hasWayland, hasPlugin, wanted, chosen, part] :
       testing::cases<bool, bool, bool, bool, std::string, std::string, std::string>()) {
    const auto platform = platformFor({.hasXServer = hasXServer,
                                       .reachesApplicationsByWayland = reachesApplications,
                                       .hasWayland = hasWayland,
                                       .hasWaylandPlugin = hasPlugin,
                                       .wantedPlatform = wanted});
    EXPECT_EQ(platform.platform, chosen);
    expectPart(platform.obstacle, part);
  }
}

}  // namespace
}  // namespace quillseal::linux
