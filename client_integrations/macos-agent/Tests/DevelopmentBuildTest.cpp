#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/MenuBarManager.h"
#include "Quillseal/SigningCoordinator.h"

// The agent as built without a key for the server.
namespace quillseal {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::FakeDesktop;

TEST(DevelopmentBuild, AsksForItsConfigurationBeforeItMakesAKey) {
  for (const char* key : {"", " \n"}) {
    FakeDesktop desktop;
    desktop.hasKey = false;
    desktop.strings = {{"SigningMode", "enclave"}, {"APIKey", key}};
    SigningCoordinator coordinator(desktop.services());
    coordinator.startSigning();
    desktop.loop.run();
    EXPECT_THAT(desktop.trace,
                ElementsAre("alert: Quillseal Is Not Configured | This build has no server API "
                            "key. Open Settings and enter the server URL and native API key, or "
                            "install a packaged build from your provider."));

    desktop.strings["APIKey"] = "s3cret";
    coordinator.startSigning();
    desktop.loop.run();
    EXPECT_THAT(desktop.trace, Contains("POST /api/register_native"));
    EXPECT_TRUE(desktop.hasKey);
  }
}

TEST(DevelopmentBuild, LetsTheServerBeEntered) {
  FakeDesktop desktop;
  SigningCoordinator coordinator(desktop.services());
  MenuBarManager manager(desktop.services(), coordinator);
  manager.setupMenu();
  manager.configureServer();
  EXPECT_EQ(desktop.menu.items.at(2).title, "Server: https://seal.example");
  EXPECT_EQ(desktop.form.sections.at(0).header, "Server Configuration (development build)");
}

}  // namespace
}  // namespace quillseal
