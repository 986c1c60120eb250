#include <chrono>
#include <deque>
#include <filesystem>
#include <future>
#include <map>
#include <optional>

#include <gmock/gmock.h>

#include "Cases.h"
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
constexpr ScryptCost cheap{.n = 16, .r = 8, .p = 1};

/// Answers from a list and records the questions. "cancel" and unexpected questions are cancelled.
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

  std::deque<std::string> answers;
  std::vector<SecretRequest> asked;
  std::vector<NewSecretRequest> askedForNew;
  std::vector<std::string> problems;  ///< of all questions
  std::function<void()> whileAsked;

 private:
  std::optional<SecretBytes> answer() {
    if (answers.empty()) return std::nullopt;
    const std::string next = answers.front();
    answers.pop_front();
    return next == "cancel" ? std::nullopt : std::optional<SecretBytes>(next);
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

/// A computer with a TPM and a key file, and its user.
struct Story {
  Story() {
    std::vector<std::unique_ptr<KeyMedium>> media;
    media.push_back(std::move(made));
    media.push_back(std::make_unique<FileKeyStore>(
        FileKeyStore::Options{.path = folder.path() / "file" / "key", .cost = cheap}));
    store = std::make_unique<LinuxKeyStore>(std::move(media), prompt);
  }

  /// What it says when it fails.
  std::string create(std::deque<std::string> answers) {
    prompt.answers = std::move(answers);
    return failureOf([&] { static_cast<void>(store->create()); });
  }
  std::string sign(std::deque<std::string> answers) {
    prompt.answers = std::move(answers);
    return failureOf([&] {
      const desktop::Prompt wanted{.reason = "Sign “x” as y", .medium = "LinkedIn Post"};
      const auto signature = store->load(wanted)->sign(digest);
      EXPECT_TRUE(
          P256::verifies({.publicKey = publicKey(), .digest = digest, .signature = signature}));
    });
  }
  P256::Point publicKey() {
    const auto bytes = store->load(std::nullopt)->publicKey().value();
    P256::Point point{};
    std::ranges::copy(bytes, point.begin());
    return point;
  }

  /// What there is now, or the outcome of an action, by the name that a story gives it.
  std::string stateOf(const std::string& name) {
    auto [verb, given] = testing::divided(name, " ");
    if (verb == "create" || verb == "sign") {
      std::deque<std::string> answers;
      for (std::string answer; !given.empty();) {
        std::tie(answer, given) = testing::divided(given, " | ");
        answers.push_back(answer);
      }
      return verb == "create" ? create(std::move(answers)) : sign(std::move(answers));
    }
    if (name == "available") return store->isAvailable() ? "yes" : "no";
    if (name == "advice") return store->advice();
    if (name == "place") return store->place() == KeyPlace::tpm ? "tpm" : "file";
    if (name == "loaded") return std::to_string(tpm.kept);
    if (name == "key file") return exists(folder.path() / "file" / "key") ? "there" : "none";
    if (name == "asked for new") return std::to_string(prompt.askedForNew.size());
    if (name == "questions") return std::to_string(prompt.asked.size());
    if (name == "question") {
      const SecretRequest& last = prompt.asked.back();
      return last.reason + " | " + last.destination + " | " + last.medium + " | " +
             std::to_string(last.attempt) + " of " + std::to_string(last.attempts);
    }
    if (name == "notice") return prompt.askedForNew.back().notice;
    if (name == "kind") return std::string(nameOf(prompt.askedForNew.back().kind));
    if (name == "problems")
      return std::accumulate(
          prompt.problems.begin(), prompt.problems.end(), std::string(),
          [](const std::string& all, const std::string& one) { return all + "(" + one + ")"; });
    if (name == "problem") return std::exchange(prompt.problems, {}).back();
    if (name != "key") ADD_FAILURE() << "no story knows of " << name;
    const auto key = store->load(std::nullopt);
    if (key == nullptr) return "none";
    const auto bytes = key->publicKey();
    return bytes ? "number " + std::to_string(keys.emplace(*bytes, keys.size()).first->second)
                 : "unreadable";
  }

  void act(const std::string& line) {
    const auto [name, given] = testing::divided(line, " = ");
    const std::string value = given == "nothing" ? "" : given;
    const std::map<std::string, std::function<void()>> actions{
        {"obstacle", [&] { tpm.itsObstacle = value; }},
        {"weakness", [&] { tpm.itsWeakness = value; }},
        {"defect", [&] { tpm.defect = value; }},
        {"kind", [&] { tpm.kind = SecretKind::unguardedPin; }},
        {"signatures", [&] { tpm.foreignSignatures = value == "foreign"; }},
        {"failure",
         [&] {
           tpm.whileWorking = [value] {
             if (!value.empty()) throw KeyFailure(value);
           };
         }},
        {"file", [&] { testing::overwrite(folder.path() / "file" / "key", value); }},
        {"folder", [&] { testing::overwrite(folder.path() / "file", value); }},
        {"remove", [&] { store->remove(); }}};
    actions.at(name)();
  }

  std::map<std::vector<std::uint8_t>, std::size_t> keys;
  testing::TemporaryFolder folder;
  std::unique_ptr<ScriptedTpm> made = std::make_unique<ScriptedTpm>(folder.path());
  ScriptedTpm& tpm = *made;
  ScriptedPrompt prompt;
  std::unique_ptr<LinuxKeyStore> store;
};

TEST(LinuxKeyStore, GoesAsTold) {
  testing::tell(testing::runningTest(), [](const auto&) { return std::make_unique<Story>(); });
}

TEST(LinuxKeyStore, FreesAMediumWhileThePersonIsAskedButNotWhileItWorks) {
  Story story;
  std::future<bool> other;
  std::future_status status{};
  const auto look = [&](std::chrono::milliseconds timeout) {
    other = std::async(std::launch::async, [&] { return story.store->isAvailable(); });
    status = other.wait_for(timeout);
  };
  story.tpm.whileWorking = [&] { look(std::chrono::milliseconds(50)); };
  EXPECT_EQ(story.create({"123457"}), "(no failure)");
  EXPECT_EQ(status, std::future_status::timeout);
  other.wait();
  static_cast<void>(story.publicKey());
  EXPECT_EQ(status, std::future_status::timeout);
  other.wait();
  story.tpm.whileWorking = nullptr;
  story.prompt.whileAsked = [&] { look(std::chrono::seconds(5)); };
  EXPECT_EQ(story.sign({"123457"}), "(no failure)");
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
