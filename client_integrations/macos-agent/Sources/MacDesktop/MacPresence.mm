#import "MacDesktop/MacPresence.h"

#import <LocalAuthentication/LocalAuthentication.h>

#include "MacDesktop/Completion.h"
#include "MacDesktop/MacError.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

LAPolicy policyFrom(desktop::PresencePolicy policy) {
  switch (policy) {
    case desktop::PresencePolicy::biometrics:
      return LAPolicyDeviceOwnerAuthenticationWithBiometrics;
    case desktop::PresencePolicy::biometricsOrPassword:
      return LAPolicyDeviceOwnerAuthentication;
  }
}

}  // namespace

desktop::PresenceCapability MacPresence::canEvaluate(desktop::PresencePolicy policy) const {
  return callSystem([&] {
    LAContext* context = [[LAContext alloc] init];
    NSError* error = nil;
    desktop::PresenceCapability capability;
    capability.available = [context canEvaluatePolicy:policyFrom(policy) error:&error];
    if (!capability.available && error != nil) capability.reason = errorFrom(error);
    return capability;
  });
}

desktop::Biometry MacPresence::biometry() const {
  return callSystem([] {
    LAContext* context = [[LAContext alloc] init];
    // The context knows the biometry type only after this call, even if the call fails.
    [context canEvaluatePolicy:LAPolicyDeviceOwnerAuthenticationWithBiometrics error:nil];
    const LABiometryType type = context.biometryType;
    if (type == LABiometryTypeNone) return desktop::Biometry::none;
    if (type == LABiometryTypeTouchID) return desktop::Biometry::touchId;
    if (type == LABiometryTypeFaceID) return desktop::Biometry::faceId;
    return desktop::Biometry::other;
  });
}

desktop::Ticket MacPresence::evaluate(desktop::PresencePolicy policy, const desktop::Prompt& prompt,
                                      std::function<void(Outcome<bool>)> done) {
  const Completion<Outcome<bool>> completion(std::move(done));
  return callSystem([&] {
    LAContext* context = [[LAContext alloc] init];
    if (policy == desktop::PresencePolicy::biometrics) {
      context.localizedFallbackTitle =
          @"";  // hides the password button, which could only fail here
    }
    const MacMainLoop::Poster poster = poster_;
    const auto answered = completion;
    [context evaluatePolicy:policyFrom(policy)
            localizedReason:nsString(prompt.reason)
                      reply:^(BOOL success, NSError* error) {
                        Outcome<bool> outcome = static_cast<bool>(success);
                        if (!success && error != nil) outcome = errorFrom(error);
                        poster.post([answered, outcome] { answered(outcome); });
                      }];
    // The ticket keeps the context alive: releasing it closes the prompt.
    return completion.ticket([context] { [context invalidate]; });
  });
}

}  // namespace quillseal::mac
