#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <tss2/tss2_esys.h>
#include <tss2/tss2_tctildr.h>
#include <unistd.h>

#include "Cases.h"
#include "KeyChecks.h"
#include "Programs.h"
#include "TemporaryFolder.h"
#include "core/text/Digest.h"
#include "keys/FileKeyStore.h"
#include "keys/KeyFailure.h"
#include "keys/KeyFile.h"
#include "keys/TpmKeyStore.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::failureOf;
namespace fs = std::filesystem;

constexpr ScryptCost cheap{.n = 16, .r = 8, .p = 1};
constexpr uid_t nobody = 65534;
constexpr auto labels = std::to_array<std::string_view>({"PUBLIC KEY", "ENCRYPTED PRIVATE KEY"});

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

std::ptrdiff_t openFiles() {
  return std::distance(fs::directory_iterator("/proc/self/fd"), {});
}

/// What a key store of either kind does in a folder, and what a story remembers.
struct Story {
  explicit Story(bool hasTpm) {
    if (!hasTpm) {
      medium = std::make_unique<FileKeyStore>(FileKeyStore::Options{.path = path, .cost = cheap});
      return;
    }
    start();
    medium =
        std::make_unique<TpmKeyStore>(TpmKeyStore::Options{.path = path, .device = tpm->device()});
  }

  void start() {
    fs::create_directory(folder.path() / "tpm");
    tpm.emplace(folder.path() / "tpm");
  }

  /// "accepted" when a server accepts the signature.
  std::string sign(const std::string& secret) {
    std::string outcome;
    const std::string failure = failureOf([&] {
      const auto der = medium->sign(message, SecretBytes(secret));
      outcome = "wrong secret";
      if (der)
        outcome = testing::isAcceptedByServer(
                      {.publicKey = medium->publicKey(), .digest = message, .signature = *der})
                      ? "accepted"
                      : "forged";
    });
    return outcome.empty() ? failure : outcome;
  }

  /// What there is now, or the outcome of an action, by the name that a story gives it.
  std::string stateOf(const std::string& name) {
    const auto [verb, what] = testing::divided(name, " ");
    std::string outcome;
    const auto create = [&, secret = what] {
      outcome = failureOf([&] { medium->create(SecretBytes(secret)); });
    };
    if (verb == "create") create();
    if (verb == "squeezed") testing::onFullDisk(100, create);
    if (verb == "sign") return sign(what);
    if (verb == "guess") {
      const auto [count, secret] = testing::divided(what, " ");
      for (int round = std::stoi(count); round > 0; --round)
        outcome = sign(secret);
    }
    if (name == "use") return failureOf([&] { static_cast<void>(medium->requireUsableKey()); });
    if (name == "key") {
      const std::string failure = failureOf([&] {
        outcome = std::to_string(keys.emplace(medium->publicKey(), keys.size()).first->second);
      });
      return outcome.empty() ? failure : outcome;
    }
    if (name == "holds key") return medium->holdsKey() ? "yes" : "no";
    if (name == "obstacle") return medium->obstacle();
    if (name == "weakness") return medium->weakness();
    if (name == "description") return medium->describe();
    if (name == "unguarded") return medium->secretKind() == SecretKind::unguardedPin ? "yes" : "no";
    if (name == "lock undone") return tpm->undoLock() ? "yes" : "no";
    if (verb == "files")
      return std::to_string(std::distance(fs::directory_iterator(folder.path() / what), {}));
    if (verb == "mode") {
      struct stat status {};
      EXPECT_EQ(::lstat((folder.path() / what).c_str(), &status), 0);
      std::ostringstream octal;
      octal << std::oct << status.st_mode;
      return octal.str();
    }
    if (outcome.empty()) ADD_FAILURE() << "no story knows of " << name;
    return outcome;
  }

