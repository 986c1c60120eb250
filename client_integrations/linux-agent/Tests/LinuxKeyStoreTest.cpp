#include <chrono>
#include <deque>
#include <filesystem>
#include <future>
#include <optional>

#include <gmock/gmock.h>

#include "KeyChecks.h"
#include "TemporaryFolder.h"
#include "keys/FileKeyStore.h"
#include "keys/KeyFailure.h"
#include "keys/LinuxKeyStore.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::failureOf;

constexpr P256::Digest digest{7, 7, 7};
constexpr auto cancel = std::nullopt;
constexpr ScryptCost cheap{.n = 16, .r = 8, .p = 1};

/// Answers from a list and records the questions. Unexpected questions are cancelled.
class ScriptedPrompt final : public SecretPrompt {
 public:
  std::optional<SecretBytes> ask(const SecretRequest& request) override {
    asked.push_back(request);
    problems.push_back(request.problem);
    if (whileAsked) whileAsked();
    return answer();
  }
  std::optional<SecretBytes> askForNew(const NewSecretRequest& request) override {
    askedForNew.push_back(request);
    problems.push_back(request.problem);
    return answer();
  }

  std::deque<std::optional<std::string>> answers;
  std::vector<SecretRequest> asked;
  std::vector<NewSecretRequest> askedForNew;
  std::vector<std::string> problems;  ///< of all questions
  std::function<void()> whileAsked;

 private:
  std::optional<SecretBytes> answer() {
    if (answers.empty()) return std::nullopt;
    const std::optional<std::string> next = answers.front();
    answers.pop_front();
    return next ? std::optional<SecretBytes>(*next) : std::nullopt;
  }
};

/// A fake TPM with real keys in a file. The test adds, removes and breaks it.
class ScriptedTpm final : public KeyMedium {
 public:
  explicit ScriptedTpm(const std::filesystem::path& folder)
      : file_({.path = folder / "tpm" / "key", .cost = cheap}),
        other_({.path = folder / "tpm" / "other", .cost = cheap}) {}

  SecretKind secretKind() const noexcept override { return kind; }
  KeyPlace place() const noexcept override { return KeyPlace::tpm; }
  std::string name() const override { return "the TPM of this computer"; }
  std::string describe() const override { return "The key is in the TPM."; }
  std::string weakness() const override { return itsWeakness; }
  std::string obstacle() const override { return itsObstacle; }
  std::string evidentObstacle() const override { return itsObstacle; }
  bool holdsKey() const noexcept override { return file_.holdsKey(); }
  void create(const SecretBytes& secret) override {
    if (whileWorking) whileWorking();
    file_.create(secret);
  }
  P256::Point publicKey() const override {
    if (whileWorking) whileWorking();
    return file_.publicKey();
  }
  Readiness requireUsableKey() const override {
    if (!defect.empty()) throw KeyFailure(defect);
    ++kept;
    return {this, [this](const void*) { --kept; }};
  }
  std::optional<std::vector<std::uint8_t>> sign(const P256::Digest& message,
                                                const SecretBytes& secret) const override {
    if (!foreignSignatures) return file_.sign(message, secret);
    other_.create(secret);
    return other_.sign(message, secret);
  }
  void remove() noexcept override { file_.remove(); }

  SecretKind kind = SecretKind::pin;
  std::string itsObstacle;
  std::string itsWeakness;
  std::string defect;  ///< of the key
  std::function<void()> whileWorking;
  bool foreignSignatures = false;
  mutable int kept = 0;  ///< loaded keys

 private:
  FileKeyStore file_;
  mutable FileKeyStore other_;
};

class LinuxKeyStoreTest : public ::testing::Test {
 protected:
  LinuxKeyStoreTest() {
    std::vector<std::unique_ptr<KeyMedium>> media;
    media.push_back(std::move(made));
    media.push_back(std::make_unique<FileKeyStore>(
        FileKeyStore::Options{.path = folder.path() / "file" / "key", .cost = cheap}));
    store = std::make_unique<LinuxKeyStore>(std::move(media), prompt);
  }

  /// What it says when it fails.
  std::string create(std::deque<std::optional<std::string>> answers) {
    prompt.answers = std::move(answers);
    return failureOf([&] { static_cast<void>(store->create()); });
  }
  std::string sign(std::deque<std::optional<std::string>> answers) {
    prompt.answers = std::move(answers);
    return failureOf([&] {
      signature = store->load(desktop::Prompt{.reason = "Sign “x” as y", .medium = "LinkedIn Post"})
                      ->sign(digest);
    });
  }
  P256::Point publicKey() {
    const auto bytes = store->load(std::nullopt)->publicKey();
    P256::Point point{};
    if (bytes && bytes->size() == point.size())
      std::copy(bytes->begin(), bytes->end(), point.begin());
    return point;
  }

