#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "PageFixture.h"
#include "Quillseal/CryptoManager.h"
#include "RandomText.h"

namespace quillseal::devserver {
namespace {

using nlohmann::json;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

/// Every scalar that is a character, in groups, and random texts.
std::vector<std::string> textsToNormalise() {
  std::vector<std::string> texts{"", "a<b>c\r\n", "“Don’t” — wait…"};
  constexpr char32_t groupSize = 512;
  for (char32_t first = 0; first < 0x110000; first += groupSize) {
    icu::UnicodeString group;
    for (char32_t scalar = first; scalar < first + groupSize; ++scalar) {
      const auto code = static_cast<UChar32>(scalar);
      const auto category = u_charType(code);
      // An unassigned code point may compose in another Unicode version.
      if (category == U_UNASSIGNED || category == U_SURROGATE) continue;
      group.append('a').append(code).append(UChar32{0x301});
    }
    if (!group.isEmpty()) group.toUTF8String(texts.emplace_back());
  }
  std::mt19937 random(20260101);
  for (int i = 0; i < 300; ++i)
    texts.push_back(quillseal::testing::randomText(random, 200));
  return texts;
}

TEST_F(PageTest, NormalisesAsTheAgentDoes) {
  const std::vector<std::string> texts = textsToNormalise();
  files_["/test/texts.html"] =
      R"(<!DOCTYPE html><body><script type="module" src="/test/texts.js"></script></body>)";
  files_["/test/texts.json"] = json(texts).dump();
  files_["/test/texts.js"] = R"js(
import { textDigest } from "/assets/canonical.js";
import { report } from "/test/help.js";
for (const text of await (await fetch("/test/texts.json")).json()) report(await textDigest(text));
)js";
  const std::vector<std::string> digests = reportAt(origin_ + "/test/texts.html");
  ASSERT_EQ(digests.size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(digests[i], digestOf(texts[i])) << quillseal::testing::escaped(texts[i]);
  }
}

/// "A <img src=x onerror=document.title=1> & “é”" and its HTML, as the agent sends them.
constexpr const char* hostileText = "A <img src=x onerror=document.title=1> & “é”";
constexpr const char* hostileFragment =
    "#t=QSA8aW1nIHNyYz14IG9uZXJyb3I9ZG9jdW1lbnQudGl0bGU9MT4gJiDigJzDqeKAnQ"
    "&h=PHA-QSA8aW1nIHNyYz14IG9uZXJyb3I9ZG9jdW1lbnQudGl0bGU9MT48L3A-";

TEST_F(PageTest, SignsTheTextOfTheFragment) {
  const Handoff handoff = openHandoff(hostileText);
  files_["/test/act.js"] = R"js(
import { report, settled, until } from "/test/help.js";
const sign = document.getElementById("sign");
await until(() => !sign.disabled);
report(location.pathname + location.search + location.hash);
report(document.getElementById("text").textContent);
report(document.getElementById("html").textContent);
report(document.getElementById("text").childElementCount);
const inline = document.createElement("script");
inline.textContent = "window.injected = true";
document.body.append(inline);
report(window.injected ?? "no inline script");
report(await fetch("http://localhost:9/").catch(() => "no other server"));
sign.click();
sign.click();
await until(() => document.getElementById("actions").hidden);
report(document.getElementById("heading").textContent);
)js";
  EXPECT_THAT(
      reportAt(handoff.url + hostileFragment),
      ::testing::ElementsAre("/handoff?h=" + handoff.id,
                             "A &lt;img src=x onerror=document.title=1&gt; &amp; “é”",
                             "&lt;p&gt;A &lt;img src=x onerror=document.title=1&gt;&lt;/p&gt;", "0",
                             "no inline script", "no other server", "Signed"));
  EXPECT_EQ(statusOf(handoff.id), "complete");
  for (const std::string& request : traffic_) {
    EXPECT_THAT(request, AllOf(Not(HasSubstr("onerror")), Not(HasSubstr("QSA8aW1n"))))
        << "the text never reaches the server";
  }
  EXPECT_THAT(traffic_, Contains(HasSubstr("/handoff/sign")));
}

TEST_F(PageTest, RefusesToSignAnyOtherText) {
  const Handoff handoff = openHandoff("another text");
  files_["/test/act.js"] = R"js(
import { report, until } from "/test/help.js";
await until(() => document.getElementById("result").textContent !== "");
report(document.getElementById("result").classList[1]);
report(document.getElementById("sign").disabled);
)js";
  for (const std::string& fragment :
       {std::string(hostileFragment), std::string("#t=_w"), std::string()}) {
    EXPECT_THAT(reportAt(handoff.url + fragment), ::testing::ElementsAre("bad", "true"))
        << fragment;
  }
  EXPECT_EQ(statusOf(handoff.id), "pending");
}

TEST_F(PageTest, DeclinesAndExpires) {
  const Handoff declined = openHandoff(hostileText);
  const Handoff late = openHandoff(hostileText);
  EXPECT_THAT(documentAt(late.url + hostileFragment, 700'000),
              HasSubstr(R"(<h1 id="heading">Expired</h1>)"));
  files_["/test/act.js"] = R"js(
import { report, until } from "/test/help.js";
document.getElementById("decline").click();
await until(() => document.getElementById("actions").hidden);
report(document.getElementById("heading").textContent);
)js";
  EXPECT_THAT(reportAt(declined.url + hostileFragment), ::testing::ElementsAre("Declined"));
  EXPECT_EQ(statusOf(declined.id), "expired");
}

}  // namespace
}  // namespace quillseal::devserver
