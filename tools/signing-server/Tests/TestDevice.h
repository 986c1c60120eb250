#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quillseal::devserver {

/// A signing device for tests: a fresh P-256 key in memory.
class TestDevice {
 public:
  TestDevice();
  ~TestDevice();

  /// The uncompressed point in base64, as enrolment sends it.
  [[nodiscard]] std::string publicKey() const;

  /// The DER signature over the digest's bytes in base64, as a signing request carries it.
  [[nodiscard]] std::string sign(std::string_view digestHex) const;

 private:
  struct Key;
  std::unique_ptr<Key> key_;
};

}  // namespace quillseal::devserver
