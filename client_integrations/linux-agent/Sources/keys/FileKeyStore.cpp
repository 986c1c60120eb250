#include "keys/FileKeyStore.h"

#include <algorithm>
#include <array>
#include <new>
#include <string_view>
#include <utility>

#include <openssl/core_names.h>
#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/pkcs12.h>
#include <openssl/x509.h>

#include "keys/KeyFile.h"
#include "keys/OpenSslHandles.h"

namespace quillseal::linux {

namespace {

constexpr std::string_view headline =
    "Quillseal signing key, private half encrypted with your passphrase.";
constexpr auto labels = std::to_array<std::string_view>({"PUBLIC KEY", "ENCRYPTED PRIVATE KEY"});
constexpr int saltSize = 16;

/// Empties OpenSSL's error queue at the end of a scope, so that one operation's errors are not
/// taken for another's.
struct ErrorQueueScope {
  ErrorQueueScope() = default;
  ErrorQueueScope(const ErrorQueueScope&) = delete;
  ErrorQueueScope& operator=(const ErrorQueueScope&) = delete;
  ~ErrorQueueScope() { ::ERR_clear_error(); }
};

template <typename Function, typename Object>
std::vector<std::uint8_t> encoded(Function encode, Object* object) {
  unsigned char* bytes = nullptr;
  const int length = encode(object, &bytes);
  if (length <= 0) throw std::bad_alloc();
  const openssl::Buffer owner(bytes);
  return {bytes, bytes + length};
}

std::optional<P256::Point> pointOf(EVP_PKEY* key) {
  std::array<char, 32> group{};
  std::size_t length = 0;
  P256::Point point{};
  if (::EVP_PKEY_get_group_name(key, group.data(), group.size(), &length) != 1 ||
      std::string_view(group.data(), length) != SN_X9_62_prime256v1 ||
      ::EVP_PKEY_get_octet_string_param(key, OSSL_PKEY_PARAM_PUB_KEY, point.data(), point.size(),
                                        &length) != 1 ||
      length != point.size() || point.front() != POINT_CONVERSION_UNCOMPRESSED)
    return std::nullopt;
  return point;
}

/// The parts of a key file that can be read without the passphrase.
struct StoredKey {
  P256::Point publicKey;
  openssl::EncryptedKey privateKey;
};

[[noreturn]] void failDamaged(const std::string& place) {
  throw KeyFailure("the key file " + place +
                   " is damaged. Restore it from a backup, or enrol this computer again in "
                   "Settings.");
}

std::uint64_t valueOf(const ASN1_INTEGER* number) {
  constexpr std::uint64_t tooLarge = std::uint64_t{1} << 32U;
  std::uint64_t value = 0;
  return ::ASN1_INTEGER_get_uint64(&value, number) == 1 ? std::min(value, tooLarge) : tooLarge;
}

/// Returns whether decrypting takes no longer than for a key made here. OpenSSL bounds the memory
/// that a file may demand, but not the time, which could be years.
bool isOpenedInTime(const X509_SIG* encrypted) {
  const X509_ALGOR* scheme = nullptr;
  ::X509_SIG_get0(encrypted, &scheme, nullptr);
  if (::OBJ_obj2nid(scheme->algorithm) != NID_pbes2) return false;
  const openssl::Pbes2Parameters parameters(static_cast<PBE2PARAM*>(
      ::ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(PBE2PARAM), scheme->parameter)));
  if (!parameters || ::OBJ_obj2nid(parameters->keyfunc->algorithm) != NID_id_scrypt) return false;
  const openssl::ScryptParameters cost(static_cast<SCRYPT_PARAMS*>(
      ::ASN1_TYPE_unpack_sequence(ASN1_ITEM_rptr(SCRYPT_PARAMS), parameters->keyfunc->parameter)));
  if (!cost) return false;
  constexpr ScryptCost usual;
  constexpr std::uint64_t most = usual.n * usual.r * usual.p;
  const std::uint64_t n = valueOf(cost->costParameter);
  const std::uint64_t r = valueOf(cost->blockSize);
  const std::uint64_t p = valueOf(cost->parallelizationParameter);
  return n <= most && r <= most && p <= most && n * r <= most && n * r * p <= most;
}

StoredKey readKey(const PrivateFile& file) {
  const std::string place = "“" + file.path().string() + "”";
  const std::optional<std::string> contents = file.read();
  if (!contents)
    throw KeyFailure("the key file " + place + " is gone. Enrol this computer again in Settings.");
  const auto blocks = KeyFile::read(*contents, labels);
  if (!blocks) failDamaged(place);
  const auto& [publicBlock, privateBlock] = std::tie((*blocks)[0].bytes, (*blocks)[1].bytes);
  const unsigned char* position = publicBlock.data();
  const openssl::Key key(::d2i_PUBKEY(nullptr, &position, static_cast<long>(publicBlock.size())));
  const std::optional<P256::Point> point = key ? pointOf(key.get()) : std::nullopt;
  position = privateBlock.data();
  openssl::EncryptedKey encrypted(
      ::d2i_X509_SIG(nullptr, &position, static_cast<long>(privateBlock.size())));
  if (!point || !encrypted || !isOpenedInTime(encrypted.get())) failDamaged(place);
  return {.publicKey = *point, .privateKey = std::move(encrypted)};
}

openssl::EncryptedKey encrypt(EVP_PKEY* key, const SecretBytes& secret, const ScryptCost& cost) {
  openssl::KeyInfo plain(::EVP_PKEY2PKCS8(key));
  // OpenSSL draws the salt and the initial vector when none are given.
  openssl::KeyCipher cipher(::PKCS5_pbe2_set_scrypt(::EVP_aes_256_cbc(), nullptr, saltSize, nullptr,
                                                    cost.n, cost.r, cost.p));
  if (!plain || !cipher) throw KeyFailure("the key could not be encrypted.");
  openssl::EncryptedKey encrypted(::PKCS8_set0_pbe(
      secret.text().data(), static_cast<int>(secret.size()), plain.get(), cipher.get()));
  if (!encrypted) throw KeyFailure("the key could not be encrypted.");
  static_cast<void>(cipher.release());  // now part of the encrypted key
  return encrypted;
}

}  // namespace

