#pragma once

#include <openssl/bio.h>
#include <openssl/bn.h>
#include <openssl/crypto.h>
#include <openssl/ecdsa.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include "core/text/UniqueHandle.h"

/// Owning handles for the OpenSSL objects that the key stores use.
namespace quillseal::linux::openssl {

inline void releaseBuffer(unsigned char* bytes) noexcept {
  OPENSSL_free(bytes);
}

using BigNumber = UniqueHandle<BIGNUM, ::BN_clear_free>;
using Buffer = UniqueHandle<unsigned char, releaseBuffer>;
using EcdsaSignature = UniqueHandle<ECDSA_SIG, ::ECDSA_SIG_free>;
using EncryptedKey = UniqueHandle<X509_SIG, ::X509_SIG_free>;
using Key = UniqueHandle<EVP_PKEY, ::EVP_PKEY_free>;
using KeyContext = UniqueHandle<EVP_PKEY_CTX, ::EVP_PKEY_CTX_free>;
using KeyInfo = UniqueHandle<PKCS8_PRIV_KEY_INFO, ::PKCS8_PRIV_KEY_INFO_free>;
using KeyCipher = UniqueHandle<X509_ALGOR, ::X509_ALGOR_free>;
using Pbes2Parameters = UniqueHandle<PBE2PARAM, ::PBE2PARAM_free>;
using ScryptParameters = UniqueHandle<SCRYPT_PARAMS, ::SCRYPT_PARAMS_free>;
using Stream = UniqueHandle<BIO, ::BIO_free>;

}  // namespace quillseal::linux::openssl
