#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "Quillseal/CryptoManager.h"
#include "core/text/Digest.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

constexpr std::string_view prose =
    "Dear Ms Whitcombe, thank you for the visit on Tuesday. We agreed that the second draft of the "
    "lease goes to your office by 14 March, that the deposit stays as it was, and that the garden "
    "is shared with the neighbours. If anything in this is not as you remember it, please write to "
    "me before the end of the week so that I can correct it. ";

constexpr std::string_view mixed =
    "会議は火曜日に延期されました。👩🏽‍💻🇯🇵 다음 주에 "
    "봅시다! ";

std::string grown(std::string_view seed, std::size_t characters) {
  const std::size_t seedCharacters = unicode::characterCount(seed);
  std::string text;
  for (std::size_t have = 0; have < characters; have += seedCharacters)
    text += seed;
  return text;
}

void canonicalContent(benchmark::State& state, const std::string& text) {
  for (auto _ : state) {
    const std::string normalized = CryptoManager::normalizeText(text);
    benchmark::DoNotOptimize(CryptoManager::countWords(text));
    benchmark::DoNotOptimize(CryptoManager::signingRefusal(text));
    benchmark::DoNotOptimize(CryptoManager::sha256Hex(normalized));
  }
}

/// The lower bound for code that reads the text once and digests it.
void copyAndDigest(benchmark::State& state, const std::string& text) {
  std::vector<char> copy(text.size());
  for (auto _ : state) {
    std::memcpy(copy.data(), text.data(), text.size());
    benchmark::DoNotOptimize(digest::sha256({copy.data(), copy.size()}));
  }
}

[[maybe_unused]] const bool registered = [] {
  const std::pair<std::string, std::string> texts[] = {
      {"mail_60_words", std::string(prose)},
      {"english_1000_words", grown(prose, 5500)},
      {"english_2k_characters", grown(prose, 2000)},
      {"english_200k_characters", grown(prose, 200000)},
      {"cjk_emoji_2k_characters", grown(mixed, 2000)},
      {"cjk_emoji_200k_characters", grown(mixed, 200000)},
  };
  for (const auto& [name, text] : texts) {
    benchmark::RegisterBenchmark(("canonical_content/" + name).c_str(), canonicalContent, text);
    benchmark::RegisterBenchmark(("copy_and_digest/" + name).c_str(), copyAndDigest, text);
  }
  return true;
}();

}  // namespace
}  // namespace quillseal