FileKeyStore::FileKeyStore(Options options) : file_(std::move(options.path)), cost_(options.cost) {}

SecretKind FileKeyStore::secretKind() const noexcept {
  return SecretKind::passphrase;
}

KeyPlace FileKeyStore::place() const noexcept {
  return KeyPlace::keyFile;
}

std::string FileKeyStore::name() const {
  return "a key file";
}

std::string FileKeyStore::describe() const {
  return std::string(holdsKey() ? "The key is" : "The key will be") + " in the file “" +
         file_.path().string() +
         "”, encrypted with a passphrase that is asked for at every signature. Anyone who has a "
         "copy of the file and the passphrase can sign in your name.";
}

std::string FileKeyStore::obstacle() const {
  try {
    file_.requireWritable();
  } catch (const KeyFailure& failure) {
    return failure.what();
  }
  return {};
}

std::string FileKeyStore::evidentObstacle() const {
  return obstacle();
}

bool FileKeyStore::holdsKey() const noexcept {
  return file_.exists();
}

void FileKeyStore::create(const SecretBytes& secret) {
  const ErrorQueueScope errors;
  const openssl::Key key(::EVP_EC_gen(SN_X9_62_prime256v1));
  if (!key) throw KeyFailure("the key could not be generated.");
  const openssl::EncryptedKey encrypted = encrypt(key.get(), secret, cost_);
  const auto blocks = std::to_array<KeyFile::Block>(
      {{.label = labels[0], .bytes = encoded(::i2d_PUBKEY, key.get())},
       {.label = labels[1], .bytes = encoded(::i2d_X509_SIG, encrypted.get())}});
  file_.replace(KeyFile::write(headline, blocks));
}

P256::Point FileKeyStore::publicKey() const {
  const ErrorQueueScope errors;
  return readKey(file_).publicKey;
}

KeyMedium::Readiness FileKeyStore::requireUsableKey() const {
  const ErrorQueueScope errors;
  static_cast<void>(readKey(file_));
  return {};
}

std::optional<std::vector<std::uint8_t>> FileKeyStore::sign(const P256::Digest& digest,
                                                            const SecretBytes& secret) const {
  const ErrorQueueScope errors;
  const StoredKey stored = readKey(file_);
  // The checksum was right, so a failed decryption means a wrong passphrase. One wrong passphrase
  // in a few hundred still gives valid padding and a meaningless key.
  const openssl::KeyInfo plain(::PKCS8_decrypt(stored.privateKey.get(), secret.text().data(),
                                               static_cast<int>(secret.size())));
  if (!plain) return std::nullopt;
  const openssl::Key key(::EVP_PKCS82PKEY(plain.get()));
  if (!key) return std::nullopt;
  if (pointOf(key.get()) != stored.publicKey)
    throw KeyFailure("the key file “" + file_.path().string() +
                     "” has been tampered with: its two halves do not belong together. "
                     "Enrol this computer again in Settings.");

  const openssl::KeyContext context(::EVP_PKEY_CTX_new_from_pkey(nullptr, key.get(), nullptr));
  std::size_t length = 0;
  if (!context || ::EVP_PKEY_sign_init(context.get()) != 1 ||
      ::EVP_PKEY_CTX_set_signature_md(context.get(), ::EVP_sha256()) != 1 ||
      ::EVP_PKEY_sign(context.get(), nullptr, &length, digest.data(), digest.size()) != 1)
    throw KeyFailure("the key file’s key cannot sign.");
  std::vector<std::uint8_t> signature(length);
  if (::EVP_PKEY_sign(context.get(), signature.data(), &length, digest.data(), digest.size()) != 1)
    throw KeyFailure("the key file’s key cannot sign.");
  signature.resize(length);
  return signature;
}

void FileKeyStore::remove() noexcept {
  file_.remove();
}

}  // namespace quillseal::linux
