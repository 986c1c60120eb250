#pragma once

#include <string>
#include <string_view>

#include "SignatureCheck.h"
#include "keys/KeyFailure.h"
#include "keys/P256.h"

namespace quillseal::testing {

/// What a key store says when the action fails.
std::string failureOf(const auto& action) {
  try {
    action();
  } catch (const Cancelled& cancelled) {
    return cancelled.what();
  } catch (const linux::KeyFailure& failure) {
    return failure.what();
  }
  return "(no failure)";
}

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
