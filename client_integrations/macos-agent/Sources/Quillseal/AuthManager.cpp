#include "Quillseal/AuthManager.h"

#include <functional>
#include <variant>

#include "core/tasks/Async.h"
#include "core/text/Error.h"

namespace quillseal::AuthManager {
namespace {

using desktop::Biometry;
using desktop::PresenceCapability;
using desktop::PresencePolicy;

Task<PresenceCapability> canEvaluate(Services services, PresencePolicy policy) {
  const desktop::Presence& presence = services.presence;
  return offload(services.loop, [&presence, policy] { return presence.canEvaluate(policy); });
}

Task<bool> evaluate(Services services, PresencePolicy policy, desktop::Prompt prompt) {
  const Outcome<bool> outcome = co_await completionOf<Outcome<bool>>(
      [&services, &prompt, policy](std::function<void(Outcome<bool>)> done) {
        return services.presence.evaluate(policy, prompt, std::move(done));
      });
  if (const Error* error = std::get_if<Error>(&outcome)) throw Error(*error);
  co_return std::get<bool>(outcome);
}

}  // namespace

Task<bool> authenticate(Services services, desktop::Prompt prompt) {
  const PresenceCapability biometrics = co_await canEvaluate(services, PresencePolicy::biometrics);
  PresencePolicy policy = PresencePolicy::biometrics;
  if (!biometrics.available) {
    policy = PresencePolicy::biometricsOrPassword;
    const PresenceCapability general = co_await canEvaluate(services, policy);
    if (!general.available) {
      throw general.reason.value_or(Error(
          {.domain = "AuthManager", .code = -1, .description = "Authentication not available"}));
    }
  }
  const bool passed = co_await evaluate(services, policy, std::move(prompt));
  co_return passed;
}

Task<std::string> biometryMethod(Services services) {
  const desktop::Presence& presence = services.presence;
  const Biometry biometry = co_await offload(services.loop, [&presence] {
    const bool usable = presence.canEvaluate(PresencePolicy::biometrics).available;
    return usable ? presence.biometry() : Biometry::none;
  });
  switch (biometry) {
    case Biometry::touchId:
      co_return "Touch ID";
    case Biometry::faceId:
      co_return "Face ID";
    case Biometry::none:
    case Biometry::other:
      break;
  }
  co_return "Device Passcode";
}

}  // namespace quillseal::AuthManager
