#include "EcdsaVectors.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace quillseal::devserver {
namespace {

std::string bytesOf(const std::string& hex) {
  std::string bytes;
  if (hex == "-") return bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2)
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  return bytes;
}

}  // namespace

std::vector<EcdsaVector> ecdsaVectors() {
  std::ifstream file(QUILLSEAL_ECDSA_VECTORS);
  std::vector<EcdsaVector> vectors;
  std::string key;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    std::string number, result, subject, message, signature;
    fields >> number >> result;
    if (number == "#") continue;
    if (number == "key") {
      key = bytesOf(result);
    } else if (fields >> subject >> message >> signature) {
      vectors.push_back({.name = number + " " + subject,
                         .publicKey = key,
                         .message = bytesOf(message),
                         .signature = bytesOf(signature),
                         .isValid = result == "valid"});
    } else {
      throw std::runtime_error("no test vector: " + line);
    }
  }
  return vectors;
}

}  // namespace quillseal::devserver
