#include <fstream>

#include <gmock/gmock.h>

#include "Cases.h"
#include "LinuxWording.h"
#include "MacDesktop/MacWords.h"
#include "Story.h"
#include "core/text/UnicodeText.h"

// The agent with the words of each desktop. This build has a server key and names no server.
namespace quillseal::linux {
namespace {

using namespace ::testing;

// Looks like the agent's messages and must not be changed.
const std::string selection =
    "Could Not Set Up This Mac\n\nSign with Touch ID: press ⌘V, said my neighbour Grace about the "
    "Secure Enclave of her old laptop.";

/// All that the person is shown in a story.
std::string shownIn(const std::vector<std::string>& lines, const desktop::Wording& wording) {
  Story story;
  story.words.wording = wording;
  story.defaults.strings["ServerURL"] = "https://seal.example";
  story.keys.selection = testing::Copy{.text = selection, .html = {}};
  for (const std::string& line : lines)
    goOn(story, unicode::replacingAll(line, "{selection}", selection));
  return story.shown;
}

std::string renamed(std::string text) {
  for (const auto& [from, to] : {std::pair{"⌘⌥⌃H", "Ctrl+Alt+Super+H"},
                                 {"⌘V", "Ctrl+V"},
                                 {"This Mac", "This Computer"},
                                 {"this Mac", "this computer"}})
    text = unicode::replacingAll(text, from, to);
  return text;
}

void expectNoWordsOfAMac(const std::string& shown) {
  for (const char* word : {"Mac", "Enclave", "Touch ID", "⌘", "⌥", "⌃", "biometric", "Outlook"})
    EXPECT_THAT(shown, Not(HasSubstr(word)));
}

TEST(LinuxWording, EveryTextReadsAsIfWrittenForTheMachine) {
  const desktop::Wording macWords = mac::MacWords().current();
  for (const auto& [lines, mac, tpm, keyFile] :
       testing::cases<std::vector<std::string>, std::string, std::string, std::string>()) {
    EXPECT_THAT(shownIn(lines, macWords), HasSubstr(mac));
    for (const KeyPlace place : {KeyPlace::tpm, KeyPlace::tpmSimulator, KeyPlace::keyFile}) {
      for (const bool isDemo : {false, true}) {
        std::string shown = shownIn(lines, linuxWording({.key = place, .isDemo = isDemo}));
        if (!isDemo && place != KeyPlace::tpmSimulator) {
          const std::string& expected = place == KeyPlace::tpm ? tpm : keyFile;
          EXPECT_THAT(shown, HasSubstr(expected.empty() ? renamed(mac) : expected));
        }
        SCOPED_TRACE(mac);
        expectNoWordsOfAMac(unicode::replacingAll(shown, selection, ""));
      }
    }
  }
}

// The stories are those of a Mac: what they expect is left out, what the user does is renamed.
TEST(LinuxWording, HoldsInAllStoriesOfTheAgent) {
  std::size_t told = 0;
  for (const char* path : {QUILLSEAL_SIGNING_STORIES, QUILLSEAL_SETTINGS_STORIES}) {
    std::ifstream file(path);
    std::optional<Story> story;
    for (std::string line; std::getline(file, line);) {
      if (line.empty() || line.starts_with('#') || line.starts_with("> ") ||
          line.find(" == ") != std::string::npos || line.find(" ~ ") != std::string::npos)
        continue;
      SCOPED_TRACE(line);
      if (line == "entitlement missing = yes") line = "creation fails = The disk is full.";
      if (line.starts_with('[')) {
        story.emplace().words.wording = linuxWording({.key = KeyPlace::keyFile});
        story->defaults.strings["ServerURL"] = "https://seal.example";
        ++told;
      } else {
        goOn(*story, renamed(line));
        expectNoWordsOfAMac(story->shown);
      }
    }
  }
  EXPECT_GT(told, 100U);
}

TEST(LinuxWording, NamesTheKeyByItsPlaceAndADemonstration) {
  EXPECT_EQ(linuxWording({.key = KeyPlace::tpm}).deviceKey, "TPM key");
  EXPECT_EQ(linuxWording({.key = KeyPlace::keyFile}).deviceKey, "signing key");
  EXPECT_EQ(linuxWording({.key = KeyPlace::tpmSimulator}).keyExists,
            "Enrolled — a signing key exists inside the TPM simulator.");
  const desktop::Wording demo = linuxWording({.key = KeyPlace::keyFile, .isDemo = true});
  EXPECT_EQ(demo.proof, "fingerprint or password");
  EXPECT_EQ(demo.proofInTitle, "Fingerprint or Password");
}

}  // namespace
}  // namespace quillseal::linux
