#include "Quillseal/CryptoManager.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "core/signing/ImageReferences.h"
#include "core/text/CalendarDate.h"
#include "core/text/Digest.h"
#include "core/text/NormalForm.h"
#include "core/text/UnicodeText.h"
#include "core/text/Words.h"

namespace quillseal::CryptoManager {
namespace {

struct ExpiryTier {
  std::int64_t belowWords;
  std::int64_t days;
};

constexpr auto expiryTiers = std::to_array<ExpiryTier>({{50, 7}, {200, 30}, {1000, 90}});
constexpr std::int64_t longestExpiryDays = 365;

constexpr std::string_view payloadTag = "quillseal/v3\n";
constexpr std::string_view manifestTag = "quillseal/images/v1\n";

std::string formattedDate(std::chrono::sys_days days) {
  const std::chrono::year_month_day date{days};
  std::array<char, 32> buffer{};
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                    static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return {buffer.data(), static_cast<std::size_t>(length)};
}

template <typename Bytes>
std::string hex(const Bytes& bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  text.reserve(2 * std::size(bytes));
  for (const std::uint8_t byte : bytes) {
    text += digits[byte >> 4U];
    text += digits[byte & 0x0FU];
  }
  return text;
}

}  // namespace

std::string normalizeText(std::string_view text) {
  return normalForm(text);
}

std::int64_t countWords(std::string_view text) {
  return wordCount(text);
}

bool isDistinctive(std::string_view text) {
  return holdsNumber(text) || holdsNameAfterFirstWord(text);
}

std::string signingRefusal(std::string_view text) {
  const std::int64_t words = countWords(text);
  if (words >= alwaysDistinctWords) return {};
  if (words < minimumWords)
    return "Only " + std::to_string(words) + " words. Write at least " +
           std::to_string(minimumWords) + ".";
  if (isDistinctive(text)) return {};
  return std::to_string(words) +
         " words, but nothing specific in it. Add an amount, a date or a name — or write " +
         std::to_string(alwaysDistinctWords) + "+ words.";
}

std::string sha256Hex(std::string_view text) {
  return hex(digest::sha256(text));
}

std::string canonicalV3(const CanonicalFields& fields) {
  const auto folded = [](std::string_view field) {
    return unicode::lowercased(unicode::trimmed(field));
  };
  std::string commitment = folded(fields.commitment);
  if (std::find(commitmentTypes.begin(), commitmentTypes.end(), commitment) ==
      commitmentTypes.end())
    commitment = commitmentTypes.front();

  std::string payload{payloadTag};
  payload += fields.textDigest;
  payload += sha256Hex(unicode::trimmed(fields.issued));
  payload += sha256Hex(folded(fields.scope));
  payload += fields.snapshotDigest.empty() ? sha256Hex("") : std::string{fields.snapshotDigest};
  payload += sha256Hex(folded(fields.identity));
  payload += sha256Hex(folded(fields.signerKey));
  payload += sha256Hex(unicode::trimmed(fields.expires));
  payload += sha256Hex(unicode::trimmed(fields.nonce));
  payload += sha256Hex(commitment);
  return sha256Hex(payload);
}

std::int64_t expiryDaysFor(std::int64_t wordCount) {
  for (const ExpiryTier& tier : expiryTiers)
    if (wordCount < tier.belowWords) return tier.days;
  return longestExpiryDays;
}

std::string expiryDateFor(const ExpiryRequest& request) {
  const auto issued = parsedDate(unicode::trimmed(request.issued));
  if (!issued) return {};
  return formattedDate(std::chrono::sys_days{*issued} +
                       std::chrono::days{expiryDaysFor(request.wordCount)});
}

std::string randomHex(std::int64_t byteCount) {
  if (byteCount < 0) {
    static_cast<void>(
        std::fputs("randomHex: a negative byte count is a fault of the caller\n", stderr));
    std::abort();
  }
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(byteCount));
  return digest::fillRandom(bytes) ? hex(bytes) : std::string{};
}

std::vector<std::string> imageURLs(std::optional<std::string_view> html) {
  if (!html || html->empty()) return {};
  return imageReferences(*html);
}

std::string imageManifestDigest(const std::vector<std::string>& urls) {
  std::string payload{manifestTag};
  bool first = true;
  for (const std::string& url : urls) {
    const std::string_view entry = unicode::trimmed(url);
    if (entry.empty()) continue;
    if (!std::exchange(first, false)) payload += '\n';
    payload += entry;
  }
  return sha256Hex(payload);
}

}  // namespace quillseal::CryptoManager
