#include "TestDevice.h"

#include <cstdint>
#include <stdexcept>
#include <vector>

#include <openssl/ec.h>
#include <openssl/evp.h>

#include "core/text/Base64.h"
#include "core/text/UniqueHandle.h"

namespace quillseal::devserver {
namespace {

void require(bool succeeded) {
  if (!succeeded) throw std::runtime_error("OpenSSL failed");
}

}  // namespace

struct TestDevice::Key {
  UniqueHandle<EVP_PKEY, ::EVP_PKEY_free> handle{EVP_EC_gen("P-256")};
};

TestDevice::TestDevice() : key_(std::make_unique<Key>()) {
  require(key_->handle != nullptr);
}
TestDevice::~TestDevice() = default;

std::string TestDevice::publicKey() const {
  unsigned char* encoded = nullptr;
  const std::size_t length = EVP_PKEY_get1_encoded_public_key(key_->handle.get(), &encoded);
  require(length > 0);
  std::string point = base64({encoded, length});
  OPENSSL_free(encoded);
  return point;
}

std::string TestDevice::sign(std::string_view digestHex) const {
  long length = 0;
  unsigned char* digest = OPENSSL_hexstr2buf(std::string(digestHex).c_str(), &length);
  require(digest != nullptr);
  const UniqueHandle<EVP_PKEY_CTX, ::EVP_PKEY_CTX_free> context(
      EVP_PKEY_CTX_new(key_->handle.get(), nullptr));
  require(context && EVP_PKEY_sign_init(context.get()) == 1);
  std::vector<std::uint8_t> signature(
      static_cast<std::size_t>(EVP_PKEY_get_size(key_->handle.get())));
  std::size_t size = signature.size();
  require(EVP_PKEY_sign(context.get(), signature.data(), &size, digest,
                        static_cast<std::size_t>(length)) == 1);
  OPENSSL_free(digest);
  signature.resize(size);
  return base64(signature);
}

}  // namespace quillseal::devserver
