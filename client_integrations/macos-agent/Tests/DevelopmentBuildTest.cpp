#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/MenuBarManager.h"
#include "Quillseal/SigningCoordinator.h"

// The agent of a build without a server and an API key.
namespace quillseal {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::FakeDesktop;
using ::testing::Field;

TEST(DevelopmentBuild, AsksForItsConfigurationBeforeItMakesAKey) {
  for (const char* key : {"", " \n"}) {
    FakeDesktop desktop;
    desktop.keyStore.hasKey = false;
    desktop.defaults.strings = {
        {"SigningMode", "enclave"}, {"APIKey", key}, {"ServerURL", "https://own.example"}};
    desktop.alerts.leavesDialogsOpen = true;
    SigningCoordinator coordinator(desktop.services());
    coordinator.startSigning();
    desktop.loop.run();
    EXPECT_THAT(desktop.trace,
                ElementsAre("alert: Quillseal Is Not Configured | This build has no server API "
                            "key. Open Settings and enter the server URL and native API key, or "
                            "install a packaged build from your provider."));

    // The alert is still open.
    desktop.defaults.strings["APIKey"] = "s3cret";
    coordinator.startSigning();
    desktop.loop.run();
    EXPECT_THAT(desktop.trace, Contains("POST /api/register_native"));
    EXPECT_TRUE(desktop.keyStore.hasKey);
  }
}

TEST(DevelopmentBuild, SendsNothingToAServerThatNobodyNamed) {
  const std::string alert =
      "alert: Quillseal Is Not Configured | No signing server is set. Open Settings and enter the "
      "server URL.";
  for (const char* server : {"", "\n", " https://quillseal.example"})
    for (const char* mode : {"enclave", "handoff"})
      for (const bool hasKey : {false, true}) {
        FakeDesktop desktop;
        desktop.keyStore.hasKey = hasKey;
        desktop.defaults.strings = {{"APIKey", "k"}, {"ServerURL", server}, {"SigningMode", mode}};
        SigningCoordinator coordinator(desktop.services());
        coordinator.startSigning();
        desktop.loop.run();
        EXPECT_THAT(desktop.trace, ElementsAre(alert));
        TaskScope enrolment;
        enrolment.start(coordinator.enrolDevice());
        desktop.loop.run();
        EXPECT_THAT(desktop.trace, ElementsAre(alert, alert));
        EXPECT_EQ(desktop.keyStore.hasKey, hasKey);
      }
}

TEST(DevelopmentBuild, LetsTheServerBeEntered) {
  FakeDesktop desktop;
  SigningCoordinator coordinator(desktop.services());
  MenuBarManager manager(desktop.services(), coordinator);
  manager.setupMenu();
  manager.configureServer();
  EXPECT_THAT(desktop.statusItem.menu.items,
              Contains(Field(&desktop::MenuItem::title, "Server: https://quillseal.example")));
  EXPECT_EQ(desktop.windows.form.sections.at(0).header, "Server Configuration (development build)");
}

}  // namespace
}  // namespace quillseal
