#pragma once

#include <memory>
#include <string>
#include <string_view>

struct evp_pkey_st;

namespace quillseal::devserver {

/// A signing device for tests, with a new P-256 key in memory.
class TestDevice {
 public:
  TestDevice();

  /// Returns the uncompressed point in base64, as enrolment sends it.
  [[nodiscard]] std::string publicKey() const;

  /// Signs the digest's bytes and returns the DER signature in base64, as in a signing request.
  [[nodiscard]] std::string sign(std::string_view digestHex) const;

 private:
  std::shared_ptr<evp_pkey_st> key_;
};

}  // namespace quillseal::devserver
