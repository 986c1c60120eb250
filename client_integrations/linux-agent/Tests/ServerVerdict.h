#pragma once

#include <string>
#include <string_view>

#include "SignatureCheck.h"
#include "keys/P256.h"

namespace quillseal::testing {

/// Whether a server, which shares nothing with the key stores, accepts the signature: made with
/// this key, over these bytes taken as a finished digest, in strict DER.
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
