#include "keys/TpmKeyStore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <tss2/tss2_esys.h>
#include <tss2/tss2_mu.h>
#include <tss2/tss2_tctildr.h>
#include <unistd.h>

#include "core/text/Digest.h"
#include "core/text/UniqueHandle.h"
#include "keys/KeyFile.h"
#include "keys/TpmFailure.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

namespace {

constexpr std::string_view headline =
    "Quillseal signing key, wrapped by the TPM of this computer. Useless anywhere else.";
constexpr auto labels = std::to_array<std::string_view>(
    {"QUILLSEAL TPM PARENT", "QUILLSEAL TPM PUBLIC", "QUILLSEAL TPM PRIVATE"});
constexpr std::string_view devicePrefix = "device:";

bool isSimulator(std::string_view device) {
  return !device.starts_with(devicePrefix);
}

[[noreturn]] void fail(const TpmFailure& failure) {
  throw KeyFailure(failure.message);
}

void require(TSS2_RC code) {
  if (code != TSS2_RC_SUCCESS) fail(tpmFailureOf(code));
}

template <typename Object>
using Owned = UniqueHandle<Object, ::Esys_Free>;

void finalize(TSS2_TCTI_CONTEXT* transport) {
  ::Tss2_TctiLdr_Finalize(&transport);
}
void finish(ESYS_CONTEXT* context) {
  ::Esys_Finalize(&context);
}

/// Calls `action` with the address of a pointer and owns the object that it stores there.
template <typename Object>
Owned<Object> received(auto&& action) {
  Object* object = nullptr;
  require(action(&object));
  return Owned<Object>(object);
}

/// One connection to the TPM.
class Tpm {
 public:
  explicit Tpm(const std::string& device) {
    // The loader reports only that it failed; errno gives the reason.
    if (!isSimulator(device)) {
      const std::string path = device.substr(devicePrefix.size());
      const FileDescriptor probe(::open(path.c_str(), O_RDWR | O_CLOEXEC));
      if (!probe.isOpen()) fail(tpmFailureOf(DeviceError{.device = path, .number = errno}));
    }
    TSS2_TCTI_CONTEXT* transport = nullptr;
    if (::Tss2_TctiLdr_Initialize(device.c_str(), &transport) != TSS2_RC_SUCCESS)
      throw KeyFailure("The TPM (" + device + ") cannot be reached.");
    transport_.reset(transport);
    ESYS_CONTEXT* context = nullptr;
    require(::Esys_Initialize(&context, transport, nullptr));
    context_.reset(context);
  }

  [[nodiscard]] ESYS_CONTEXT* get() const noexcept { return context_.get(); }

  [[nodiscard]] UINT32 property(TPM2_PT which) const {
    const auto data = capability(TPM2_CAP_TPM_PROPERTIES, which, 1);
    const TPML_TAGGED_TPM_PROPERTY& list = data->data.tpmProperties;
    return list.count > 0 && list.tpmProperty[0].property == which ? list.tpmProperty[0].value : 0;
  }

  [[nodiscard]] bool hasCurve(TPM2_ECC_CURVE curve) const {
    const auto data = capability(TPM2_CAP_ECC_CURVES, curve, 1);
    const TPML_ECC_CURVE& list = data->data.eccCurves;
    return list.count > 0 && list.eccCurves[0] == curve;
  }

 private:
  [[nodiscard]] Owned<TPMS_CAPABILITY_DATA> capability(TPM2_CAP kind, UINT32 first,
                                                       UINT32 count) const {
    return received<TPMS_CAPABILITY_DATA>([&](TPMS_CAPABILITY_DATA** data) {
      return ::Esys_GetCapability(get(), ESYS_TR_NONE, ESYS_TR_NONE, ESYS_TR_NONE, kind, first,
                                  count, nullptr, data);
    });
  }

