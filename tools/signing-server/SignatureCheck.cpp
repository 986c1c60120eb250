#include "SignatureCheck.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <openssl/core_names.h>
#include <openssl/crypto.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/params.h>

#include "Quillseal/CryptoManager.h"
#include "core/text/Base64.h"
#include "core/text/CalendarDate.h"
#include "core/text/UniqueHandle.h"

namespace quillseal::devserver {
namespace {

constexpr std::size_t pointBytes = 65;
constexpr std::size_t digestBytes = 32;

using KeyContext = UniqueHandle<EVP_PKEY_CTX, ::EVP_PKEY_CTX_free>;
using Key = UniqueHandle<EVP_PKEY, ::EVP_PKEY_free>;

const unsigned char* bytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

/// Returns null when `point` is not on the curve.
Key keyOf(std::string_view point) {
  if (point.size() != pointBytes || point.front() != '\x04') return nullptr;
  std::string group = "P-256";
  std::string bytes(point);
  const std::array parameters{
      OSSL_PARAM_construct_utf8_string(OSSL_PKEY_PARAM_GROUP_NAME, group.data(), 0),
      OSSL_PARAM_construct_octet_string(OSSL_PKEY_PARAM_PUB_KEY, bytes.data(), bytes.size()),
      OSSL_PARAM_construct_end()};
  const KeyContext building(EVP_PKEY_CTX_new_from_name(nullptr, "EC", nullptr));
  EVP_PKEY* built = nullptr;
  if (!building || EVP_PKEY_fromdata_init(building.get()) != 1 ||
      EVP_PKEY_fromdata(building.get(), &built, EVP_PKEY_PUBLIC_KEY,
                        const_cast<OSSL_PARAM*>(parameters.data())) != 1) {
    return nullptr;
  }
  Key key(built);
  const KeyContext checking(EVP_PKEY_CTX_new(key.get(), nullptr));
  if (!checking || EVP_PKEY_public_check(checking.get()) != 1) return nullptr;
  return key;
}

}  // namespace

std::optional<std::string> decodedBase64(std::string_view text) {
  std::vector<std::uint8_t> bytes(text.size() / 4 * 3);
  const int padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
  const int length = EVP_DecodeBlock(bytes.data(), bytesOf(text), static_cast<int>(text.size()));
  if (length < padding) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(length - padding));
  // EVP_DecodeBlock accepts white space, extra padding and bits that the padding leaves over, so
  // that one signature would have several spellings.
  if (base64(bytes) != text) return std::nullopt;
  return std::string(bytes.begin(), bytes.end());
}

bool isPublicKey(std::string_view point) {
  return keyOf(point) != nullptr;
}

bool isSignedBy(const SignatureClaim& claim) {
  const Key key = keyOf(claim.publicKey);
  std::array<unsigned char, digestBytes> digest{};
  std::size_t length = 0;
  if (!key ||
      OPENSSL_hexstr2buf_ex(digest.data(), digest.size(), &length,
                            std::string(claim.digestHex).c_str(), '\0') != 1 ||
      length != digest.size()) {
    return false;
  }
  const KeyContext context(EVP_PKEY_CTX_new(key.get(), nullptr));
  return context && EVP_PKEY_verify_init(context.get()) == 1 &&
         EVP_PKEY_verify(context.get(), bytesOf(claim.signature), claim.signature.size(),
                         digest.data(), digest.size()) == 1;
}

std::string canonicalDigest(const Signature& signature) {
  return CryptoManager::canonicalV3({.textDigest = signature.textDigest,
                                     .issued = signature.issued,
                                     .scope = signature.scope,
                                     .snapshotDigest = signature.snapshotDigest,
                                     .identity = signature.identity,
                                     .signerKey = signature.deviceId,
                                     .expires = signature.expires,
                                     .nonce = signature.nonce,
                                     .commitment = signature.commitment});
}

bool isGenuine(const Signature& signature) {
  return isSignedBy({.publicKey = decodedBase64(signature.publicKey).value_or(""),
                     .digestHex = canonicalDigest(signature),
                     .signature = decodedBase64(signature.deviceSignature).value_or("")});
}

bool isConsistent(const Signature& signature) {
  constexpr std::int64_t endOfTheYear9999 = 253402300800;
  // The digest treats an unknown commitment as a statement, so commitments are checked here.
  const auto& commitments = CryptoManager::commitmentTypes;
  if (!parsedDate(signature.issued) || !parsedDate(signature.expires) || signature.recordedAt < 0 ||
      signature.recordedAt >= endOfTheYear9999 ||
      std::ranges::find(commitments, signature.commitment) == commitments.end()) {
    return false;
  }
  switch (signature.kind) {
    case SignatureKind::device:
      return isGenuine(signature);
    case SignatureKind::demonstration:
    case SignatureKind::browser:
      return signature.identity.empty() && signature.publicKey.empty() &&
             signature.deviceSignature.empty();
  }
  return false;
}

bool equalSecrets(std::string_view left, std::string_view right) {
  return left.size() == right.size() && CRYPTO_memcmp(left.data(), right.data(), left.size()) == 0;
}

}  // namespace quillseal::devserver
