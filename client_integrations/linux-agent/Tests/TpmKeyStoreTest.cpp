#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <tss2/tss2_esys.h>
#include <tss2/tss2_tctildr.h>
#include <unistd.h>

#include "KeyChecks.h"
#include "Programs.h"
#include "TemporaryFolder.h"
#include "core/text/Digest.h"
#include "keys/KeyFailure.h"
#include "keys/TpmKeyStore.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

using testing::failureOf;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

/// A socket that accepts connections from now on, before there is anybody to serve them: nothing
/// has to wait for the process to start.
FileDescriptor listeningSocket(const fs::path& path) {
  fs::remove(path);
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  path.string().copy(address.sun_path, sizeof address.sun_path - 1);
  if (::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      ::listen(socket.get(), 8) != 0)
    throw std::runtime_error("no socket for the TPM");
  return socket;
}

void with(const std::string& device, const std::function<TSS2_RC(ESYS_CONTEXT*)>& command) {
  TSS2_TCTI_CONTEXT* transport = nullptr;
  ESYS_CONTEXT* context = nullptr;
  TSS2_RC code = ::Tss2_TctiLdr_Initialize(device.c_str(), &transport);
  if (code == TSS2_RC_SUCCESS) code = ::Esys_Initialize(&context, transport, nullptr);
  if (code == TSS2_RC_SUCCESS) code = command(context);
  ::Esys_Finalize(&context);
  ::Tss2_TctiLdr_Finalize(&transport);
  if (code != TSS2_RC_SUCCESS) throw std::runtime_error("the TPM refuses a command");
}

/// A TPM 2.0 in a process of its own (swtpm), listening on a socket in `folder`, which also keeps
/// its state: a second one with the same folder is the same TPM after a restart.
class SoftwareTpm {
 public:
  explicit SoftwareTpm(const fs::path& folder)
      : socket_(folder / "tpm"),
        log_(folder / "log"),
        program_({.file = "/usr/bin/swtpm",
                  .arguments = {"socket", "--tpm2", "--tpmstate", "dir=" + folder.string(),
                                "--server", "type=unixio,fd=0", "--ctrl", "type=unixio,fd=1",
                                "--flags=not-need-init,startup-clear",
                                "--log=level=2,file=" + log_.string()},
                  .input = listeningSocket(socket_).get(),
                  .output = listeningSocket(socket_.string() + ".ctrl").get()}) {}

  /// Its TCTI for the tss2 libraries.
  [[nodiscard]] std::string device() const { return "swtpm:path=" + socket_.string(); }

  /// `hierarchy`: one of tss2's, such as ESYS_TR_RH_LOCKOUT.
  void setPassword(std::uint32_t hierarchy, std::string_view password) const {
    TPM2B_AUTH value{};
    value.size = static_cast<UINT16>(password.copy(reinterpret_cast<char*>(value.buffer), 32));
    with(device(), [&](ESYS_CONTEXT* context) {
      return ::Esys_HierarchyChangeAuth(context, hierarchy, ESYS_TR_PASSWORD, ESYS_TR_NONE,
                                        ESYS_TR_NONE, &value);
    });
  }

  /// The bytes of every command so far, as they came over the bus.
  [[nodiscard]] std::vector<std::string> commands() const {
    std::ifstream log(log_);
    std::vector<std::string> commands;
    bool isCommand = false;
    for (std::string line; std::getline(log, line);) {
      if (line.find("length") != std::string::npos) {
        isCommand = line.find("SWTPM_IO_Read") != std::string::npos;
        if (isCommand) commands.emplace_back();
      } else if (isCommand) {
        std::istringstream bytes(line);
        for (unsigned byte = 0; bytes >> std::hex >> byte;)
          commands.back() += static_cast<char>(byte);
      }
    }
    return commands;
  }

  /// As a program does that has access to the TPM and knows no password; false when it is refused.
  [[nodiscard]] bool undoLock() const {
    bool undone = false;
    with(device(), [&](ESYS_CONTEXT* context) {
      undone = ::Esys_DictionaryAttackLockReset(context, ESYS_TR_RH_LOCKOUT, ESYS_TR_PASSWORD,
                                                ESYS_TR_NONE, ESYS_TR_NONE) == TSS2_RC_SUCCESS;
      return TSS2_RC_SUCCESS;
    });
    return undone;
  }

