#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Everything between a captured text and the values that a signature binds. Pure functions (but
/// for `randomHex`), callable from any thread. Texts are UTF-8; a digest is 64 lower-case
/// hexadecimal characters; a date is "yyyy-MM-dd".
namespace quillseal::CryptoManager {

/// A text of fewer words than this is never signed.
inline constexpr std::int64_t minimumWords = 10;
/// A text of this many words is signed even when nothing in it is specific.
inline constexpr std::int64_t alwaysDistinctWords = 20;

/// The canonical form of a text, whose digest is signed: NFC, typographic dashes and quotes as
/// their ASCII counterparts, and without white space, angle brackets and invisible controls, so
/// that neither reflowing nor smart punctuation changes the digest.
[[nodiscard]] std::string normalizeText(std::string_view text);

/// The number of words. Each Chinese character, kana or Hangul syllable is a word by itself; any
/// other run between white space is one when it holds a letter or a number.
[[nodiscard]] std::int64_t countWords(std::string_view text);

/// Whether the text holds something specific: a number, or a capitalised word after the first.
[[nodiscard]] bool isDistinctive(std::string_view text);

/// Why the text may not be signed, as a sentence for the user; empty when it may.
[[nodiscard]] std::string signingRefusal(std::string_view text);

/// SHA-256 (FIPS 180-4) of the bytes of `text`.
[[nodiscard]] std::string sha256Hex(std::string_view text);

/// What `canonicalV3` binds together.
struct CanonicalFields {
  std::string_view textDigest;
  std::string_view issued;
  std::string_view scope;
  std::string_view snapshotDigest;  ///< empty stands for the digest of the empty string
  std::string_view identity;
  std::string_view signerKey;
  std::string_view expires;
  std::string_view nonce;
  std::string_view commitment;  ///< one of `commitmentTypes`; anything else counts as "statement"
};

/// The digest that the device key signs: over a domain tag and nine fields, each variable one
/// hashed by itself first, so that fields of any content cannot run into each other.
[[nodiscard]] std::string canonicalV3(const CanonicalFields& fields);

/// The commitments a signer can make; the first is the default.
inline constexpr auto commitmentTypes =
    std::to_array<std::string_view>({"statement", "approval", "authorship", "receipt", "draft"});

/// For how many days a signature over a text of `wordCount` words is valid.
[[nodiscard]] std::int64_t expiryDaysFor(std::int64_t wordCount);

/// What `expiryDateFor` computes from.
struct ExpiryRequest {
  std::string_view issued;  ///< white space at its ends is ignored
  std::int64_t wordCount;
};

/// The last day of a signature's validity; empty when `issued` is no existing Gregorian day.
[[nodiscard]] std::string expiryDateFor(const ExpiryRequest& request);

/// `byteCount` bytes of the system's cryptographic random source in hexadecimal; empty when the
/// source fails, and then nothing may be signed. REQUIRES: byteCount is not negative.
[[nodiscard]] std::string randomHex(std::int64_t byteCount);

/// The sources of the images of an HTML fragment, in document order, duplicates kept, as written
/// (no entity decoding). Takes linear time, whatever the markup.
[[nodiscard]] std::vector<std::string> imageURLs(std::optional<std::string_view> html);

/// The digest of a list of image sources; blank entries do not count, the order does.
[[nodiscard]] std::string imageManifestDigest(const std::vector<std::string>& urls);

}  // namespace quillseal::CryptoManager
