#include <string>

#include <gtest/gtest.h>

#include "core/signing/IdentityName.h"

namespace quillseal::IdentityName {
namespace {

TEST(IdentityName, ShowsAllOfItself) {
  struct Row {
    std::string name;
    bool isPlain;
    std::string shown;
  };
  for (const auto& [name, plain, expected] : {
           Row{"Ada Lovelace <ada@example.com>", true, "Ada Lovelace <ada@example.com>"},
           Row{"\u00C9lodie O\u2019Neil, 山田 👩\u200D🔬", true,
               "\u00C9lodie O\u2019Neil, 山田 👩\u200D🔬"},
           Row{"\u8FBB\U000E0100", true, "\u8FBB\U000E0100"},  // a variant that a name may need
           Row{"\u0634\u0627\u0647\u200C\u0646\u0627", true,
               "\u2068\u0634\u0627\u0647\u200C\u0646\u0627\u2069"},
           Row{"\u05D3\u05E0\u05D4 1", true, "\u2068\u05D3\u05E0\u05D4 1\u2069"},
           // What turns, breaks or hides what stands around it.
           Row{"Ada\u202E ecalevoL", false, "Ada‹U+202E› ecalevoL"},
           Row{"\u2067\u05D3\u2069", false, "\u2068‹U+2067›\u05D3‹U+2069›\u2069"},
           Row{"Ada\nSigning as: Grace", false, "Ada‹U+000A›Signing as: Grace"},
           Row{"Ada\u2028\u200E\u061C", false, "Ada‹U+2028›‹U+200E›‹U+061C›"},
           Row{"A\u00ADd\u200Ba\uFEFF", false, "A‹U+00AD›d‹U+200B›a‹U+FEFF›"},
           Row{"Ada\U000E0041", false, "Ada‹U+E0041›"},
           Row{std::string("A\0", 2), false, "A‹U+0000›"},
           Row{"Ada\x1B[2J", false, "Ada‹U+001B›[2J"},
           Row{"Ada\uFFF9x", false, "Ada‹U+FFF9›x"},
           // Nothing to be seen.
           Row{"", false, ""},
           Row{" \u00A0", false, "‹U+0020›‹U+00A0›"},
           Row{"\u2800\u3164", false, "‹U+2800›‹U+3164›"},
           Row{"\u200D\uFE0F", false, "‹U+200D›‹U+FE0F›"},
       }) {
    EXPECT_EQ(isPlain(name), plain) << testing::PrintToString(name);
    EXPECT_EQ(shown(name), expected) << testing::PrintToString(name);
  }
}

}  // namespace
}  // namespace quillseal::IdentityName