  void act(const std::string& line) {
    const auto [verb, what] = testing::divided(line, " ");
    const auto [name, rest] = testing::divided(what, " ");
    const fs::path file = folder.path() / name, other = folder.path() / rest;
    const std::map<std::string, std::function<void()>> actions{
        {"keep", [&] { kept.push_back(medium->requireUsableKey()); }},
        {"drop", [&] { kept.erase(kept.begin()); }},
        {"remove", [&] { medium->remove(); }},
        {"stop", [&] { tpm.reset(); }},
        {"start", [&] { start(); }},
        {"lockout-password", [&] { tpm->setPassword(ESYS_TR_RH_LOCKOUT, what); }},
        {"owner-password", [&] { tpm->setPassword(ESYS_TR_RH_OWNER, what); }},
        {"chmod", [&] { fs::permissions(file, fs::perms(std::stoi(rest, nullptr, 8))); }},
        {"chown", [&] { EXPECT_EQ(::chown(file.c_str(), nobody, nobody), 0); }},
        {"write", [&] { testing::overwrite(file, rest); }},
        {"halve", [&] { fs::resize_file(file, fs::file_size(file) / 2); }},
        {"copy", [&] { fs::copy_file(file, other, fs::copy_options::overwrite_existing); }},
        {"delete", [&] { fs::remove_all(file); }},
        {"folder", [&] { fs::create_directories(file); }},
        {"link", [&] { fs::create_symlink(other, file); }},
        {"pipe", [&] { EXPECT_EQ(::mkfifo(file.c_str(), 0600), 0); }}};
    actions.at(verb)();
  }

  testing::TemporaryFolder folder;
  fs::path path = folder.path() / "home" / "data" / "key.pem";
  std::optional<SoftwareTpm> tpm;
  std::unique_ptr<KeyMedium> medium;
  std::vector<KeyMedium::Readiness> kept;
  std::map<P256::Point, std::size_t> keys;
};

class KeyMedia : public ::testing::Test {
 protected:
  // The TPM's library would report every wrong PIN on standard error.
  static void SetUpTestSuite() { ::setenv("TSS2_LOG", "all+none", 1); }

  static void tell() {
    testing::tell(testing::runningTest(), [](const std::string& title) {
      return std::make_unique<Story>(title.starts_with("[TPM: "));
    });
  }
};

TEST_F(KeyMedia, GoAsTold) {
  tell();
}

TEST_F(KeyMedia, AsRootUseNoOtherUsersFile) {
  tell();
}

// A few integers begin with zero bytes, which DER omits; and objects, sessions or files that were
// left behind would fill the TPM or the table of descriptors.
TEST_F(KeyMedia, SignAgainAndAgain) {
  for (const bool isTpm : {false, true}) {
    Story story(isTpm);
    const auto before = openFiles();
    story.medium->create(SecretBytes("correct horse battery"));
    EXPECT_EQ(story.sign("000001"), "wrong secret");
    for (int round = 0; round < (isTpm ? 50 : 200); ++round)
      EXPECT_EQ(story.sign("correct horse battery"), "accepted");
    EXPECT_EQ(openFiles(), before);
  }
}

class FileKeyStoreTest : public ::testing::Test {
 protected:
  FileKeyStoreTest() { store.create(passphrase); }
  std::string signs() { return story.sign("correct horse battery"); }

  const SecretBytes passphrase{"correct horse battery"};
  Story story{false};
  KeyMedium& store = *story.medium;
  const fs::path& path = story.path;
};