  UniqueHandle<TSS2_TCTI_CONTEXT, finalize> transport_;
  UniqueHandle<ESYS_CONTEXT, finish> context_;
};

/// An object or a session inside the TPM, flushed when this object is destroyed: the TPM has room
/// for about three, and a simulator has no resource manager.
class Loaded {
 public:
  Loaded(const Tpm& tpm, ESYS_TR handle) noexcept : context_(tpm.get()), handle_(handle) {}
  Loaded(Loaded&& other) noexcept
      : context_(other.context_), handle_(std::exchange(other.handle_, ESYS_TR_NONE)) {}
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;
  Loaded& operator=(Loaded&&) = delete;
  ~Loaded() {
    if (handle_ != ESYS_TR_NONE) ::Esys_FlushContext(context_, handle_);
  }
  [[nodiscard]] ESYS_TR get() const noexcept { return handle_; }

 private:
  ESYS_CONTEXT* context_;
  ESYS_TR handle_;
};

/// The authorization value that the TPM compares: a digest, so that a PIN of any length fits. A TPM
/// ignores trailing zero bytes (TPM 2.0 Library Part 1, 19.6.5), so both sides leave them out.
class PinValue {
 public:
  explicit PinValue(const SecretBytes& pin) {
    std::array<std::uint8_t, 32> digest = digest::sha256(pin.text());
    std::copy(digest.begin(), digest.end(), value_.buffer);
    wipe(digest);
    value_.size = static_cast<UINT16>(digest.size());
    while (value_.size > 0 && value_.buffer[value_.size - 1] == 0)
      --value_.size;
  }
  PinValue(const PinValue&) = delete;
  PinValue& operator=(const PinValue&) = delete;
  ~PinValue() { wipe(value_.buffer); }
  [[nodiscard]] const TPM2B_AUTH& get() const noexcept { return value_; }

