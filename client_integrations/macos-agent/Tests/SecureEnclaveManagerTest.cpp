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

const std::string digest = "00ff10a0" + std::string(56, '3');

Outcome<std::string> sign(FakeDesktop& desktop, const std::string& textHashHex) {
  const SecureEnclaveManager::Services services{.keyStore = desktop.keyStore,
                                                .log = desktop.log,
                                                .loop = desktop.loop,
                                                .words = desktop.words};
  return resultOf(desktop.loop, SecureEnclaveManager::sign(
                                    services, {.textHashHex = textHashHex,
                                               .prompt = {.reason = "Sign this", .medium = {}}}));
}

TEST(SecureEnclaveManager, SignsTheBytesOfAWholeDigestOnly) {
  FakeDesktop desktop;
  const std::string all = digest.substr(2), begun = digest.substr(0, 62);
  for (const std::string& malformed : {std::string(), digest.substr(1), digest + "0", digest + "00",
                                       "g0" + all, "+1" + all, begun + " 1", begun + "\u00E9"})
    EXPECT_STREQ(std::get<Error>(sign(desktop, malformed)).what(),
                 "Secure Enclave signing failed: content hash is not a 64-char hex digest")
        << malformed;
  EXPECT_THAT(desktop.trace, IsEmpty());
  // The signature of a fake key is what it signs, here in Base64.
  const std::string signature = "AP8QoDMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzMzM=";
  EXPECT_EQ(std::get<std::string>(sign(desktop, digest)), signature);
  EXPECT_EQ(std::get<std::string>(sign(desktop, "00FF10a0" + digest.substr(8))), signature);
  EXPECT_THAT(desktop.trace, ElementsAre("prompt: Sign this", "prompt: Sign this"));
}

}  // namespace
}  // namespace quillseal
