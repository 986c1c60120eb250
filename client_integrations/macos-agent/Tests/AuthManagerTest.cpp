#include <string>
#include <utility>
#include <variant>

#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/AuthManager.h"
#include "TaskResult.h"

namespace quillseal {
namespace {

using desktop::Biometry;
using desktop::PresenceCapability;
using testing::FakeDesktop;
using testing::resultOf;

const PresenceCapability usable{.available = true, .reason = {}};
const PresenceCapability silent{.available = false, .reason = {}};

PresenceCapability refusing(const std::string& words) {
  return {.available = false, .reason = Error({.domain = "LA", .code = -5, .description = words})};
}

/// "passed", "not passed", or the failure.
std::string attempt(FakeDesktop& desktop) {
  desktop::Prompt prompt{.reason = "Sign this", .medium = {}};
  const AuthManager::Services services{.loop = desktop.loop, .presence = desktop.presence};
  const Outcome<bool> outcome =
      resultOf(desktop.loop, AuthManager::authenticate(services, std::move(prompt)));
  if (const Error* error = std::get_if<Error>(&outcome))
    return error->domain() + " " + std::to_string(error->code()) + ": " + error->what();
  return std::get<bool>(outcome) ? "passed" : "not passed";
}

TEST(AuthManager, FallsBackFromBiometricsToThePassword) {
  const Error cancelled({.domain = "LA", .code = -2, .description = "Canceled by user."});
  const struct {
    PresenceCapability biometrics, biometricsOrPassword;
    Outcome<bool> presence;
    std::string prompt, result;
  } cases[] = {
      {usable, usable, true, "presence: Sign this", "passed"},
      {usable, silent, false, "presence: Sign this", "not passed"},
      {usable, usable, cancelled, "presence: Sign this", "LA -2: Canceled by user."},
      {refusing("no finger"), usable, true, "presence or password: Sign this", "passed"},
      {silent, usable, cancelled, "presence or password: Sign this", "LA -2: Canceled by user."},
      {refusing("no finger"), refusing("no password"), true, "", "LA -5: no password"},
      {refusing("no finger"), silent, true, "", "AuthManager -1: Authentication not available"},
  };
  for (const auto& c : cases) {
    FakeDesktop desktop;
    desktop.presence.biometrics = c.biometrics;
    desktop.presence.biometricsOrPassword = c.biometricsOrPassword;
    desktop.presence.outcome = c.presence;
    EXPECT_EQ(attempt(desktop), c.result);
    EXPECT_EQ(desktop.trace.empty() ? "" : desktop.trace.back(), c.prompt) << c.result;
    EXPECT_LE(desktop.trace.size(), 1U) << "asked twice";
  }
}

TEST(AuthManager, NamesTheBiometryThatCanBeUsed) {
  const struct {
    PresenceCapability biometrics;
    Biometry biometry;
    std::string name;
  } cases[] = {
      {usable, Biometry::touchId, "Touch ID"},        {usable, Biometry::faceId, "Face ID"},
      {usable, Biometry::other, "Device Passcode"},   {usable, Biometry::none, "Device Passcode"},
      {silent, Biometry::touchId, "Device Passcode"},
  };
  for (const auto& c : cases) {
    FakeDesktop desktop;
    desktop.presence.biometrics = c.biometrics;
    desktop.presence.ofMachine = c.biometry;
    const AuthManager::Services services{.loop = desktop.loop, .presence = desktop.presence};
    const auto method = resultOf(desktop.loop, AuthManager::biometryMethod(services));
    EXPECT_EQ(std::get<std::string>(method), c.name);
  }
}

}  // namespace
}  // namespace quillseal