 private:
  TPM2B_AUTH value_{};
};

// The template of the ECC storage root key from the TCG's provisioning guidance (TCG EK Credential
// Profile 2.4, B.4.5 with the attributes of an SRK): it gives the same key until the TPM is
// cleared.
TPM2B_PUBLIC parentTemplate() {
  TPM2B_PUBLIC area{};
  TPMT_PUBLIC& key = area.publicArea;
  key.type = TPM2_ALG_ECC;
  key.nameAlg = TPM2_ALG_SHA256;
  key.objectAttributes = TPMA_OBJECT_RESTRICTED | TPMA_OBJECT_DECRYPT | TPMA_OBJECT_FIXEDTPM |
                         TPMA_OBJECT_FIXEDPARENT | TPMA_OBJECT_SENSITIVEDATAORIGIN |
                         TPMA_OBJECT_USERWITHAUTH | TPMA_OBJECT_NODA;
  TPMS_ECC_PARMS& parameters = key.parameters.eccDetail;
  parameters.symmetric.algorithm = TPM2_ALG_AES;
  parameters.symmetric.keyBits.aes = 128;
  parameters.symmetric.mode.aes = TPM2_ALG_CFB;
  parameters.scheme.scheme = TPM2_ALG_NULL;
  parameters.curveID = TPM2_ECC_NIST_P256;
  parameters.kdf.scheme = TPM2_ALG_NULL;
  key.unique.ecc.x.size = P256::coordinateSize;
  key.unique.ecc.y.size = P256::coordinateSize;
  return area;
}

// Without NODA: wrong PINs count towards the lockout.
TPM2B_PUBLIC keyTemplate() {
  TPM2B_PUBLIC area{};
  TPMT_PUBLIC& key = area.publicArea;
  key.type = TPM2_ALG_ECC;
  key.nameAlg = TPM2_ALG_SHA256;
  key.objectAttributes = TPMA_OBJECT_SIGN_ENCRYPT | TPMA_OBJECT_FIXEDTPM | TPMA_OBJECT_FIXEDPARENT |
                         TPMA_OBJECT_SENSITIVEDATAORIGIN | TPMA_OBJECT_USERWITHAUTH;
  TPMS_ECC_PARMS& parameters = key.parameters.eccDetail;
  parameters.symmetric.algorithm = TPM2_ALG_NULL;
  parameters.scheme.scheme = TPM2_ALG_ECDSA;
  parameters.scheme.details.ecdsa.hashAlg = TPM2_ALG_SHA256;
  parameters.curveID = TPM2_ECC_NIST_P256;
  parameters.kdf.scheme = TPM2_ALG_NULL;
  return area;
}

Loaded makeParent(const Tpm& tpm) {
  const TPM2B_SENSITIVE_CREATE sensitive{};
  const TPM2B_PUBLIC area = parentTemplate();
  const TPM2B_DATA outside{};
  const TPML_PCR_SELECTION registers{};
  ESYS_TR handle = ESYS_TR_NONE;
  require(::Esys_CreatePrimary(tpm.get(), ESYS_TR_RH_OWNER, ESYS_TR_PASSWORD, ESYS_TR_NONE,
                               ESYS_TR_NONE, &sensitive, &area, &outside, &registers, &handle,
                               nullptr, nullptr, nullptr, nullptr));
  return {tpm, handle};
}

std::vector<std::uint8_t> nameOf(const Tpm& tpm, const Loaded& object) {
  const auto name = received<TPM2B_NAME>(
      [&](TPM2B_NAME** result) { return ::Esys_TR_GetName(tpm.get(), object.get(), result); });
  return {name->name, name->name + name->size};
}

/// Starts a session that is salted with the parent's public key and encrypts the first parameter of
/// each command.
Loaded startSession(const Tpm& tpm, const Loaded& parent) {
  TPMT_SYM_DEF cipher{};
  cipher.algorithm = TPM2_ALG_AES;
  cipher.keyBits.aes = 128;
  cipher.mode.aes = TPM2_ALG_CFB;
  ESYS_TR handle = ESYS_TR_NONE;
  require(::Esys_StartAuthSession(tpm.get(), parent.get(), ESYS_TR_NONE, ESYS_TR_NONE, ESYS_TR_NONE,
                                  ESYS_TR_NONE, nullptr, TPM2_SE_HMAC, &cipher, TPM2_ALG_SHA256,
                                  &handle));
  Loaded session(tpm, handle);
  constexpr TPMA_SESSION attributes = TPMA_SESSION_CONTINUESESSION | TPMA_SESSION_DECRYPT;
  require(::Esys_TRSess_SetAttributes(tpm.get(), session.get(), attributes, 0xFF));
  return session;
}

std::vector<std::uint8_t> marshalled(auto marshal, const auto& object) {
  std::vector<std::uint8_t> bytes(sizeof object);
  std::size_t length = 0;
  require(marshal(&object, bytes.data(), bytes.size(), &length));
  bytes.resize(length);
  return bytes;
}

template <typename Object>
bool unmarshal(auto function, const std::vector<std::uint8_t>& bytes, Object& object) {
  std::size_t read = 0;
  return function(bytes.data(), bytes.size(), &read, &object) == TSS2_RC_SUCCESS &&
         read == bytes.size();
}

struct StoredKey {
  std::string contents;  ///< of the file
  std::vector<std::uint8_t> parentName;
  TPM2B_PUBLIC publicArea{};
  TPM2B_PRIVATE privateArea{};
  P256::Point publicKey{};
};

StoredKey readKey(const PrivateFile& file) {
  const std::string place = "“" + file.path().string() + "”";
  const std::optional<std::string> contents = file.read();
  if (!contents)
    throw KeyFailure("the TPM key’s file " + place +
                     " is gone. Enrol this computer again in Settings.");
  const auto blocks = KeyFile::read(*contents, labels);
  StoredKey key;
  std::optional<P256::Point> point;
  if (blocks && unmarshal(::Tss2_MU_TPM2B_PUBLIC_Unmarshal, (*blocks)[1].bytes, key.publicArea) &&
      unmarshal(::Tss2_MU_TPM2B_PRIVATE_Unmarshal, (*blocks)[2].bytes, key.privateArea) &&
      key.publicArea.publicArea.type == TPM2_ALG_ECC) {
    const TPMS_ECC_POINT& unique = key.publicArea.publicArea.unique.ecc;
    point = P256::pointOf(
        {.first = {unique.x.buffer, unique.x.size}, .second = {unique.y.buffer, unique.y.size}});
  }
  if (!point)
    throw KeyFailure("the TPM key’s file " + place +
                     " is damaged. Restore it from a backup, or enrol this computer again in "
                     "Settings.");
  key.contents = *contents;
  key.parentName = (*blocks)[0].bytes;
  key.publicKey = *point;
  return key;
}

/// Returns the parent that the key was made under. Throws KeyFailure when the TPM has another.
Loaded parentOf(const Tpm& tpm, const StoredKey& stored) {
  Loaded parent = makeParent(tpm);
  if (nameOf(tpm, parent) != stored.parentName) fail(tpmFailureOf(TPM2_RC_INTEGRITY));
  return parent;
}

Loaded load(const Tpm& tpm, const Loaded& parent, const Loaded& session, const StoredKey& stored) {
  ESYS_TR handle = ESYS_TR_NONE;
  require(::Esys_Load(tpm.get(), parent.get(), session.get(), ESYS_TR_NONE, ESYS_TR_NONE,
                      &stored.privateArea, &stored.publicArea, &handle));
  return {tpm, handle};
}

// The mssim simulator serves one connection at a time, so an open one would block every other run.
bool allowsSeveralConnections(std::string_view device) {
  return !device.starts_with("mssim:");
}

void requireNoLockout(const Tpm& tpm, TPMA_PERMANENT attributes) {
  if ((attributes & TPMA_PERMANENT_INLOCKOUT) == 0) return;
  // After each such interval the TPM forgives one wrong attempt and takes another.
  const UINT32 minutes = (tpm.property(TPM2_PT_LOCKOUT_INTERVAL) + 59) / 60;
  std::string message = tpmFailureOf(TPM2_RC_LOCKOUT).message;
  if (minutes > 0)
    message += " It accepts a PIN again in " + std::to_string(minutes) +
               (minutes == 1 ? " minute at most." : " minutes at most.");
  throw KeyFailure(message);
}

}  // namespace

