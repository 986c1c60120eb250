#include <array>
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "KeyChecks.h"
#include "TemporaryFolder.h"
#include "keys/FileKeyStore.h"
#include "keys/KeyFile.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::failureOf;
namespace fs = std::filesystem;

constexpr ScryptCost cheap{.n = 16, .r = 8, .p = 1};
constexpr P256::Digest digest{0x9f, 0x86, 0xd0, 0x81, 0x88};

constexpr std::array<std::string_view, 2> labels{"PUBLIC KEY", "ENCRYPTED PRIVATE KEY"};

SecretBytes passphrase() {
  return SecretBytes("correct horse battery");
}

class FileKeyStoreTest : public ::testing::Test {
 protected:
  std::string signFailure() {
    return failureOf([&] { static_cast<void>(store.sign(digest, passphrase())); });
  }

  testing::TemporaryFolder folder;
  fs::path path = folder.path() / "data" / "quillseal" / "key.pem";
  FileKeyStore store{{.path = path, .cost = cheap}};
};

TEST_F(FileKeyStoreTest, SignsSoThatThePublicKeyVerifies) {
  const auto open = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); };
  const auto before = open();
  EXPECT_EQ(store.obstacle(), "");
  EXPECT_FALSE(store.holdsKey());
  EXPECT_THAT(store.describe(), StartsWith("The key will be in the file “"));
  store.create(passphrase());
  ASSERT_TRUE(store.holdsKey());
  EXPECT_THAT(store.describe(), StartsWith("The key is in the file “"));

  const P256::Point publicKey = store.publicKey();
  P256::Digest other = digest;
  other.back() ^= 1U;
  // Enough for some integers with leading zero bytes, which DER omits.
  for (int round = 0; round < 200; ++round) {
    const auto signature = store.sign(digest, passphrase());
    ASSERT_TRUE(signature);
    EXPECT_TRUE(testing::isAcceptedByServer(
        {.publicKey = publicKey, .digest = digest, .signature = *signature}));
    EXPECT_FALSE(testing::isAcceptedByServer(
        {.publicKey = publicKey, .digest = other, .signature = *signature}));
  }
  for (const std::string_view wrong : {"", "correct horse batterz", "correct horse battery "})
    EXPECT_FALSE(store.sign(digest, SecretBytes(wrong))) << wrong;
  EXPECT_EQ(open(), before);
}

TEST_F(FileKeyStoreTest, OnlyThisUserMayRead) {
  fs::create_directories(path.parent_path());
  // An earlier run was interrupted.
  testing::overwrite(path.parent_path() / ".key.pem.new", "half a key");
  ASSERT_EQ(::chmod(path.parent_path().c_str(), 0755), 0);
  store.create(passphrase());
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(fs::status(path.parent_path()).permissions(), fs::perms::owner_all);
}