  std::vector<std::uint8_t> signature;
  testing::TemporaryFolder folder;
  std::unique_ptr<ScriptedTpm> made = std::make_unique<ScriptedTpm>(folder.path());
  ScriptedTpm& tpm = *made;
  ScriptedPrompt prompt;
  std::unique_ptr<LinuxKeyStore> store;
};

const std::string done = "(no failure)";
const std::string pin = "123457";
const std::string passphrase = "a long passphrase";

TEST_F(LinuxKeyStoreTest, SignsWithTheTpmWhereItIsUsable) {
  EXPECT_TRUE(store->isAvailable());
  EXPECT_EQ(store->load(std::nullopt), nullptr);
  EXPECT_EQ(create({pin}), done);
  EXPECT_EQ(prompt.askedForNew.back().kind, SecretKind::pin);
  EXPECT_EQ(prompt.askedForNew.back().notice, "");

  EXPECT_EQ(sign({pin}), done);
  EXPECT_TRUE(P256::verifies({.publicKey = publicKey(), .digest = digest, .signature = signature}));
  EXPECT_EQ(prompt.asked.back().reason, "Sign “x” as y");
  EXPECT_EQ(prompt.asked.back().destination, "LinkedIn Post");
  EXPECT_EQ(prompt.asked.back().medium, "The key is in the TPM.");

  store->remove();
  store->remove();
  EXPECT_EQ(store->load(std::nullopt), nullptr);
}

TEST_F(LinuxKeyStoreTest, WithoutATpmAKeyFileServesAndThePersonIsTold) {
  tpm.itsObstacle = "there is no TPM.";
  EXPECT_TRUE(store->isAvailable());
  EXPECT_EQ(create({passphrase}), done);
  EXPECT_EQ(prompt.askedForNew.back().kind, SecretKind::passphrase);
  EXPECT_EQ(prompt.askedForNew.back().notice, "There is no TPM.");
  EXPECT_EQ(store->advice(), "There is no TPM.");
  EXPECT_EQ(sign({passphrase}), done);

  // A damaged key stays until it is replaced.
  testing::overwrite(folder.path() / "file" / "key", "rubbish");
  ASSERT_NE(store->load(std::nullopt), nullptr);
  EXPECT_EQ(store->load(std::nullopt)->publicKey(), std::nullopt);
  EXPECT_THAT(store->advice(), HasSubstr("is damaged"));
  EXPECT_THAT(sign({}), HasSubstr("is damaged"));
  EXPECT_EQ(create({passphrase}), done);
  EXPECT_EQ(sign({passphrase}), done);
}

TEST_F(LinuxKeyStoreTest, NothingUsableIsUnavailable) {
  tpm.itsObstacle = "there is no TPM.";
  testing::overwrite(folder.path() / "file", "a file where the folder should be");
  EXPECT_FALSE(store->isAvailable());
  EXPECT_THAT(create({passphrase}), HasSubstr("There is no TPM. “"));
  EXPECT_THAT(prompt.askedForNew, IsEmpty());
}

TEST_F(LinuxKeyStoreTest, ThreeWrongTriesEndTheMatter) {
  EXPECT_EQ(create({pin}), done);
  EXPECT_EQ(sign({"wrong1", "wrong2", pin}), done);
  const std::string wrong = "This PIN is wrong.";
  EXPECT_THAT(prompt.problems, ElementsAre("", "", wrong, wrong));
  EXPECT_EQ(prompt.asked[2].attempt, 3);
  EXPECT_EQ(sign({"wrong1", "wrong2", "wrong3", pin}), "the PIN was wrong three times.");
  EXPECT_EQ(prompt.asked.size(), 6U);
  EXPECT_EQ(tpm.kept, 0);
}

TEST_F(LinuxKeyStoreTest, CancellingIsNoFailureAndCostsNothing) {
  EXPECT_EQ(create({pin}), done);
  const P256::Point before = publicKey();
  EXPECT_EQ(sign({"wrong1", cancel}), "no PIN was entered.");
  EXPECT_EQ(create({cancel}), "cancelled");
  EXPECT_EQ(publicKey(), before);
  EXPECT_EQ(sign({pin}), done);
}

