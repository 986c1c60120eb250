#include <string>

#include <gtest/gtest.h>

#include "core/signing/ConfirmationText.h"

namespace quillseal {
namespace {

std::string repeated(std::string_view text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i)
    result += text;
  return result;
}

TEST(PromptSubject, FitsOnOneLine) {
  const std::pair<std::string, std::string> cases[] = {
      {"one\ntwo", "“one two” (2 words)"},
      {"  one\r\ntwo\r\n", "“one  two” (2 words)"},
      {"", "“” (0 words)"},
      {std::string(48, 'a'), "“" + std::string(48, 'a') + "” (1 words)"},
      {std::string(49, 'a'), "“" + std::string(48, 'a') + "…” (1 words)"},
      {repeated("🇩🇪", 49), "“" + repeated("🇩🇪", 48) + "…” (0 words)"},
      {repeated("שלום ", 20), "“" + repeated("שלום ", 9) + "שלו…” (20 words)"},
  };
  for (const auto& [text, subject] : cases)
    EXPECT_EQ(promptSubject(text), subject);
}

TEST(ConfirmationText, TellsWhatIsSigned) {
  EXPECT_EQ(confirmationText({.text = "I owe <Ada> & \"Bob\" 5 €.",
                              .scope = "Email Message (Mail)",
                              .issued = "2025-01-30",
                              .identity = "Ada Lovelace",
                              .proof = "fingerprint"}),
            "You are about to cryptographically authorize the following text with your "
            "fingerprint.\n\nI owe <Ada> & \"Bob\" 5 €.\n\nContext: Email Message (Mail)\nDate: "
            "2025-01-30\nSigning as: Ada Lovelace\n\nOnly the text above is covered. Anything "
            "added around it afterwards is not signed.\n");
}

TEST(ConfirmationText, CutsLongTextsByCharacters) {
  const auto shown = [](const std::string& text) {
    const std::string whole = confirmationText(
        {.text = text, .scope = "", .issued = "", .identity = "", .proof = "", .isDemo = true});
    const std::size_t start = whole.find("\n\n") + 2;
    return whole.substr(start, whole.find("\n\nContext: \nDate: \nSigning as: anonymous human (no "
                                          "verified identity)\n\nOnly") -
                                   start);
  };
  const std::string exactly = repeated("👍🏽", 600);
  EXPECT_EQ(shown(exactly), exactly);
  EXPECT_EQ(shown(exactly + "!"), exactly + "\n\n… (601 characters total)");
}

}  // namespace
}  // namespace quillseal
