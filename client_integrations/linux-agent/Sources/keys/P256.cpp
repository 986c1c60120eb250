#include "keys/P256.h"

#include <algorithm>
#include <memory>
#include <new>

#include <openssl/bn.h>
#include <openssl/core_names.h>
#include <openssl/ecdsa.h>
#include <openssl/evp.h>
#include <openssl/params.h>

#include "keys/OpenSslHandles.h"

namespace quillseal::linux::P256 {

std::optional<Point> pointOf(const Pair& coordinates) {
  const auto [x, y] = coordinates;
  if (x.size() > coordinateSize || y.size() > coordinateSize) return std::nullopt;
  Point point{};
  point.front() = 0x04;
  std::copy_backward(x.begin(), x.end(), point.begin() + 1 + coordinateSize);
  std::copy_backward(y.begin(), y.end(), point.end());
  return point;
}

std::vector<std::uint8_t> derSignature(const Pair& signature) {
  const openssl::EcdsaSignature parts(::ECDSA_SIG_new());
  openssl::BigNumber r(
      ::BN_bin2bn(signature.first.data(), static_cast<int>(signature.first.size()), nullptr));
  openssl::BigNumber s(
      ::BN_bin2bn(signature.second.data(), static_cast<int>(signature.second.size()), nullptr));
  if (!parts || !r || !s || ::ECDSA_SIG_set0(parts.get(), r.get(), s.get()) != 1)
    throw std::bad_alloc();
  // The signature owns both now.
  static_cast<void>(r.release());
  static_cast<void>(s.release());

  unsigned char* encoded = nullptr;
  const int length = ::i2d_ECDSA_SIG(parts.get(), &encoded);
  if (length <= 0) throw std::bad_alloc();
  const openssl::Buffer owner(encoded);
  return {encoded, encoded + length};
}

bool verifies(const Claim& claim) {
  char group[] = "prime256v1";
  Point point = claim.publicKey;
  const auto parameters = std::to_array<OSSL_PARAM>(
      {::OSSL_PARAM_construct_utf8_string(OSSL_PKEY_PARAM_GROUP_NAME, group, 0),
       ::OSSL_PARAM_construct_octet_string(OSSL_PKEY_PARAM_PUB_KEY, point.data(), point.size()),
       ::OSSL_PARAM_construct_end()});
  const openssl::KeyContext import(::EVP_PKEY_CTX_new_from_name(nullptr, "EC", nullptr));
  EVP_PKEY* imported = nullptr;
  if (!import || ::EVP_PKEY_fromdata_init(import.get()) != 1 ||
      ::EVP_PKEY_fromdata(import.get(), &imported, EVP_PKEY_PUBLIC_KEY,
                          const_cast<OSSL_PARAM*>(parameters.data())) != 1)
    return false;
  const openssl::Key key(imported);
  const openssl::KeyContext check(::EVP_PKEY_CTX_new_from_pkey(nullptr, key.get(), nullptr));
  return check && ::EVP_PKEY_verify_init(check.get()) == 1 &&
         ::EVP_PKEY_CTX_set_signature_md(check.get(), ::EVP_sha256()) == 1 &&
         ::EVP_PKEY_verify(check.get(), claim.signature.data(), claim.signature.size(),
                           claim.digest.data(), claim.digest.size()) == 1;
}

}  // namespace quillseal::linux::P256