 private:
  fs::path socket_;
  fs::path log_;
  testing::Program program_;
};

constexpr P256::Digest message{1, 2, 3, 4, 5};

SecretBytes pin() {
  return SecretBytes("271828");
}

class TpmKeyStoreTest : public ::testing::Test {
 protected:
  // The library would report every wrong PIN on standard error.
  static void SetUpTestSuite() { ::setenv("TSS2_LOG", "all+none", 1); }

  /// Replaces the TPM by another, which has the same effect as clearing it.
  void clearTpm() {
    tpm.reset();
    fs::remove_all(state.path());
    fs::create_directory(state.path());
    tpm.emplace(state.path());
  }

  bool signs() {
    const auto signature = store.sign(message, pin());
    return signature &&
           testing::isAcceptedByServer(
               {.publicKey = store.publicKey(), .digest = message, .signature = *signature});
  }
  std::string useFailure() {
    return failureOf([&] { static_cast<void>(store.requireUsableKey()); });
  }

  testing::TemporaryFolder folder;
  testing::TemporaryFolder state;
  std::optional<SoftwareTpm> tpm{std::in_place, state.path()};
  fs::path path = folder.path() / "quillseal" / "key.tpm.pem";
  TpmKeyStore store{{.path = path, .device = tpm->device()}};
};

TEST_F(TpmKeyStoreTest, SignsAlsoAfterARestartOfTheTpm) {
  EXPECT_EQ(store.obstacle(), "");
  store.create(pin());
  ASSERT_TRUE(store.holdsKey());
  static_cast<void>(store.requireUsableKey());
  const P256::Point publicKey = store.publicKey();
  // Enough to meet integers with leading zero bytes now and then, and to fill the TPM if objects or
  // sessions were left behind.
  for (int round = 0; round < 50; ++round)
    EXPECT_TRUE(signs());
  tpm.reset();
  EXPECT_THAT(store.obstacle(), HasSubstr("cannot be reached"));
  EXPECT_TRUE(store.holdsKey());
  tpm.emplace(state.path());
  EXPECT_TRUE(signs());
  EXPECT_EQ(store.publicKey(), publicKey);
}

// Signing must not depend on the key that stays loaded while the user types.
TEST_F(TpmKeyStoreTest, SignsWithAKeyAtHandWhateverHappensMeanwhile) {
  store.create(pin());
  KeyMedium::Readiness first = store.requireUsableKey();
  const KeyMedium::Readiness second = store.requireUsableKey();
  EXPECT_FALSE(store.sign(message, SecretBytes("271829")));
  EXPECT_TRUE(signs());
  EXPECT_EQ(store.obstacle(), "");
  first.reset();
  EXPECT_TRUE(signs());
  tpm.reset();
  tpm.emplace(state.path());
  EXPECT_TRUE(signs());
  const KeyMedium::Readiness third = store.requireUsableKey();
  const std::string earlier = testing::contentsOf(path);
  store.create(SecretBytes("314159"));
  EXPECT_TRUE(store.sign(message, SecretBytes("314159")));
  const KeyMedium::Readiness fourth = store.requireUsableKey();
  testing::overwrite(path, earlier);
  EXPECT_TRUE(signs());
  clearTpm();
  EXPECT_THAT(failureOf([&] { signs(); }), HasSubstr("the TPM was cleared"));
}

