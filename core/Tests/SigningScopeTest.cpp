#include <string>

#include <gtest/gtest.h>

#include "core/signing/SigningScope.h"
#include "core/text/UnicodeText.h"

namespace quillseal::SigningScope {
namespace {

struct ScopeCase {
  std::optional<std::string> name;
  std::string bundle;
  std::string scope;
};

TEST(DetectAppScope, NamesTheMediumBySubstrings) {
  const ScopeCase cases[] = {
      {"Microsoft Outlook", "com.microsoft.Outlook", "Email Message (Microsoft Outlook)"},
      {"Post", "org.example.MAILER", "Email Message (Post)"},
      {"Snailmail Notes", "", "Email Message (Snailmail Notes)"},
      {"Microsoft Word", "com.microsoft.Word", "Word Document (Microsoft Word)"},
      {"Crossword Tutor", "", "Word Document (Crossword Tutor)"},
      {"Pages", "com.apple.iWork.Pages", "Pages Document (Pages)"},
      {"WordPages Mail", "", "Email Message (WordPages Mail)"},
      {"Thunderbird", "thunderbird Network;Email;", "Email Message (Thunderbird)"},
      {"Safari", "com.apple.Safari", "Public Broadcast"},
      {"Terminal", "com.apple.Terminal TerminalEmulator;", "Public Broadcast"},
      {std::nullopt, "com.example.mail", "Email Message (Desktop App)"},
      {"", "", "Public Broadcast"},
  };
  for (const ScopeCase& c : cases) {
    const AppScope detected = detectAppScope({.name = c.name, .bundleIdentifier = c.bundle});
    EXPECT_EQ(detected.scope, c.scope);
    EXPECT_EQ(detected.app, c.name && !c.name->empty() ? *c.name : "Desktop App");
  }
}

TEST(DefaultMediumIndex, TakesTheFirstRuleThatFits) {
  const std::pair<std::string, std::size_t> cases[] = {
      {"Email Message (Microsoft OUTLOOK)", 0},
      {"Outlook Mail", 0},
      {"E-MAIL", 1},
      {"Word Document (Microsoft Word)", 6},
      {"mail in Word", 1},
      {"Public Broadcast", 7},
      {"LinkedIn Post", 7},
      {"", 7},
  };
  for (const auto& [scope, index] : cases)
    EXPECT_EQ(defaultMediumIndex(scope), index) << scope;
}

TEST(ComposeScope, JoinsMediumAndRecipientWithinTwoHundredCharacters) {
  const std::string family = "👩‍👩‍👧";
  EXPECT_EQ(composeScope({.base = "LinkedIn Post", .recipient = "   "}), "LinkedIn Post");
  EXPECT_EQ(composeScope({.base = "A", .recipient = "\n Ada \t"}), "A → Ada");
  const std::string longBase(300, 'b');
  EXPECT_EQ(composeScope({.base = longBase, .recipient = ""}), longBase);
  EXPECT_EQ(composeScope({.base = longBase, .recipient = "x"}), std::string(200, 'b'));
  const std::string base(196, 'b');
  EXPECT_EQ(composeScope({.base = base, .recipient = family}), base + " → " + family);
  EXPECT_EQ(composeScope({.base = base, .recipient = family + "x"}), base + " → " + family);
}

}  // namespace
}  // namespace quillseal::SigningScope
