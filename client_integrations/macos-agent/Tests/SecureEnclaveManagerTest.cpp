#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/SecureEnclaveManager.h"
#include "TaskResult.h"

namespace quillseal {
namespace {

using ::testing::ElementsAre;
using testing::FakeDesktop;
using ::testing::IsEmpty;
using testing::resultOf;
using Case = SecureEnclaveError::Case;

const std::string creationFailed = "Could not create the Secure Enclave signing key: ";
const std::string signingFailed = "Secure Enclave signing failed: ";
const std::string noEnclave =
    "This Mac has no Secure Enclave, so content cannot be signed in a way that proves a person "
    "authorized it.";
const std::string noKey =
    "No Secure Enclave signing key is enrolled. Enrol this Mac in Quillseal Settings.";
const std::string digest = "00ff10a0" + std::string(56, '3');

class SecureEnclaveManagerTest : public ::testing::Test {
 protected:
  [[nodiscard]] SecureEnclaveManager::Services services() {
    return {.keyStore = desktop_.keyStore,
            .log = desktop_.log,
            .loop = desktop_.loop,
            .words = desktop_.words};
  }

  Outcome<SecureEnclaveManager::Key> create() {
    return resultOf(desktop_.loop, SecureEnclaveManager::createKey(services()));
  }

  Outcome<std::string> sign(const std::string& textHashHex) {
    SecureEnclaveManager::SigningRequest request{.textHashHex = textHashHex,
                                                 .prompt = {.reason = "Sign this", .medium = {}}};
    return resultOf(desktop_.loop, SecureEnclaveManager::sign(services(), std::move(request)));
  }

  /// Returns the failure; empty for none.
  template <typename T>
  static std::string failureOf(const Outcome<T>& outcome) {
    const Error* error = std::get_if<Error>(&outcome);
    return error ? error->what() : "";
  }

  FakeDesktop desktop_;
};

TEST_F(SecureEnclaveManagerTest, TellsWhyNoKeyCouldBeMade) {
  const struct {
    std::int64_t code;
    std::string platform, user;
  } cases[] = {
      {-34018, "",
       "this build is not code-signed with an Apple Developer identity, so macOS will not create a "
       "biometric-protected Secure Enclave key (OSStatus -34018). Quillseal will not sign without "
       "one, because it could not prove a person was present. A build signed with a Developer ID "
       "certificate is required."},
      {-25308, "User interaction is not allowed.", "User interaction is not allowed."},
      {-25300, "could not build access control", "could not build access control"},
      {-50, "", "unknown error"},
  };
  for (const auto& c : cases) {
    desktop_.trace.clear();
    desktop_.keyStore.lacksEntitlement = c.code == -34018;
    desktop_.keyStore.createFailure =
        Error({.domain = "OSStatus", .code = c.code, .description = c.platform});
    EXPECT_EQ(failureOf(create()), creationFailed + c.user);
    EXPECT_THAT(desktop_.trace, ElementsAre("log: [sign] key store failed to create the key: "
                                            "OSStatus " +
                                            std::to_string(c.code)));
  }
  desktop_.keyStore.canHoldKey = false;
  EXPECT_EQ(failureOf(create()), noEnclave);
}

TEST_F(SecureEnclaveManagerTest, AsksForNothingWhenTheDigestIsMalformed) {
  const std::string all = digest.substr(2), begun = digest.substr(0, 62);
  for (const std::string& malformed : {std::string(), digest.substr(1), digest + "0", digest + "00",
                                       "g0" + all, "+1" + all, begun + " 1", begun + "\u00E9"})
    EXPECT_EQ(failureOf(sign(malformed)),
              signingFailed + "content hash is not a 64-char hex digest")
        << malformed;
  EXPECT_THAT(desktop_.trace, IsEmpty());
}

TEST_F(SecureEnclaveManagerTest, SignsTheBytesOfTheDigestWhateverItsCase) {
  // The signature of a fake key is what it signs, here in Base64.
  const std::string signature = "AP8QoDMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzM=";
  EXPECT_EQ(std::get<std::string>(sign(digest)), signature);
  EXPECT_EQ(std::get<std::string>(sign("00FF10a0" + digest.substr(8))), signature);
  EXPECT_THAT(desktop_.trace, ElementsAre("prompt: Sign this", "prompt: Sign this"));
}

TEST_F(SecureEnclaveManagerTest, TellsWhyNothingWasSigned) {
  desktop_.keyStore.signFailure =
      Error({.domain = "LA", .code = -1, .description = "Fingerprints changed."});
  EXPECT_EQ(failureOf(sign(digest)), signingFailed + "Fingerprints changed.");
  EXPECT_EQ(desktop_.trace.back(), "log: [sign] key store failed to sign: LA -1");
  desktop_.keyStore.signFailure = Error({.domain = "LA", .code = -2, .description = ""});
  EXPECT_EQ(failureOf(sign(digest)), signingFailed + "user cancelled or biometric failed");
  desktop_.keyStore.hasKey = false;
  EXPECT_EQ(failureOf(sign(digest)), noKey);
}

TEST_F(SecureEnclaveManagerTest, ExportsThePublicHalf) {
  const auto exported = [this] {
    const auto key = std::get<SecureEnclaveManager::Key>(create());
    return resultOf(desktop_.loop, SecureEnclaveManager::exportPublicKey(services(), key));
  };
  EXPECT_EQ(std::get<std::string>(exported()), "BAEC");
  desktop_.keyStore.exportsKey = false;
  EXPECT_EQ(failureOf(exported()), "Could not export the Secure Enclave public key.");
}

TEST_F(SecureEnclaveManagerTest, DeletesAKeyThatMayBeGoneAlready) {
  for (int i = 0; i < 2; ++i) {
    TaskScope scope;
    scope.start(SecureEnclaveManager::deleteKey(services()));
    desktop_.loop.run();
    EXPECT_EQ(failureOf(resultOf(desktop_.loop, SecureEnclaveManager::loadKey(services()))), noKey);
  }
}

TEST_F(SecureEnclaveManagerTest, LeavesACancelledCreationWhatItIs) {
  desktop_.keyStore.cancelsCreation = true;
  const auto isCancelled = [](SecureEnclaveManager::Services given) -> Task<bool> {
    try {
      co_await SecureEnclaveManager::createKey(given);
    } catch (const Cancelled&) {
      co_return true;
    }
    co_return false;
  };
  EXPECT_TRUE(std::get<bool>(resultOf(desktop_.loop, isCancelled(services()))));
  EXPECT_THAT(desktop_.trace, IsEmpty());
}

}  // namespace
}  // namespace quillseal