/// A loaded key and everything it needs. Members are declared so that they are released in the
/// right order.
struct TpmKeyStore::OpenedKey {
  struct Attempt {
    TSS2_RC code;
    std::vector<std::uint8_t> signature;  ///< DER; empty unless the code is success
  };

  OpenedKey(const std::string& device, const StoredKey& stored)
      : contents(stored.contents),
        tpm(device),
        parent(parentOf(tpm, stored)),
        key(load(tpm, parent, startSession(tpm, parent), stored)) {}

  [[nodiscard]] Attempt sign(const P256::Digest& digest, const SecretBytes& secret) const;

  std::string contents;  ///< of the key's file
  Tpm tpm;
  Loaded parent;
  Loaded key;
};

TpmKeyStore::OpenedKey::Attempt TpmKeyStore::OpenedKey::sign(const P256::Digest& digest,
                                                             const SecretBytes& secret) const {
  TPM2B_DIGEST message{};
  message.size = static_cast<UINT16>(digest.size());
  std::copy(digest.begin(), digest.end(), message.buffer);
  TPMT_SIG_SCHEME scheme{};
  scheme.scheme = TPM2_ALG_ECDSA;
  scheme.details.ecdsa.hashAlg = TPM2_ALG_SHA256;
  // A null ticket: the TPM did not compute the digest, and the key is not restricted.
  TPMT_TK_HASHCHECK ticket{};
  ticket.tag = TPM2_ST_HASHCHECK;
  ticket.hierarchy = TPM2_RH_NULL;

  // Not kept while the user is asked: one old session makes the TPM refuse new ones in the end.
  const Loaded session = startSession(tpm, parent);
  require(::Esys_TR_SetAuth(tpm.get(), key.get(), &PinValue(secret).get()));
  TPMT_SIGNATURE* answer = nullptr;
  const TSS2_RC code = ::Esys_Sign(tpm.get(), key.get(), session.get(), ESYS_TR_NONE, ESYS_TR_NONE,
                                   &message, &scheme, &ticket, &answer);
  const Owned<TPMT_SIGNATURE> signature(answer);
  // Overwrites the library's own copy of the PIN's digest.
  const TPM2B_AUTH zeros{.size = sizeof zeros.buffer, .buffer = {}};
  static_cast<void>(::Esys_TR_SetAuth(tpm.get(), key.get(), &zeros));
  if (code != TSS2_RC_SUCCESS) return {.code = code, .signature = {}};
  const TPMS_SIGNATURE_ECDSA& parts = signature->signature.ecdsa;
  return {.code = code,
          .signature =
              P256::derSignature({.first = {parts.signatureR.buffer, parts.signatureR.size},
                                  .second = {parts.signatureS.buffer, parts.signatureS.size}})};
}