TEST_F(FileKeyStoreTest, EveryDamagedByteIsNoticed) {
  store.create(passphrase());
  const std::string whole = testing::contentsOf(path);
  const std::size_t start = whole.find("SHA-256");
  ASSERT_NE(start, std::string::npos);
  for (std::size_t at = start; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = damaged[at] == 'A' ? 'B' : 'A';
    testing::overwrite(path, damaged);
    EXPECT_THAT(signFailure(), HasSubstr("is damaged")) << at;
  }
  for (const std::size_t length : {std::size_t{0}, std::size_t{1}, whole.size() - 1}) {
    testing::overwrite(path, std::string_view(whole).substr(0, length));
    EXPECT_THAT(signFailure(), HasSubstr("is damaged")) << length;
    EXPECT_TRUE(store.holdsKey());
  }
  testing::overwrite(path, std::string(100'000, 'x'));
  EXPECT_THAT(signFailure(), HasSubstr("far too large"));

  store.create(passphrase());
  EXPECT_TRUE(store.sign(digest, passphrase()));
}

TEST_F(FileKeyStoreTest, AnExchangedPublicHalfIsNoticed) {
  store.create(passphrase());
  const fs::path otherPath = folder.path() / "data" / "quillseal" / "other.pem";
  FileKeyStore other({.path = otherPath, .cost = cheap});
  other.create(passphrase());

  const auto own = KeyFile::read(testing::contentsOf(path), labels);
  const auto foreign = KeyFile::read(testing::contentsOf(otherPath), labels);
  ASSERT_TRUE(own && foreign);
  constexpr std::array<std::string_view, 2> others{"PUBLIC KEY", "PRIVATE KEY"};
  EXPECT_FALSE(KeyFile::read(testing::contentsOf(path), others));
  testing::overwrite(path, KeyFile::write("", std::array{foreign->front(), own->back()}));
  EXPECT_THAT(signFailure(), HasSubstr("tampered with"));
}

TEST_F(FileKeyStoreTest, AsRootAnotherUsersKeyIsNotUsed) {
  constexpr uid_t nobody = 65534;
  store.create(passphrase());
  ASSERT_EQ(::chown(path.c_str(), nobody, nobody), 0);
  EXPECT_THAT(signFailure(), HasSubstr("the file “" + path.string() + "” belongs to another user"));
  ASSERT_EQ(::chown(path.parent_path().c_str(), nobody, nobody), 0);
  EXPECT_THAT(signFailure(), HasSubstr("the folder “"));
  EXPECT_THAT(store.obstacle(), HasSubstr("belongs to another user"));
}

// With the most work that such a file can demand, OpenSSL would need years.
TEST_F(FileKeyStoreTest, AFileThatTakesTooLongIsNotOpened) {
  store.create(passphrase());
  auto blocks = KeyFile::read(testing::contentsOf(path), labels);
  ASSERT_TRUE(blocks);
  std::vector<std::uint8_t>& bytes = blocks->back().bytes;
  std::string key(bytes.begin(), bytes.end());
  // A salt of 16 bytes, the INTEGERs N, r and p (RFC 7914, section 7.1), and the cipher AES-256-CBC
  // (2.16.840.1.101.3.4.1.42).
  const std::size_t salt = key.find("\x04\x10"),
                    cost = key.find("\x02\x01\x10\x02\x01\x08\x02\x01\x01");
  EXPECT_EQ(cost, salt + 18);
  EXPECT_THAT(key, HasSubstr("\x06\x09\x60\x86\x48\x01\x65\x03\x04\x01\x2a"));
  key.replace(cost, 9, "\x02\x01\x40\x02\x01\x7f\x02\x01\x7f");
  bytes.assign(key.begin(), key.end());
  testing::overwrite(path, KeyFile::write("", *blocks));
  EXPECT_THAT(signFailure(), HasSubstr("is damaged"));
}

TEST_F(FileKeyStoreTest, WhatSomebodyElsePutThereIsNotUsed) {
  store.create(passphrase());
  const fs::path elsewhere = folder.path() / "elsewhere.pem";
  fs::rename(path, elsewhere);
  fs::create_symlink(elsewhere, path);
  EXPECT_THAT(signFailure(), HasSubstr("only a link"));
  EXPECT_TRUE(store.holdsKey());
  store.create(passphrase());
  EXPECT_FALSE(fs::is_symlink(path));
  EXPECT_TRUE(fs::exists(elsewhere));

  for (const mode_t mode : {0640U, 0620U, 0604U, 0602U}) {
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    EXPECT_THAT(signFailure(), HasSubstr("opened by other users")) << mode;
  }

  fs::remove(path);
  EXPECT_THAT(signFailure(), HasSubstr("is gone. Enrol this computer again"));
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_THAT(signFailure(), HasSubstr("is not a file"));

  fs::remove_all(path.parent_path());
  fs::create_directory(folder.path() / "real");
  fs::create_directory_symlink(folder.path() / "real", path.parent_path());
  EXPECT_THAT(failureOf([&] { store.create(passphrase()); }), HasSubstr("a link or not a folder"));
  EXPECT_TRUE(fs::is_empty(folder.path() / "real"));

  fs::remove_all(folder.path() / "data");
  testing::overwrite(folder.path() / "data", "a file where a folder should be");
  EXPECT_THAT(failureOf([&] { store.create(passphrase()); }), HasSubstr("could not"));
  EXPECT_FALSE(store.holdsKey());
}

TEST_F(FileKeyStoreTest, AFullDiskKeepsTheOldKey) {
  store.create(passphrase());
  const P256::Point before = store.publicKey();
  std::string failure;
  testing::onFullDisk(100, [&] { failure = failureOf([&] { store.create(passphrase()); }); });
  EXPECT_THAT(failure, StartsWith("could not write"));
  EXPECT_EQ(store.publicKey(), before);
  EXPECT_TRUE(store.sign(digest, passphrase()));
  EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), {}), 1);
}

}  // namespace
}  // namespace quillseal::linux
