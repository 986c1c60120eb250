#include <atomic>
#include <barrier>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "Registry.h"

namespace quillseal::devserver {
namespace {

class RegistryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = ::testing::TempDir() + "/registry-XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string path() const { return (folder_ / "registry.sqlite").string(); }

  void expectRefused(const char* what) const {
    const auto contents = [&] {
      std::ifstream file(path(), std::ios::binary);
      return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string before = contents();
    EXPECT_THROW(Registry{path()}, RegistryError) << what;
    EXPECT_EQ(contents(), before) << what;
  }

 private:
  std::filesystem::path folder_;
};

TEST_F(RegistryTest, KeepsEveryFieldAcrossRuns) {
  Signature signature;
  signature.id = "s1";
  signature.kind = SignatureKind::demonstration;
  signature.scope = std::string("a\0b 'quoted' 『』", 19);
  signature.nonce = "n1";
  signature.utcOffsetMinutes = -210;
  signature.recordedAt = 5'000'000'000;
  {
    Registry registry(path());
    registry.enrol({.deviceId = "d", .publicKey = "k", .identity = "Ada"}, 7);
    ASSERT_TRUE(registry.record(signature));
  }
  Registry registry(path());
  EXPECT_EQ(registry.device("d")->identity, "Ada");
  EXPECT_FALSE(registry.device("D").has_value());
  const auto kept = registry.signature("s1");
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(kept->kind, signature.kind);
  EXPECT_EQ(kept->scope, signature.scope);
  EXPECT_EQ(kept->utcOffsetMinutes, signature.utcOffsetMinutes);
  EXPECT_EQ(kept->recordedAt, signature.recordedAt);
  signature.id = "s2";
  EXPECT_FALSE(registry.record(signature)) << "the nonce is known from the first run";
  EXPECT_FALSE(registry.signature("s2").has_value());
}

TEST_F(RegistryTest, ASignatureThatCannotBeRecordedEndsNoHandoff) {
  Registry registry(path());
  Handoff handoff;
  handoff.id = "h";
  registry.open(handoff);
  Signature signature;
  signature.id = "s";
  ASSERT_TRUE(registry.record(signature));
  EXPECT_THROW((void)registry.complete("h", signature), RegistryError);
  EXPECT_EQ(registry.handoff("h")->state, HandoffState::open);
  signature.id = "u";
  signature.nonce = "n2";
  EXPECT_TRUE(registry.complete("h", signature));
  EXPECT_EQ(registry.handoff("h")->signatureId, "u");
}

TEST_F(RegistryTest, OfManyThreadsOneEndsAHandoff) {
  Registry registry(":memory:");
  for (int round = 0; round < 50; ++round) {
    Handoff handoff;
    handoff.id = std::to_string(round);
    registry.open(handoff);
    std::barrier start(4);
    std::atomic<int> ended = 0, recorded = 0;
    std::vector<std::jthread> workers;
    for (int worker = 0; worker < 4; ++worker) {
      workers.emplace_back([&, id = handoff.id + '/' + std::to_string(worker)] {
        Signature signature;
        signature.id = id;
        start.arrive_and_wait();
        const bool hasEnded = registry.complete(handoff.id, signature);
        if (hasEnded) ++ended;
        start.arrive_and_wait();
        if (registry.signature(id)) ++recorded;
        EXPECT_EQ(registry.handoff(handoff.id)->signatureId == id, hasEnded);
      });
    }
    workers.clear();
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(recorded, 1) << "only the signature that ended the handoff is recorded";
  }
}

TEST_F(RegistryTest, LeavesAFileThatIsNotItsOwnAlone) {
  std::ofstream(path()) << std::string(4096, 'x');
  expectRefused("text");
  // Another program's tables and marks, and a later version of this server's.
  for (const char* statement :
       {"CREATE TABLE devices (id)", "PRAGMA user_version = 1", "PRAGMA application_id = 7",
        "PRAGMA application_id = 0x516C5372; PRAGMA user_version = 99"}) {
    std::filesystem::remove(path());
    SQLite::Database(path(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(statement);
    expectRefused(statement);
  }
  EXPECT_THROW(Registry{path() + "/no/such/folder"}, RegistryError);
}

}  // namespace
}  // namespace quillseal::devserver