TpmKeyStore::TpmKeyStore(Options options)
    : file_(std::move(options.path)), device_(std::move(options.device)) {}

TpmKeyStore::~TpmKeyStore() = default;

SecretKind TpmKeyStore::secretKind() const noexcept {
  return guard_ == Guard::none ? SecretKind::unguardedPin : SecretKind::pin;
}

KeyPlace TpmKeyStore::place() const noexcept {
  return isSimulator(device_) ? KeyPlace::tpmSimulator : KeyPlace::tpm;
}

std::string TpmKeyStore::name() const {
  return isSimulator(device_) ? "a TPM simulator" : "the TPM of this computer";
}

std::string TpmKeyStore::describe() const {
  const std::string theKeyIs = holdsKey() ? "The key is" : "The key will be";
  if (isSimulator(device_))
    return theKeyIs + " kept in a TPM simulator (" + device_ +
           "), which is for trying things out: it protects nothing. " +
           std::string(guardSentence());
  return theKeyIs +
         " in the TPM of this computer and cannot leave it. A PIN is asked for at every "
         "signature. " +
         std::string(guardSentence());
}

std::string TpmKeyStore::weakness() const {
  if (guard_ != Guard::none) return {};
  return std::string(guardSentence()) +
         " An administrator can set one (sudo tpm2_changeauth -c lockout file:-, then the "
         "password, "
         "Enter and Ctrl+D).";
}

std::string_view TpmKeyStore::guardSentence() const noexcept {
  switch (guard_) {
    case Guard::unknown:
      return "The TPM locks itself after too many wrong PINs, if a lockout password is set in it.";
    case Guard::lockoutPassword:
      return "The TPM locks itself after too many wrong PINs.";
    case Guard::none:
      break;
  }
  return "No lockout password is set in the TPM: any program with access to it can reset the "
         "lock and keep guessing, so only a long PIN protects the key.";
}

void TpmKeyStore::learnGuard(std::uint32_t permanentAttributes) const noexcept {
  guard_ = (permanentAttributes & TPMA_PERMANENT_LOCKOUTAUTHSET) != 0 ? Guard::lockoutPassword
                                                                      : Guard::none;
}

std::string TpmKeyStore::obstacle() const {
  try {
    const Tpm tpm(device_);
    if ((tpm.property(TPM2_PT_STARTUP_CLEAR) & TPMA_STARTUP_CLEAR_SHENABLE) == 0)
      return tpmFailureOf(TPM2_RC_HIERARCHY).message;
    const TPMA_PERMANENT attributes = tpm.property(TPM2_PT_PERMANENT);
    learnGuard(attributes);
    if ((attributes & TPMA_PERMANENT_OWNERAUTHSET) != 0)
      return tpmFailureOf(TPM2_RC_BAD_AUTH).message;
    if (!tpm.hasCurve(TPM2_ECC_NIST_P256)) return tpmFailureOf(TPM2_RC_CURVE).message;
  } catch (const KeyFailure& failure) {
    return failure.what();
  }
  return {};
}

std::string TpmKeyStore::evidentObstacle() const {
  if (isSimulator(device_)) return {};
  const std::string path = device_.substr(devicePrefix.size());
  if (::access(path.c_str(), R_OK | W_OK) == 0) return {};
  return tpmFailureOf(DeviceError{.device = path, .number = errno}).message;
}

