#pragma once

#include <string>
#include <vector>

namespace quillseal::devserver {

/// One line of ecdsa-p256-sha256.txt, which names the source; keys, messages and signatures as
/// bytes.
struct EcdsaVector {
  std::string name;  ///< number and subject
  std::string publicKey;
  std::string message;
  std::string signature;
  bool isValid = false;
};

[[nodiscard]] std::vector<EcdsaVector> ecdsaVectors();

}  // namespace quillseal::devserver