TEST_F(LinuxKeyStoreTest, AWeakSecretIsAskedForAgain) {
  EXPECT_EQ(create({"1234", "111111", pin}), done);
  tpm.kind = SecretKind::unguardedPin;
  tpm.itsWeakness = "The lock can be undone.";
  EXPECT_EQ(store->advice(), tpm.itsWeakness);
  EXPECT_EQ(create({pin, "2718281828459", "quiet 7 leaf"}), done);
  EXPECT_THAT(prompt.problems,
              ElementsAre("", HasSubstr("too short"), HasSubstr("repeats"), "",
                          HasSubstr("at least 10 characters"), HasSubstr("no letters")));
  EXPECT_EQ(store->advice(), tpm.itsWeakness);
}

TEST_F(LinuxKeyStoreTest, AKeyThatCannotSignIsReportedBeforeAnybodyIsAsked) {
  EXPECT_EQ(create({pin}), done);
  tpm.defect = "the TPM was cleared.";
  EXPECT_EQ(sign({}), tpm.defect);
  EXPECT_THAT(prompt.asked, IsEmpty());
  ASSERT_NE(store->load(std::nullopt), nullptr);

  tpm.defect.clear();
  tpm.foreignSignatures = true;
  EXPECT_THAT(sign({pin}), HasSubstr("does not match the key"));
}

// A key stays where it is until the user agrees to another place.
TEST_F(LinuxKeyStoreTest, NoMediumTakesOverSilently) {
  tpm.itsObstacle = "there is no TPM.";
  EXPECT_EQ(create({passphrase}), done);
  const P256::Point inFile = publicKey();

  tpm.itsObstacle.clear();
  EXPECT_EQ(publicKey(), inFile);
  EXPECT_EQ(store->place(), KeyPlace::keyFile);
  EXPECT_EQ(create({cancel}), "cancelled");
  EXPECT_EQ(prompt.askedForNew.back().notice,
            "Your present key is in a key file. It will be replaced by a new one in the TPM of "
            "this computer.");
  tpm.whileWorking = [] { throw KeyFailure("the TPM has failed."); };
  EXPECT_EQ(create({pin}), "the TPM has failed.");
  EXPECT_EQ(publicKey(), inFile);

  tpm.whileWorking = nullptr;
  EXPECT_EQ(create({pin}), done);
  EXPECT_EQ(store->place(), KeyPlace::tpm);
  const P256::Point inTpm = publicKey();
  EXPECT_NE(inTpm, inFile);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "file" / "key"));

  tpm.itsObstacle = tpm.defect = "the TPM is switched off.";
  EXPECT_EQ(store->place(), KeyPlace::tpm);
  EXPECT_EQ(store->advice(), "The TPM is switched off.");
  EXPECT_EQ(sign({}), "the TPM is switched off.");
  EXPECT_EQ(create({cancel}), "cancelled");
  EXPECT_EQ(prompt.askedForNew.back().notice,
            "The TPM is switched off. Your present key is in the TPM of this computer. It will be "
            "replaced by a new one in a key file.");
  tpm.itsObstacle.clear();
  EXPECT_EQ(publicKey(), inTpm);
}

TEST_F(LinuxKeyStoreTest, AMediumIsFreeWhileThePersonIsAskedButNotWhileItWorks) {
  std::future<bool> other;
  std::future_status status{};
  const auto look = [&](std::chrono::milliseconds patience) {
    other = std::async(std::launch::async, [&] { return store->isAvailable(); });
    status = other.wait_for(patience);
  };
  tpm.whileWorking = [&] { look(std::chrono::milliseconds(50)); };
  EXPECT_EQ(create({pin}), done);
  EXPECT_EQ(status, std::future_status::timeout);
  other.wait();
  static_cast<void>(publicKey());
  EXPECT_EQ(status, std::future_status::timeout);
  other.wait();
  tpm.whileWorking = nullptr;
  prompt.whileAsked = [&] { look(std::chrono::seconds(5)); };
  EXPECT_EQ(sign({pin}), done);
  EXPECT_EQ(status, std::future_status::ready);
}

TEST(MakeKeyStore, TakesASimulatorOnlyByName) {
  const testing::TemporaryFolder folder;
  ScriptedPrompt prompt;
  const auto make = [&](const std::string& tpm) {
    return makeKeyStore({.folder = folder.path().string(), .tpm = tpm}, prompt);
  };
  EXPECT_EQ(make("none")->place(), KeyPlace::keyFile);
  EXPECT_EQ(make("none")->advice(), "");
  const auto simulated = make("swtpm:path=/nowhere");
  for (const std::string& told : {simulated->describe(), simulated->advice()})
    EXPECT_THAT(told, HasSubstr("simulator (swtpm:path=/nowhere)"));
  for (const char* unknown : {"tabrmd:", "/tmp/library.so", "swtpm", "device:/dev/tpm0"})
    EXPECT_THROW(static_cast<void>(make(unknown)), KeyFailure) << unknown;
}

}  // namespace
}  // namespace quillseal::linux