TEST_F(TpmKeyStoreTest, TheLockHoldsOnlyBehindALockoutPassword) {
  store.create(pin());
  EXPECT_THAT(store.describe(), HasSubstr("if a lockout password is set"));
  EXPECT_EQ(store.obstacle(), "");
  EXPECT_EQ(store.secretKind(), SecretKind::unguardedPin);
  EXPECT_THAT(store.describe(), HasSubstr("No lockout password is set"));
  EXPECT_THAT(store.weakness(), HasSubstr("tpm2_changeauth -c lockout file:-"));
  const auto guess = [&] { return store.sign(message, SecretBytes("000001")).has_value(); };
  for (int round = 0; round < 50; ++round) {
    EXPECT_FALSE(guess());
    EXPECT_TRUE(round % 2 == 0 || tpm->undoLock());
  }
  EXPECT_TRUE(store.sign(message, pin()));

  tpm->setPassword(ESYS_TR_RH_LOCKOUT, "of the administrator");
  static_cast<void>(store.requireUsableKey());
  EXPECT_EQ(store.secretKind(), SecretKind::pin);
  EXPECT_THAT(store.describe(), HasSubstr("locks itself after too many wrong PINs."));
  EXPECT_EQ(store.weakness(), "");
  EXPECT_FALSE(tpm->undoLock());
  const auto guessOn = [&] {
    for (int round = 0; round < 50; ++round)
      EXPECT_FALSE(guess());
  };
  const std::string lockout = failureOf(guessOn);
  EXPECT_THAT(lockout, HasSubstr("locked itself after too many wrong PINs"));
  EXPECT_THAT(lockout, HasSubstr("in 17 minutes at most"));  // of 1000 seconds
  // Not even the right one is listened to, and nobody is asked for it.
  EXPECT_EQ(failureOf([&] { signs(); }), lockout);
  EXPECT_EQ(useFailure(), lockout);
}

// The bus between processor and chip can be read.
TEST_F(TpmKeyStoreTest, ThePinIsEncryptedOnTheBus) {
  store.create(pin());
  EXPECT_TRUE(store.sign(message, pin()));
  const auto value = digest::sha256(pin().text());
  int sessions = 0;
  for (const std::string& command : tpm->commands()) {
    EXPECT_EQ(command.find({reinterpret_cast<const char*>(value.data()), value.size() - 1}),
              std::string::npos);
    if (command.substr(6, 4) != std::string("\0\0\x01\x76", 4)) continue;  // TPM2_StartAuthSession
    ++sessions;
    EXPECT_NE(command.substr(10, 4), std::string("\x40\0\0\x07", 4))
        << "without a key, a listener on the bus knows the session's secret";
  }
  EXPECT_GE(sessions, 2);
}

TEST_F(TpmKeyStoreTest, AClearedTpmIsNamedAndANewKeyHeals) {
  store.create(pin());
  clearTpm();
  EXPECT_TRUE(store.holdsKey());
  for (const std::string& failure : {useFailure(), failureOf([&] { signs(); })})
    EXPECT_THAT(failure, HasSubstr("the TPM was cleared, or the key comes from another"));
  store.create(pin());
  EXPECT_TRUE(store.sign(message, pin()));
  tpm->setPassword(ESYS_TR_RH_OWNER, "of the owner");
  EXPECT_THAT(store.obstacle(), HasSubstr("storage hierarchy has a password"));
}

TEST_F(TpmKeyStoreTest, ADamagedFileIsNamed) {
  store.create(pin());
  const std::string whole = testing::contentsOf(path);
  testing::overwrite(path, whole.substr(0, whole.size() / 2));
  EXPECT_THAT(useFailure(), HasSubstr("is damaged"));
  EXPECT_THAT(failureOf([&] { static_cast<void>(store.publicKey()); }), HasSubstr("is damaged"));
  store.remove();
  store.remove();
  EXPECT_FALSE(store.holdsKey());
  EXPECT_THAT(useFailure(), HasSubstr("is gone"));
}

TEST_F(TpmKeyStoreTest, OnlyASimulatorIsCalledOne) {
  EXPECT_THAT(store.describe(), HasSubstr("simulator"));
  const TpmKeyStore real({.path = path, .device = "device:/nonexistent/tpmrm0"});
  EXPECT_EQ(real.describe().find("simulator"), std::string::npos);
  EXPECT_THAT(real.obstacle(), HasSubstr("/nonexistent/tpmrm0 does not exist"));
  EXPECT_EQ(real.evidentObstacle(), real.obstacle());
  // An open device would be busy for the next client.
  const auto open = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); };
  const auto before = open();
  EXPECT_NE(TpmKeyStore({.path = path, .device = "device:/dev/null"}).obstacle(), "");
  EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace quillseal::linux
