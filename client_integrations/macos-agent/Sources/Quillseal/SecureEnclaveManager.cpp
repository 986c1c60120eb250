#include "Quillseal/SecureEnclaveManager.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/tasks/Async.h"
#include "core/text/Base64.h"

namespace quillseal {
namespace {

std::string described(SecureEnclaveError::Case kind, const desktop::Wording& words,
                      std::string_view message) {
  switch (kind) {
    case SecureEnclaveError::Case::keyGenerationFailed:
      return "Could not create the " + words.signingKey + ": " + std::string(message);
    case SecureEnclaveError::Case::signingFailed:
      return words.signingFailed + ": " + std::string(message);
    case SecureEnclaveError::Case::unsupported:
      return words.keyUnsupported;
    case SecureEnclaveError::Case::keyMissing:
      return "No " + words.signingKey + " is enrolled. Enrol this " + words.machine +
             " in Quillseal Settings.";
    case SecureEnclaveError::Case::publicKeyExportFailed:
      break;
  }
  return words.publicKeyFailed;
}

}  // namespace

SecureEnclaveError::SecureEnclaveError(Case kind, const desktop::Wording& words,
                                       std::string_view message)
    : Error({.domain = "Quillseal.SecureEnclaveError",
             .code = static_cast<std::int64_t>(kind),
             .description = described(kind, words, message)}),
      kind_(kind) {}

namespace SecureEnclaveManager {
namespace {

using Case = SecureEnclaveError::Case;
using Digest = std::array<std::uint8_t, 32>;

constexpr std::string_view missingEntitlementMessage =
    "this build is not code-signed with an Apple Developer identity, so macOS will not create a "
    "biometric-protected Secure Enclave key (OSStatus -34018). Quillseal will not sign without "
    "one, because it could not prove a person was present. A build signed with a Developer ID "
    "certificate is required.";

/// The platform's words, or `otherwise` when it gave none.
std::string_view wordsOf(const Error& error, std::string_view otherwise) {
  const std::string_view words = error.what();
  return words.empty() ? otherwise : words;
}

std::string_view whyNoKeyWasMade(const Error& error) {
  const auto* refusal = dynamic_cast<const desktop::KeyStoreError*>(&error);
  if (refusal && refusal->reason() == desktop::KeyStoreError::Reason::missingEntitlement)
    return missingEntitlementMessage;
  return wordsOf(error, "unknown error");
}

void logFailure(desktop::Log& log, std::string_view act, const Error& error) {
  log.write(std::string("[sign] key store failed to ")
                .append(act)
                .append(": ")
                .append(error.domain())
                .append(" ")
                .append(std::to_string(error.code())));
}

/// The key, or null when there is none. A store that cannot tell throws: to take that for no key
/// would have the key replaced.
Key lookUp(const desktop::KeyStore& store, desktop::Log& log,
           std::optional<desktop::Prompt> prompt = std::nullopt) {
  try {
    return store.load(std::move(prompt));
  } catch (const Error& error) {
    logFailure(log, "look the key up", error);
    throw;
  }
}

std::optional<Digest> digestFromHex(std::string_view text) {
  Digest digest{};
  const auto bytes = bytesFromHex(text);
  if (!bytes || bytes->size() != digest.size()) return std::nullopt;
  std::copy(bytes->begin(), bytes->end(), digest.begin());
  return digest;
}

}  // namespace

Task<bool> isAvailable(Services services) {
  const desktop::KeyStore& store = services.keyStore;
  return offload(services.loop, [&store] { return store.isAvailable(); });
}

Task<Key> createKey(Services services) {
  desktop::KeyStore& store = services.keyStore;
  desktop::Log& log = services.log;
  return offload(services.loop, [&store, &log, words = services.words.current()]() -> Key {
    if (!store.isAvailable()) throw SecureEnclaveError(Case::unsupported, words);
    try {
      return store.create();
    } catch (const Error& error) {
      logFailure(log, "create the key", error);
      throw SecureEnclaveError(Case::keyGenerationFailed, words, whyNoKeyWasMade(error));
    }
  });
}

Task<Key> loadKey(Services services) {
  const desktop::KeyStore& store = services.keyStore;
  desktop::Log& log = services.log;
  return offload(services.loop, [&store, &log, words = services.words.current()]() -> Key {
    Key key = lookUp(store, log);
    if (!key) throw SecureEnclaveError(Case::keyMissing, words);
    return key;
  });
}

Task<bool> hasKey(Services services) {
  const desktop::KeyStore& store = services.keyStore;
  desktop::Log& log = services.log;
  return offload(services.loop, [&store, &log] { return lookUp(store, log) != nullptr; });
}

Task<std::string> exportPublicKey(Services services, Key key) {
  return offload(services.loop, [key = std::move(key), words = services.words.current()] {
    const auto point = key->publicKey();
    if (!point) throw SecureEnclaveError(Case::publicKeyExportFailed, words);
    return base64(*point);
  });
}

Task<std::string> sign(Services services, SigningRequest request) {
  const std::optional<Digest> digest = digestFromHex(request.textHashHex);
  desktop::Wording words = services.words.current();
  if (!digest) {
    throw SecureEnclaveError(Case::signingFailed, words,
                             "content hash is not a 64-char hex digest");
  }
  const desktop::KeyStore& store = services.keyStore;
  desktop::Log& log = services.log;
  auto work = [&store, &log, digest = *digest, prompt = std::move(request.prompt),
               words = std::move(words)] {
    const Key key = lookUp(store, log, prompt);
    if (!key) throw SecureEnclaveError(Case::keyMissing, words);
    try {
      return base64(key->sign(digest));
    } catch (const Error& error) {
      logFailure(log, "sign", error);
      throw SecureEnclaveError(Case::signingFailed, words, wordsOf(error, words.unnamedReason));
    }
  };
  std::string signature = co_await offload(services.loop, std::move(work));
  co_return signature;
}

Task<> deleteKey(Services services) {
  desktop::KeyStore& store = services.keyStore;
  return offload(services.loop, [&store] { store.remove(); });
}

std::optional<std::vector<std::uint8_t>> bytesFromHex(std::string_view text) {
  const auto valueOf = [](char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
  };
  if (text.size() % 2 != 0) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const int high = valueOf(text[i]), low = valueOf(text[i + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
  }
  return bytes;
}

}  // namespace SecureEnclaveManager

}  // namespace quillseal