bool TpmKeyStore::holdsKey() const noexcept {
  return file_.exists();
}

void TpmKeyStore::create(const SecretBytes& secret) {
  opened_.reset();  // a simulator has no room for more
  const Tpm tpm(device_);
  const Loaded parent = makeParent(tpm);
  const Loaded session = startSession(tpm, parent);

  const TPM2B_PUBLIC area = keyTemplate();
  const TPM2B_DATA outside{};
  const TPML_PCR_SELECTION registers{};
  TPM2B_SENSITIVE_CREATE sensitive{};
  sensitive.sensitive.userAuth = PinValue(secret).get();
  TPM2B_PRIVATE* privateArea = nullptr;
  TPM2B_PUBLIC* publicArea = nullptr;
  const TSS2_RC code = ::Esys_Create(tpm.get(), parent.get(), session.get(), ESYS_TR_NONE,
                                     ESYS_TR_NONE, &sensitive, &area, &outside, &registers,
                                     &privateArea, &publicArea, nullptr, nullptr, nullptr);
  wipe(sensitive.sensitive.userAuth.buffer);
  const Owned<TPM2B_PRIVATE> ownedPrivate(privateArea);
  const Owned<TPM2B_PUBLIC> ownedPublic(publicArea);
  require(code);

  const auto blocks = std::to_array<KeyFile::Block>(
      {{.label = labels[0], .bytes = nameOf(tpm, parent)},
       {.label = labels[1], .bytes = marshalled(::Tss2_MU_TPM2B_PUBLIC_Marshal, *publicArea)},
       {.label = labels[2], .bytes = marshalled(::Tss2_MU_TPM2B_PRIVATE_Marshal, *privateArea)}});
  file_.replace(KeyFile::write(headline, blocks));
}

P256::Point TpmKeyStore::publicKey() const {
  return readKey(file_).publicKey;
}

KeyMedium::Readiness TpmKeyStore::requireUsableKey() const {
  opened_.reset();
  auto opened = std::make_unique<OpenedKey>(device_, readKey(file_));
  const TPMA_PERMANENT attributes = opened->tpm.property(TPM2_PT_PERMANENT);
  learnGuard(attributes);
  requireNoLockout(opened->tpm, attributes);
  if (!allowsSeveralConnections(device_)) return {};
  opened_ = std::move(opened);
  Readiness readiness = readiness_.lock();
  if (readiness == nullptr) {
    readiness = Readiness(this, [this](const void* /*store*/) { opened_.reset(); });
    readiness_ = readiness;
  }
  return readiness;
}

std::optional<std::vector<std::uint8_t>> TpmKeyStore::sign(const P256::Digest& digest,
                                                           const SecretBytes& secret) const {
  const StoredKey stored = readKey(file_);
  const auto isWrong = [](TSS2_RC code) {
    return tpmFailureOf(code).problem == TpmProblem::wrongSecret;
  };
  if (opened_ != nullptr && opened_->contents == stored.contents) {
    try {
      OpenedKey::Attempt attempt = opened_->sign(digest, secret);
      if (attempt.code == TSS2_RC_SUCCESS) return std::move(attempt.signature);
      if (isWrong(attempt.code)) return std::nullopt;
    } catch (const KeyFailure&) {
      // A reset TPM has lost the loaded objects; the key can be loaded again.
    }
  }
  opened_.reset();
  const OpenedKey key(device_, stored);
  OpenedKey::Attempt attempt = key.sign(digest, secret);
  if (attempt.code == TSS2_RC_SUCCESS) return std::move(attempt.signature);
  if (isWrong(attempt.code)) return std::nullopt;
  const TpmFailure failure = tpmFailureOf(attempt.code);
  if (failure.problem == TpmProblem::lockedOut)
    requireNoLockout(key.tpm, key.tpm.property(TPM2_PT_PERMANENT));
  fail(failure);
}

void TpmKeyStore::remove() noexcept {
  opened_.reset();
  file_.remove();
}

}  // namespace quillseal::linux
