// Unicode's own test files, where the system's Unicode data package installs them.
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Quillseal/CryptoManager.h"
#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

/// "0041 0308" as UTF-8.
std::string fromCodes(const std::string& codes) {
  std::istringstream stream(codes);
  std::string text;
  for (std::uint32_t code = 0; stream >> std::hex >> code;)
    unicode::append(text, static_cast<char32_t>(code));
  return text;
}

std::vector<std::string> dataLines(const std::string& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    line = line.substr(0, line.find('#'));
    if (!unicode::trimmed(line).empty() && line.front() != '@') lines.push_back(line);
  }
  EXPECT_GT(lines.size(), 500U) << path;
  return lines;
}

TEST(UnicodeConformance, Characters) {
  for (const std::string& line : dataLines(QUILLSEAL_GRAPHEME_BREAK_TEST)) {
    // "÷ 0020 × 0308 ÷ 0020 ÷": a boundary at each division sign.
    std::vector<std::string> expected;
    const std::string pieces = unicode::replacingAll(line, "×", " ");
    for (std::size_t start = pieces.find("÷"); start != std::string::npos;) {
      const std::size_t next = pieces.find("÷", start + 1);
      const std::size_t content = start + std::string_view("÷").size();
      if (next != std::string::npos)
        expected.push_back(fromCodes(pieces.substr(content, next - content)));
      start = next;
    }
    std::string text;
    for (const std::string& character : expected)
      text += character;
    std::vector<std::string> found;
    for (unicode::CharacterCursor cursor(text); !cursor.atEnd();)
      found.emplace_back(cursor.next());
    EXPECT_EQ(found, expected) << line;
  }
}

TEST(UnicodeConformance, Normalisation) {
  // Columns: source; NFC; NFD; NFKC; NFKD. Canonically equivalent texts must have one digest.
  for (const std::string& line : dataLines(QUILLSEAL_NORMALIZATION_TEST)) {
    std::istringstream columns(line);
    std::string source, nfc, nfd;
    std::getline(columns, source, ';');
    std::getline(columns, nfc, ';');
    std::getline(columns, nfd, ';');
    const std::string expected = CryptoManager::normalizeText(fromCodes(nfc));
    EXPECT_EQ(CryptoManager::normalizeText(fromCodes(source)), expected) << line;
    EXPECT_EQ(CryptoManager::normalizeText(fromCodes(nfd)), expected) << line;
  }
}

}  // namespace
}  // namespace quillseal
