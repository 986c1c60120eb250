#include "TestDevice.h"

#include <array>
#include <cstdint>
#include <stdexcept>

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

TestDevice::TestDevice() : key_(EVP_EC_gen("P-256"), ::EVP_PKEY_free) {
  require(key_ != nullptr);
}

std::string TestDevice::publicKey() const {
  std::array<std::uint8_t, 65> point{};
  require(EVP_PKEY_get_octet_string_param(key_.get(), "pub", point.data(), point.size(), nullptr) ==
          1);
  return base64(point);
}

std::string TestDevice::sign(std::string_view digestHex) const {
  std::array<std::uint8_t, 32> digest{};
  require(OPENSSL_hexstr2buf_ex(digest.data(), digest.size(), nullptr,
                                std::string(digestHex).c_str(), '\0') == 1);
  const UniqueHandle<EVP_PKEY_CTX, ::EVP_PKEY_CTX_free> context(
      EVP_PKEY_CTX_new(key_.get(), nullptr));
  std::array<std::uint8_t, 80> signature{};
  std::size_t size = signature.size();
  require(context && EVP_PKEY_sign_init(context.get()) == 1 &&
          EVP_PKEY_sign(context.get(), signature.data(), &size, digest.data(), digest.size()) == 1);
  return base64({signature.data(), size});
}

}  // namespace quillseal::devserver
