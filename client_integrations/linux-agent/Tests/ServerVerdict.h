#pragma once

#include <string>
#include <string_view>

#include "SignatureCheck.h"
#include "keys/P256.h"

namespace quillseal::testing {

/// Returns whether the development server's code, which shares nothing with the key stores, accepts
/// the signature by this key over this digest, in strict DER.
inline bool isAcceptedByServer(const linux::P256::Claim& claim) {
  const auto text = [](linux::P256::Bytes bytes) {
    return std::string(bytes.begin(), bytes.end());
  };
  std::string digestHex;
  for (const std::uint8_t byte : claim.digest)
    for (const int digit : {byte / 16, byte % 16})
      digestHex += "0123456789abcdef"[digit];
  return devserver::isSignedBy({.publicKey = text(claim.publicKey),
                                .digestHex = digestHex,
                                .signature = text(claim.signature)});
}

}  // namespace quillseal::testing