TEST_F(FileKeyStoreTest, EveryDamagedByteIsNoticed) {
  const std::string whole = testing::contentsOf(path);
  const std::size_t start = whole.find("SHA-256");
  ASSERT_NE(start, std::string::npos);
  for (std::size_t at = start; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = damaged[at] == 'A' ? 'B' : 'A';
    testing::overwrite(path, damaged);
    EXPECT_THAT(signs(), HasSubstr("is damaged")) << at;
  }
  for (const std::size_t length : {std::size_t{0}, std::size_t{1}, whole.size() - 1}) {
    testing::overwrite(path, std::string_view(whole).substr(0, length));
    EXPECT_THAT(signs(), HasSubstr("is damaged")) << length;
    EXPECT_TRUE(store.holdsKey());
  }
  testing::overwrite(path, std::string(100'000, 'x'));
  EXPECT_THAT(signs(), HasSubstr("far too large"));

  store.create(passphrase);
  EXPECT_EQ(signs(), "accepted");
}

TEST_F(FileKeyStoreTest, AnExchangedPublicHalfIsNoticed) {
  Story other(false);
  other.medium->create(passphrase);
  const auto own = KeyFile::read(testing::contentsOf(path), labels);
  const auto foreign = KeyFile::read(testing::contentsOf(other.path), labels);
  ASSERT_TRUE(own && foreign);
  constexpr auto others = std::to_array<std::string_view>({"PUBLIC KEY", "PRIVATE KEY"});
  EXPECT_FALSE(KeyFile::read(testing::contentsOf(path), others));
  testing::overwrite(path, KeyFile::write("", std::array{foreign->front(), own->back()}));
  EXPECT_THAT(signs(), HasSubstr("tampered with"));
}

// With the most work that such a file can demand, OpenSSL would need years.
TEST_F(FileKeyStoreTest, AFileThatMayTakeTooLongIsNotOpened) {
  auto blocks = KeyFile::read(testing::contentsOf(path), labels);
  ASSERT_TRUE(blocks);
  std::vector<std::uint8_t>& bytes = blocks->back().bytes;
  const std::string key(bytes.begin(), bytes.end());
  // A salt of 16 bytes, the INTEGERs N, r and p (RFC 7914, section 7.1), and the cipher AES-256-CBC
  // (2.16.840.1.101.3.4.1.42).
  const std::string cost = "\x02\x01\x10\x02\x01\x08\x02\x01\x01";
  EXPECT_EQ(key.find(cost), key.find("\x04\x10") + 18);
  EXPECT_THAT(key, HasSubstr("\x06\x09\x60\x86\x48\x01\x65\x03\x04\x01\x2a"));
  // Another cost; identifiers that are not those of scrypt and PBES2 (RFC 8018, appendix A.4).
  for (const auto& [part, other] :
       {std::pair{cost, "\x02\x01\x40\x02\x01\x7f\x02\x01\x7f"},
        {"\x2b\x06\x01\x04\x01\xda\x47\x04\x0b", "\x2b\x06\x01\x04\x01\xda\x47\x04\x0c"},
        {"\x2a\x86\x48\x86\xf7\x0d\x01\x05\x0d", "\x2a\x86\x48\x86\xf7\x0d\x01\x05\x0c"}}) {
    std::string changed = key;
    changed.replace(key.find(part), part.size(), other);
    bytes.assign(changed.begin(), changed.end());
    testing::overwrite(path, KeyFile::write("", *blocks));
    EXPECT_THAT(signs(), HasSubstr("is damaged"));
  }
}

// The bus between processor and chip can be read.
TEST_F(KeyMedia, EncryptThePinOnTheBus) {
  Story story(true);
  story.medium->create(SecretBytes("271828"));
  EXPECT_EQ(story.sign("271828"), "accepted");
  const auto value = digest::sha256("271828");
  int sessions = 0;
  for (const std::string& command : story.tpm->commands()) {
    EXPECT_EQ(command.find({reinterpret_cast<const char*>(value.data()), value.size() - 1}),
              std::string::npos);
    if (command.substr(6, 4) != std::string("\0\0\x01\x76", 4)) continue;  // TPM2_StartAuthSession
    ++sessions;
    EXPECT_NE(command.substr(10, 4), std::string("\x40\0\0\x07", 4))
        << "without a key, a listener on the bus knows the session's secret";
  }
  EXPECT_GE(sessions, 2);
}

TEST_F(KeyMedia, KeepNoDeviceOpen) {
  const fs::path path = "/nonexistent/key.pem";
  const TpmKeyStore real({.path = path, .device = "device:/nonexistent/tpmrm0"});
  EXPECT_EQ(real.describe().find("simulator"), std::string::npos);
  EXPECT_THAT(real.obstacle(), HasSubstr("/nonexistent/tpmrm0 does not exist"));
  EXPECT_EQ(real.evidentObstacle(), real.obstacle());
  // An open device would be busy for the next client.
  const auto before = openFiles();
  EXPECT_NE(TpmKeyStore({.path = path, .device = "device:/dev/null"}).obstacle(), "");
  EXPECT_EQ(openFiles(), before);
}

}  // namespace
}  // namespace quillseal::linux
