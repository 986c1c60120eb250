#pragma once

#include <memory>

#include <openssl/bio.h>
#include <openssl/bn.h>
#include <openssl/crypto.h>
#include <openssl/ecdsa.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

/// Owning handles for the OpenSSL objects that the key stores use.
namespace quillseal::linux::openssl {

template <auto release>
struct Releaser {
  template <typename Object>
  void operator()(Object* object) const noexcept {
    static_cast<void>(release(object));
  }
};

struct BufferReleaser {
  void operator()(unsigned char* bytes) const noexcept { OPENSSL_free(bytes); }
};

using BigNumber = std::unique_ptr<BIGNUM, Releaser<::BN_clear_free>>;
using Buffer = std::unique_ptr<unsigned char, BufferReleaser>;
using EcdsaSignature = std::unique_ptr<ECDSA_SIG, Releaser<::ECDSA_SIG_free>>;
using EncryptedKey = std::unique_ptr<X509_SIG, Releaser<::X509_SIG_free>>;
using Key = std::unique_ptr<EVP_PKEY, Releaser<::EVP_PKEY_free>>;
using KeyContext = std::unique_ptr<EVP_PKEY_CTX, Releaser<::EVP_PKEY_CTX_free>>;
using KeyInfo = std::unique_ptr<PKCS8_PRIV_KEY_INFO, Releaser<::PKCS8_PRIV_KEY_INFO_free>>;
using KeyCipher = std::unique_ptr<X509_ALGOR, Releaser<::X509_ALGOR_free>>;
using Pbes2Parameters = std::unique_ptr<PBE2PARAM, Releaser<::PBE2PARAM_free>>;
using ScryptParameters = std::unique_ptr<SCRYPT_PARAMS, Releaser<::SCRYPT_PARAMS_free>>;
using Stream = std::unique_ptr<BIO, Releaser<::BIO_free>>;

}  // namespace quillseal::linux::openssl
