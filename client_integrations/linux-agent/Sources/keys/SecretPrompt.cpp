#include "keys/SecretPrompt.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillseal::linux {

namespace {

struct Demands {
  std::string_view name;
  std::string_view rules;
  std::string_view tooShort;
  std::string_view tooUniform;
  std::string_view withoutLetters;  ///< empty when digits alone are allowed
  std::size_t minimumCharacters;
  std::size_t minimumDistinctBytes;
};

// A locked TPM allows only a few guesses an hour, so six characters are enough.
constexpr Demands pinDemands{
    .name = "PIN",
    .rules = "At least 6 characters, digits or letters, and not all of them the same.",
    .tooShort = "This PIN is too short: it needs at least 6 characters.",
    .tooUniform = "This PIN repeats one character. Use at least 2 different characters.",
    .withoutLetters = {},
    .minimumCharacters = 6,
    .minimumDistinctBytes = 2};
// A simulator took 61 guesses a second from a program that resets the lockout after every second
// guess and loads the key for each. At that rate all six-digit PINs take less than five hours, ten
// million leaked passwords two days, three words from a list of eight thousand 270 years, and ten
// letters and digits two million years. A program that keeps the key loaded is faster; a chip is
// slower.
constexpr Demands unguardedPinDemands{
    .name = "PIN",
    .rules =
        "At least 10 characters with letters among them. Three unrelated words are good; a "
        "word with a number is not.",
    .tooShort = "This PIN is too short: it needs at least 10 characters.",
    .tooUniform = "This PIN repeats a few characters. Use at least 6 different characters.",
    .withoutLetters = "This PIN has no letters. Add some.",
    .minimumCharacters = 10,
    .minimumDistinctBytes = 6};
// A copied key file can be attacked on many computers; only scrypt slows that down.
constexpr Demands passphraseDemands{
    .name = "passphrase",
    .rules = "At least 12 characters. Four unrelated words are good; a word with a number is not.",
    .tooShort = "This passphrase is too short: it needs at least 12 characters.",
    .tooUniform = "This passphrase repeats a few characters. Use at least 6 different characters.",
    .withoutLetters = {},
    .minimumCharacters = 12,
    .minimumDistinctBytes = 6};

constexpr std::size_t maximumBytes = 1024;

const Demands& demandsOn(SecretKind kind) {
  switch (kind) {
    case SecretKind::pin:
      return pinDemands;
    case SecretKind::unguardedPin:
      return unguardedPinDemands;
    case SecretKind::passphrase:
      break;
  }
  return passphraseDemands;
}

std::size_t scalarCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

std::size_t distinctBytes(std::string_view text) {
  std::array<bool, 256> seen{};
  for (const char c : text)
    seen[static_cast<unsigned char>(c)] = true;
  return static_cast<std::size_t>(std::count(seen.begin(), seen.end(), true));
}

// Nearly every non-ASCII character is a letter of some script; the others are no easier to guess.
bool hasLetter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (static_cast<unsigned char>(c) & 0x80U) != 0;
  });
}

}  // namespace

std::string capitalised(std::string_view text) {
  std::string result(text);
  if (!result.empty() && result.front() >= 'a' && result.front() <= 'z')
    result.front() = static_cast<char>(result.front() - 'a' + 'A');
  return result;
}

std::string_view nameOf(SecretKind kind) noexcept {
  return demandsOn(kind).name;
}

std::string_view rulesFor(SecretKind kind) noexcept {
  return demandsOn(kind).rules;
}

std::string_view objectionTo(SecretKind kind, const SecretBytes& secret) noexcept {
  const Demands& demands = demandsOn(kind);
  if (scalarCount(secret.text()) < demands.minimumCharacters) return demands.tooShort;
  if (distinctBytes(secret.text()) < demands.minimumDistinctBytes) return demands.tooUniform;
  if (!demands.withoutLetters.empty() && !hasLetter(secret.text())) return demands.withoutLetters;
  if (secret.size() > maximumBytes) return "This is too long: at most 1024 bytes.";
  return {};
}

}  // namespace quillseal::linux
