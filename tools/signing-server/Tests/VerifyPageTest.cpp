#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "PageFixture.h"
#include "Quillseal/CryptoManager.h"
#include "RandomText.h"
#include "SignatureCheck.h"
#include "TestDevice.h"
#include "core/signing/SignedBlock.h"

/// What a reader is told by the page that a signed block's link leads to.
namespace quillseal::devserver {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* green = "good";
constexpr const char* amber = "caution";
constexpr const char* red = "bad";
constexpr const char* gray = "unknown";

constexpr std::int64_t day = 24 * 60 * 60;

/// A paste, with "{link}" for the record's own link and "{halves}" for that with a space in its
/// host and port, and what the page says of it.
struct Case {
  std::string base = {};  ///< the text that was signed
  std::string paste = {};
  const char* tone = nullptr;
  std::vector<std::string> words = {};           ///< each is in the verdict
  std::vector<std::string> shown = {};           ///< each is in what is shown below it
  std::vector<std::string> unshown = {};         ///< none is anywhere on the page
  std::function<void(Signature&)> made = {};     ///< how the record differs from the usual one
  std::function<void(Signature&)> changed = {};  ///< what happened to it after it was made
};

const std::string text = "Pay 1,250.00 EUR to Ada by 14 March.";
const std::string rule = "────────────────────";
const std::string label = "\nCheck this signature → ";
const std::string stampLine = "🛡️ QUILLSEAL · Email Message (Writer) · 1 January 2026";
const std::string stamp = "\n\n" + rule + "\n" + stampLine + label + "{link}";

std::string block(const std::string& signedText) {
  return "『" + signedText + "』" + stamp;
}

/// A block whose link is followed, or replaced, by something.
std::string linked(const std::string& link) {
  return "『" + text + "』\n\n" + rule + "\n" + stampLine + link;
}

/// A block with another line below the rule.
std::string stamped(const std::string& line) {
  return "『" + text + "』\n\n" + rule + "\n" + line + label + "{link}";
}

std::string replacedAll(std::string value, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = value.find(from, at)) != std::string::npos; at += to.size()) {
    value.replace(at, from.size(), to);
  }
  return value;
}

std::string quoted(const std::string& value, const std::string& sign) {
  return sign + replacedAll(value, "\n", "\n" + sign);
}

class VerifyPageTest : public PageTest {
 protected:
  std::string recorded(const Case& each) {
    Signature record;
    record.id = CryptoManager::randomHex(12);
    record.textDigest = digestOf(each.base);
    record.imageDigest = CryptoManager::imageManifestDigest({});
    record.issued = "2026-01-01";
    record.scope = "Email Message (Writer)";
    record.method = "Touch ID";
    record.deviceId = "0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90";
    record.expires = "2026-01-08";
    record.commitment = "statement";
    record.nonce = CryptoManager::randomHex(16);
    record.timezone = "Asia/Kolkata";
    record.utcOffsetMinutes = 330;
    record.recordedAt = start;
    if (each.made) each.made(record);
    if (record.kind == SignatureKind::device) {
      record.publicKey = device_.publicKey();
      record.deviceSignature = device_.sign(canonicalDigest(record));
    }
    if (each.changed) each.changed(record);
    EXPECT_TRUE(registry_.record(record));
    return record.id;
  }

  std::string linkTo(const std::string& id) const { return front_->origin() + "/verify/" + id; }

  /// Pastes each case into the page of its own record.
  void check(const std::vector<Case>& cases) {
    json list = json::array();
    for (const Case& each : cases) {
      const std::string id = recorded(each);
      const std::string halves = linkTo(id).insert(front_->origin().size() - 1, " ");
      std::string paste = replacedAll(each.paste, "{halves}", halves);
      paste = replacedAll(std::move(paste), "{link}", linkTo(id));
      list.push_back({{"id", id}, {"paste", std::move(paste)}});
    }
    front_->files["/test/cases.json"] = list.dump();
    // A page's script finds its record when it starts, so it is started once for each.
    front_->files["/test/act.js"] = R"js(
import { report } from "/test/help.js";
const settled = () => new Promise((resolve) => setTimeout(resolve, 5));
const text = () => document.getElementById("result").innerText;
const nothing = "Nothing has been compared yet";
// Nothing in it is changed on its way through the document's HTML.
const ascii = (value) => JSON.stringify(value).replace(/[^ -%'-;=?-~]/g,
  (unit) => `\\u${unit.charCodeAt(0).toString(16).padStart(4, "0")}`);
let count = 0;
for (const { id, paste } of await (await fetch("/test/cases.json")).json()) {
  const source = await (await fetch(`/verify/${id}`)).text();
  const page = new DOMParser().parseFromString(source, "text/html");
  document.querySelector("main").replaceWith(page.querySelector("main"));
  await import(`/assets/verify.js?${++count}`);
  const before = text();
  const field = document.getElementById("text");
  field.value = paste;
  field.dispatchEvent(new Event("input"));
  for (let i = 0; i < 1000 && text().includes(nothing); ++i) await settled();
  report(ascii({
    before,
    tone: document.getElementById("result").classList[1],
    verdict: text(),
    shown: document.getElementById("match").innerText +
      `gaps ${Array.from(document.querySelectorAll(".gap"), ({ previousSibling: { data } }) => data.at(-1))}`,
    page: document.querySelector("main").innerText,
    images: document.images.length,
  }));
}
)js";
    const std::vector<std::string> report = reportAt(linkTo(list.at(0).at("id")), 200'000);
    ASSERT_EQ(report.size(), cases.size());
    for (std::size_t i = 0; i < cases.size(); ++i) {
      const Case& each = cases[i];
      SCOPED_TRACE(quillseal::testing::escaped(each.base + "\n-> " + each.paste));
      const json told = json::parse(report[i]);
      const std::string verdict = told.at("verdict");
      EXPECT_EQ(told.at("tone"), each.tone) << verdict;
      EXPECT_EQ(told.at("images"), 1) << "only the shield: no value became markup";
      if (std::string(each.tone) == green) {
        EXPECT_THAT(verdict, ::testing::StartsWith("The words match\n"));
      }
      if (std::string(each.tone) == amber) {
        EXPECT_THAT(verdict, ::testing::StartsWith("The words match, but …\n"));
      }
      const bool isMatch = std::string(each.tone) == green || std::string(each.tone) == amber;
      const std::string shown = told.at("shown");
      EXPECT_EQ(shown.find("Read it here, not in your mail") != std::string::npos, isMatch);
      EXPECT_EQ(shown.find("Spaces and line breaks are not signed") != std::string::npos, isMatch);
      for (const std::string& words : each.words)
        EXPECT_THAT(verdict, HasSubstr(words));
      for (const std::string& words : each.shown)
        EXPECT_THAT(shown, HasSubstr(words));
      for (const std::string& words : each.unshown)
        EXPECT_THAT(told.at("page").get<std::string>(), Not(HasSubstr(words)));
    }
  }

  TestDevice device_;
};

TEST_F(VerifyPageTest, IsGreenForHonestPastes) {
  std::string numbers;  // more spaces between digits than are drawn as frames
  for (int i = 0; i < 510; ++i)
    numbers += "1 2 ";
  const std::string html =
      "『" + text +
      "』\n\u00a0\t🛡️\u00a0QUILLSEAL\n\tEmail Message (Writer) · 1 January 2026";
  check({
      // the text, and the whole block, as plain and as formatted mail shows them
      {text, text, green, {"You did not paste the lines below"}, {text}},
      {text, "『" + text + "』", green, {"You did not paste the lines below"}, {text}},
      {text,
       block(text),
       green,
       {"the key of a registered device"},
       {text, "Email Message (Writer) as the signer gave it",
        "1 January 2026 as the signer gave it", "00:00 UTC recorded by this server",
        "Not compared"},
       {"You did not paste", "Touch ID", "Confirmed by"}},
      {text, html + label + "{link}\n", green},
      {text, "\ufeff \n" + replacedAll(block(text), "\n", "\r\n") + "\r\n\r\n", green},
      {text, text + "』" + stamp, green},  // the first bracket was not copied
      {text, "『" + text, green},
      {text, "『" + text + "』\n\n" + rule + "\n" + stampLine, green},
      {text, "『" + text + "』\n\n" + rule, green},
      // what mail programs write down for a link
      {text, linked(label + "<{link}>"), green},
      {text, linked(label + "<{link}> {link}"), green},
      {text, html + "\nCheck this signature →<{link}> {link}<{link}>", green},
      {text, html + "\n[Check this signature →]({link}) {link}", green},
      {text, html + "\nCheck this signature → [{link}] {link}", green},
      {text, html + "\nCheck this signature → ({link}) {link}", green},
      {text, linked("\nCheck this\nsignature →\n{link}"), green},
      {text, linked("\nCheck this\nsignature → {link}").insert(10, "\n"), green},
      // the shield as a plain sign, or gone with the pictures
      {text, replacedAll(block(text), "️", ""), green},
      {text, replacedAll(block(text), "🛡️ ", ""), green},
      // quotations
      {text, quoted(block(text), "> "), green, {}, {text}, {"> "}},
      {text, quoted(block(text), ">"), green},
      {text, quoted(block(text), "> > "), green},
      {text, quoted(block(text), ">> "), green},
      {text, replacedAll(quoted(block(text), "> "), "> \n", "\n"), green},
      {text, quoted("『Pay 1,250.00 EUR\nto Ada by\n14 March.』", "> "), green},
      {text, "> Pay 1,250.00 EUR\n> to Ada by 14 March.", green},
      // other line breaks and spaces
      {text, replacedAll(block(text), " ", "\u00a0"), green, {}, {text}},
      {text, replacedAll(block(text), " ", "\n"), green},
      {text, replacedAll(block(text), " ", "  \t"), green, {}, {text}},
      {text, replacedAll(block(text), " ", "\u2028"), green},
      {"Line one\n\n\n\n\n\nline two", block("Line one\nline\u3000two"), green},
      {"a 1,250.00", block("a\n\n\n\n\n\n\n\n1,250.00"), green, {}, {"a\n\n1,250.00"}},
      {"5 1000 EUR", block("51 000 EUR"), green, {}, {"may have stood elsewhere", "gaps 1"}},
      // typographic signs, composed and not
      {"Don't say \"no\" - wait...",
       block("Don’t say “no” – wait…"),
       green,
       {},
       {"Don't say \"no\" - wait..."}},
      {"Er sagte \"Halt\" und 'so'.", block("Er sagte „Halt“ und ‚so‘."), green},
      {"Bis \"14. März\".", block("Bis „14. März“."), green},
      {"Das macht 1'250 Franken", block("Das macht 1’250 Franken"), green, {}, {"1'250"}},
      {numbers, block(numbers), green, {}, {"1␣2"}},
      {"Il doit 1 250 €", block("Il doit 1\u202f250\u00a0€"), green, {}, {"1 250 €", "gaps 1"}},
      {"Zoë café Å", block("Zoe\u0308 cafe\u0301 \u212b"), green},
      // joiners and selectors where they belong
      {"می\u200cخواهم کتاب\u200cها", block("می\u200cخواهم کتاب\u200cها"), green},
      {"سال ۱۳۰۰ ه\u200d. ش", block("سال ۱۳۰۰ ه\u200d. ش"), green},
      {"क्\u200dष राज्\u200cय", block("क्\u200dष राज्\u200cय"), green},
      {"ශ්\u200dරී ലന്\u200d", block("ශ්\u200dරී ലന്\u200d"), green},
      {"ภาษา\u200bไทย", block("ภาษา\u200bไทย"), green},
      {"👩\u200d👩\u200d👧 🏳️\u200d🌈 👩🏽\u200d🚀 ❤️\u200d🔥",
       block("👩\u200d👩\u200d👧 🏳️\u200d🌈 👩🏽\u200d🚀 ❤️\u200d🔥"),
       green},
      {"1️⃣ #️⃣ ❤️ ☎︎ 🏴󠁧󠁢󠁥󠁮󠁧󠁿 🇩🇪",
       block("1️⃣ #️⃣ ❤️ ☎︎ 🏴󠁧󠁢󠁥󠁮󠁧󠁿 🇩🇪"), green},
      {"葛󠄀城 同意します。", block("葛󠄀城　同意します。"), green},
      {"أوافق على 1250 يورو", block("أوافق على 1250 يورو"), green},
      {"אני מאשר 14 במרץ", block("אני מאשר 14 במרץ"), green},
      // texts that look like parts of a block
      {"He wrote 『yes』 and 『no』.", block("He wrote 『yes』 and 『no』."), green},
      {"『", block("『"), green},
      {"『quoted』\n🛡️ QUILLSEAL · x I agree",
       block("『quoted』\n🛡️ QUILLSEAL · x I agree"), green},
      {"QUILLSEAL · x 』 y", block("QUILLSEAL · x 』 y"), green},
      // other media
      {text,
       replacedAll(block(text), "Email Message (Writer)", "Web Form (『x』 · \"y\") — O’Neil"),
       green,
       {},
       {"Web Form (『x』 · \"y\") - O'Neil"},
       {},
       [](Signature& record) { record.scope = "Web Form (『x』 · \"y\") — O’Neil"; }},
      {text,
       replacedAll(block(text), "(Writer)", "(Writer) → Bob <https://bob.example>"),
       green,
       {},
       {"(Writer) → Bob <https://bob.example>"},
       {},
       [](Signature& record) { record.scope += " → Bob <https://bob.example>"; }},
      {text,
       replacedAll(block(text), "Email Message (Writer)", ""),
       green,
       {},
       {},
       {},
       [](Signature& record) { record.scope = ""; }},
  });
}

/// The block that the agent pastes, in both of its forms, as a browser shows and copies it.
TEST_F(VerifyPageTest, IsGreenForTheAgentsOwnBlock) {
  const std::string id = recorded({.base = text});
  const std::string server = front_->origin();
  const SignedBlock::Fields fields{.signatureId = id,
                                   .text = text,
                                   .html = std::nullopt,
                                   .issued = "2026-01-01",
                                   .scope = "Email Message (Writer)",
                                   .server = server};
  front_->files["/test/cases.json"] =
      json{SignedBlock::plainText(fields), SignedBlock::htmlDocument(fields)}.dump();
  front_->files["/test/act.js"] = R"js(
import { report, until } from "/test/help.js";
const [plain, html] = await (await fetch("/test/cases.json")).json();
const mail = document.createElement("div");
mail.innerHTML = html;
document.body.append(mail);
getSelection().selectAllChildren(mail);
const copied = getSelection().toString();
mail.remove();
const result = document.getElementById("result");
const field = document.getElementById("text");
for (const paste of [plain, copied]) {
  field.value = "";
  field.dispatchEvent(new Event("input"));
  field.value = paste;
  field.dispatchEvent(new Event("input"));
  await until(() => !result.textContent.includes("Nothing"));
  report(result.innerText.replaceAll("\n", " "));
}
)js";
  const std::string verdict =
      "The words match  This text was signed with the key of a registered device. The record is "
      "unchanged and has not expired.";
  EXPECT_THAT(reportAt(linkTo(id)), ::testing::ElementsAre(verdict, verdict));
}

TEST_F(VerifyPageTest, IsNeverGreenForHiddenDirections) {
  std::vector<Case> cases;
  const auto add = [&](const std::string& base, const std::string& read) {
    cases.push_back({base, block(read), amber, {"reading direction"}, {"U+"}});
  };
  // Amounts, dates and names that are signed one way and drawn another.
  add("Pay 123 EUR", "Pay \u202e123\u202c EUR");
  cases.back().shown = {"Pay U+202E123U+202C EUR"};
  add("Pay 1,250.00 EUR", "Pay \u202e1,250.00 EUR");
  add("Pay 1250 to A, 90 to B", "Pay \u2067\u20661250\u2069 to A, \u206690\u2069\u2069 to B");
  add("from 12 to 21", "from \u202b12 to 21\u202c");
  add("on 01/02/2026", "on \u202e01/02/2026\u202c");
  add("on 2026-03-14", "on \u2067\u20662026\u2069-\u206603\u2069-\u206614\u2069\u2069");
  add("by 14. 3.", "by \u200f14. 3.\u200f");
  add("Ada pays Bob", "\u2067\u2066Ada\u2069 pays \u2066Bob\u2069\u2069");
  add("Ada pays Bob", "\u202eAda pays Bob");
  add("I agree, not", "\u202bI agree, \u202anot\u202c\u202c");
  add("send it to live", "send it to \u202elive\u202c");
  for (const char* control : {"\u061c", "\u200e", "\u200f", "\u202a", "\u202b", "\u202c", "\u202d",
                              "\u202e", "\u2066", "\u2067", "\u2068", "\u2069"}) {
    const bool isSigned = std::string(control) == "\u061c";
    add(isSigned ? "Pay 12\u061c 30" : "Pay 12 30", "Pay 12" + std::string(control) + " 30");
  }
  add("שלום 12-30", "שלום \u200e12-30");
  // Around the text, and in the lines below it.
  cases.push_back({text, "\u202e" + block(text), amber, {"reading direction", "above the text"}});
  cases.push_back({text, block(text) + "\u202e", amber, {"reading direction"}});
  cases.push_back({text,
                   stamped("🛡️ QUILLSEAL · Email Message \u202e(Writer) · 1 January 2026"),
                   amber,
                   {"reading direction", "lines below the text were changed"}});
  check(cases);
}

TEST_F(VerifyPageTest, NamesSignsThatAreNotSignedOrNotSeen) {
  check({
      {"Pay 1,250.00",
       block("Pay <1,250.00"),
       amber,
       {"not part of what was signed", "<"},
       {"<1,250.00"}},
      {"Up 12 percent", block("Up >12 percent"), amber, {"not part of what was signed", ">"}},
      {"Up 12 percent", "Up >12 percent", amber, {">"}},
      {">12 percent", "> 12 percent", amber, {">"}},
      {"12 percent 『net』", "> 12 percent 『net』", amber, {">"}},
      {"Ask <Ada>", block("Ask <Ada>"), amber, {"<, >"}},
      {text, "> 『Pay 1,250.00 EUR\nto Ada by\n14 March.』", amber, {"above the text"}},
      {text, quoted("『Pay > 1,250.00 EUR\nto Ada by\n14 March.』", "> "), amber, {">"}},
      {"Take 10 20",
       block("Take 10\u168020"),
       amber,
       {"shown as a dash", "U+1680 (Ogham space)"},
       {"10U+168020"}},
      {"Das macht 1'250", block("Das macht 1\u201a250"), amber, {"looks like a comma"}, {"1'250"}},
      {"Das macht '50", block("Das macht \u201a50"), amber, {"looks like a comma"}},
      {"Ada' Bob", block("Ada\u201a Bob"), amber, {"looks like a comma"}},
      {"1\"250", block("1\u201e250"), amber, {"looks like a comma"}},
      {"1\"250", block("1 \u201e250"), amber, {"looks like a comma"}},
      {"Pay 1,250",
       block("Pay 1,2\u00ad50"),
       amber,
       {"hidden characters", "U+00AD (soft hyphen)"},
       {"1,2U+00AD50"}},
      {"recover", block("re\u00adcover"), amber, {"soft hyphen"}},
      {"Pay 1,250",
       block("Pay 1\u200b,250"),
       amber,
       {"U+200B (zero-width space)"},
       {"1U+200B,250"}},
      {"Pay 1,250", block("Pay 1,\u2060250"), amber, {"U+2060 (word joiner)"}},
      {"Pay 1,250", block("Pay 1,2\u200d50"), amber, {"U+200D"}},
      {"Pay 1,250", block("Pay 1,2\u200c50"), amber, {"U+200C"}},
      {"۱۲۵۰", block("۱۲\u200c۵۰"), amber, {"U+200C"}},
      {"๑๒๕๐", block("๑๒\u200b๕๐"), amber, {"U+200B"}},
      {"not able", block("not\u200cable"), amber, {"U+200C"}},
      {"👍👍", block("👍\u200b👍"), amber, {"U+200B"}},
      {"Pay 1,250", block("Pay 1,\u034f250"), amber, {"U+034F (grapheme joiner)"}},
      {"Pay 1,250", block("Pay 1,\ufeff250"), amber, {"U+FEFF"}},
      {"Pay 1,250", block("Pay 1,\u2063250"), amber, {"U+2063"}},
      {"Pay 1,250", block("Pay 1,\u206f250"), amber, {"U+206F"}},
      // signed, but hidden
      {"a\x01z", block("a\x01z"), amber, {"U+0001"}, {"aU+0001z"}},
      {"a\u0080z", block("a\u0080z"), amber, {"U+0080"}},
      {"a\u3164z", block("a\u3164z"), amber, {"U+3164"}},
      {"a\u2800z", block("a\u2800z"), amber, {"U+2800"}},
      {"a\U000E0041z", block("a\U000E0041z"), amber, {"U+E0041"}},
      {"1\ufe0f2", block("1\ufe0f2"), amber, {"U+FE0F"}},
      {"a\u200b\u200b\u200bz",
       block("a\u200b\u200b\u200b\u200bz"),
       amber,
       {"U+200B"},
       {"aU+200B×4z"}},
      {text,
       stamped(replacedAll(stampLine, "Wr", "Wr\u200b")),
       amber,
       {"U+200B", "lines below the text"}},
      {text, "\u200b" + block(text), amber, {"U+200B", "above the text"}},
  });
}

TEST_F(VerifyPageTest, ComparesTheLinesBelowTheText) {
  const char* changed = "lines below the text were changed";
  const char* more = "There is more below the text";
  const char* elsewhere = "leads elsewhere";
  const std::string evil = "https://evil.example/verify/1";
  std::vector<Case> cases;
  for (const char* line :
       {"🛡️ QUILLSEAL · Chat Message (Slack) · 1 January 2026",
        "🛡️ QUILLSEAL · Email Message (Writer) · 2 January 2026",
        "🛡️ QUILLSEAL · Email Message (Writer) · 1 January 2027",
        "🛡️ QUILLSEAL · Email Message (Writer) · 11 January 2026",
        "🛡️ QUILLSEAL · Email Message (Writer) to Bob · 1 January 2026",
        "🛡️ QUILLSEAL · Email Message (Writer)", "🛡️ QUILLSEAL · 1 January 2026",
        "🛡️ QUILLSEAL", "🛡️ QUILLSEAL · identity verified by passport",
        "🛡️ QUILLSEAL · Ada Lovelace · Email Message (Writer) · 1 January 2026",
        "🛡️ QUILLSEAL · email message (writer) · 1 January 2026",
        "🛡️ QUILLSEAL · Email Mеssage (Writer) · 1 January 2026"}) {
    cases.push_back(
        {text, stamped(line), amber, {changed}, {"Email Message (Writer)", "1 January 2026"}});
  }
  for (const char* line : {"🛡️ VERIFIED BY THE BANK", "🛡️ QUILLSEA1"}) {
    cases.push_back({text, stamped(line), amber, {changed}});
  }
  for (const std::string& paste :
       {stamped(stampLine + " · identity verified by passport"),
        stamped(stampLine + "\nI owe you 5,000 EUR."),
        stamped("I owe you 5,000 EUR.\n" + stampLine),
        linked("\nI owe you 5,000 EUR." + label + "{link}"), block(text) + "\nI owe you 5,000 EUR.",
        linked(label + "{link} {link} now"), "『" + text + "』 and 5,000 EUR more" + stamp,
        "『" + text + "』5" + stamp, "『" + text + "』\nYours, Ada",
        block(text) + "\n\n" + block("Another text"),
        "『" + text + "』\n" + rule + "─\n" + stampLine}) {
    cases.push_back({text, paste, amber, {more}});
  }
  for (const auto& [link, place] : std::vector<std::pair<std::string, std::string>>{
           {evil, "evil.example"},
           {"javascript:alert(1)", "javascript:"},
           {"https://evil.example/?{link}", "evil.example"},
           {"<" + evil + "> {link}", "evil.example"},
           {"{link} <" + evil + ">", ""},
           {"http://127.0.0.1/verify/1", "127.0.0.1"},
           {"http://пример.example/", "xn--e1afmkfd.example"},
           {"{link}0", "another page of this server"},
           {"{link}/../2", "another page of this server"},
           {"{halves}", "127.0.0.1:"},
           {"ask Ada", "another place"}}) {
    cases.push_back({text, linked(label + link), amber, {elsewhere, place}});
  }
  cases.push_back(
      {text, "Dear Bob,\n" + block(text), amber, {"What stands above the text is not signed"}});
  cases.push_back({text, "On Monday Ada wrote:\n" + quoted(block(text), "> "), amber, {"above"}});
  cases.push_back({text, "Pay 9 EUR\n『" + text, amber, {"above"}});
  cases.push_back({text, "『old』 『" + text + "』" + stamp, amber, {"above"}});
  check(cases);
}

TEST_F(VerifyPageTest, JudgesTheRecordToo) {
  const auto expired = [](Signature& record) {
    record.issued = "2025-12-01";
    record.expires = "2025-12-31";
    record.recordedAt = start - 31 * day;
  };
  const auto kind = [](SignatureKind value) {
    return [value](Signature& record) {
      record.kind = value;
      if (value == SignatureKind::browser) record.deviceId.clear();
    };
  };
  const std::vector<std::string> demonstration{"only a demonstration"};
  const std::vector<std::string> browser{"No device signed this text"};
  const std::string december = replacedAll(block(text), "1 January 2026", "1 December 2025");
  std::vector<Case> cases{
      {text, december, amber, {"expired", "31 December 2025"}, {text}, {}, expired},
      {text, text, amber, {"expired"}, {text}, {}, expired},
      {text, "other", red, {"not the text that was signed"}, {}, {}, expired},
      {text,
       block(text),
       amber,
       demonstration,
       {text},
       {"Touch ID"},
       kind(SignatureKind::demonstration)},
      {text, text, amber, demonstration, {text}, {}, kind(SignatureKind::demonstration)},
      {text, block(text), amber, browser, {text}, {}, kind(SignatureKind::browser)},
      {text, text, amber, browser, {text}, {}, kind(SignatureKind::browser)},
      {text, "other", red, {}, {}, {}, kind(SignatureKind::browser)},
      {text,
       text,
       amber,
       {"gave the date 1 January 2026, but this server recorded it on 4 January 2026"},
       {},
       {},
       [](Signature& record) { record.recordedAt = start + 3 * day; }},
      {text,
       text,
       amber,
       {"gave the date"},
       {},
       {},
       [](Signature& record) { record.recordedAt = start - 3 * day; }},
      {text,
       text,
       green,
       {},
       {},
       {},
       [](Signature& record) { record.recordedAt = start - day / 2; }},
  };
  // Whatever is pasted, a record that was changed is red and nothing is compared.
  const std::vector<std::function<void(Signature&)>> changes{
      [](Signature& record) { record.identity = "Somebody Else"; },
      [](Signature& record) { record.scope = "Chat Message"; },
      [](Signature& record) { record.issued = "2026-01-02"; },
      [](Signature& record) { record.issued = "2026-13-02"; },
      [](Signature& record) { record.expires = "2036-01-31"; },
      [](Signature& record) { record.expires = ""; },
      [](Signature& record) { record.textDigest = digestOf("other"); },
      [](Signature& record) { record.publicKey = TestDevice().publicKey(); },
      [](Signature& record) { record.deviceSignature.clear(); },
      [](Signature& record) { record.deviceId = "00000000-7C1D-4E8A-9B60-5D2E1C7F8A90"; },
      [](Signature& record) { record.commitment = "approval"; },
      [](Signature& record) { record.commitment = "guaranteed by the bank"; },
      [](Signature& record) { record.kind = SignatureKind::browser; },
      [](Signature& record) { record.kind = static_cast<SignatureKind>(7); },
      [](Signature& record) { record.recordedAt = std::int64_t{1} << 60; },
      [](Signature& record) { record.recordedAt = -1; },
  };
  for (const auto& change : changes) {
    for (const std::string& paste : {block(text), std::string("other")}) {
      cases.push_back({text,
                       paste,
                       red,
                       {"This record was changed", "Nothing is compared"},
                       {},
                       {text},
                       {},
                       change});
    }
  }
  check(cases);
}

TEST_F(VerifyPageTest, ShowsNoNameThatIsNotWhatItSeems) {
  const char* odd = "The name in the record holds hidden signs";
  const auto with = [](Case each, const std::string& identity) {
    each.base = each.paste = text;
    each.made = [identity](Signature& record) { record.identity = identity; };
    return each;
  };
  const std::string markup = "<img src=x onerror=alert(1)>";
  std::vector<Case> cases{
      with({.tone = green, .shown = {"Ada Lovelace given by this server, not checked"}},
           "Ada Lovelace"),
      with({.tone = green, .shown = {"Nobody checked whose device it is."}}, ""),
      with({.tone = green, .shown = {"Nobody checked whose device it is."}}, " \u2003\n"),
      with({.tone = green, .shown = {"فاطمه گل\u200cها"}}, "فاطمه گل\u200cها"),
      with({.tone = green, .shown = {markup}}, markup),
      with({.tone = amber, .words = {odd}, .shown = {"U+202EAdaU+202C"}, .unshown = {"\u202e"}},
           "\u202eAda\u202c"),
      with({.tone = amber,
            .words = {odd},
            .shown = {"U+200B×2"},
            .unshown = {"Nobody checked", "\u200b"}},
           "\u200b\u200b"),
      with({.tone = amber, .words = {odd}, .shown = {"U+3164"}}, "\u3164"),
      with({.tone = amber, .words = {odd}, .shown = {"U+2066Bank✓"}}, "\u2066Bank✓"),
  };
  cases.push_back({text,
                   text,
                   amber,
                   {"The medium in the record holds hidden signs"},
                   {"MailU+202E"},
                   {"\u202e"},
                   [](Signature& record) { record.scope = "Mail\u202e"; }});
  check(cases);
}

TEST_F(VerifyPageTest, IsRedForAnyOtherText) {
  const char* other = "This is not the text that was signed";
  check({
      {text, block("Pay 1,260.00 EUR to Ada by 14 March."), red, {other}, {}, {"Read it here"}},
      {text, "Pay 1,250.00 EUR to Ada", red, {other}},
      {text, text + " And more.", red, {other}},
      {text, "『Pay 1,250.00』" + stamp, red, {other}},
      {text, "pay 1,250.00 EUR to Ada by 14 March.", red, {other}},
      {text, "Pay 1,250.00 EUR to Аda by 14 March.", red, {other}},
      {text, "Pay 1\uff0c250.00 EUR to Ada by 14 March.", red, {other}},
      {text, "』" + text + "『", red, {other}},
      {text, "『", red, {other}},
      {text, "\u200b", red, {other}},
      {"", "\u200b\u200b", amber, {"hidden"}},
      {"1\u22122", block("1\u20132"), red, {other}},
      {text, "", gray, {"Nothing has been compared yet"}},
      {text, " \n\u00a0", gray, {"Nothing has been compared yet"}},
      {text,
       "a" + replacedAll(std::string(400, '.'), ".", "\u0301"),
       gray,
       {"cannot tell", "accents"}},
  });
}

TEST_F(VerifyPageTest, SaysNothingBeforeThePaste) {
  const std::string id = recorded({.base = text});
  const std::string before = documentAt(linkTo(id));
  EXPECT_THAT(before, HasSubstr(R"(<p class="headline">Nothing has been compared yet</p>)"));
  EXPECT_THAT(before, Not(HasSubstr("This page cannot tell")));
  // What a browser shows that runs no script.
  const std::string without = httplib::Client(front_->origin()).Get("/verify/" + id)->body;
  EXPECT_THAT(without, HasSubstr("This page cannot tell you whether your message is genuine"));
  EXPECT_THAT(without, HasSubstr(R"(<div id="paste" hidden>)"));
  for (const std::string& document : {before, without}) {
    const std::size_t begin = document.find("<template");
    const std::size_t end = document.find("</template>");
    ASSERT_LT(begin, end);
    const std::string read = document.substr(0, begin) + document.substr(end);
    for (const char* word : {"signed", "Signed", "erified", "genuine."})
      EXPECT_THAT(read, Not(HasSubstr(word)));
  }
}

TEST_F(VerifyPageTest, ShowsAllOfALongTextWhenAsked) {
  const std::string base = std::string(19'999, 'a') + "👩" + std::string(1'000, 'b');
  front_->files["/test/act.js"] = "const text = " + json(base).dump() + R"js(;
import { report, until } from "/test/help.js";
const field = document.getElementById("text");
field.value = text;
field.dispatchEvent(new Event("input"));
await until(() => document.querySelector("[data-shows=text]"));
const shown = document.querySelector("[data-shows=text]");
const more = document.querySelector("[data-shows=text-more]");
report(`${more.textContent} ${shown.textContent === text.slice(0, 20001)}`);
more.click();
report(`${more.hidden} ${shown.textContent === text}`);
)js";
  EXPECT_THAT(reportAt(linkTo(recorded({.base = base}))),
              ::testing::ElementsAre("Show the rest of the text (1,000 more characters) true",
                                     "true true"));
}

TEST_F(VerifyPageTest, AnswersSoonWhateverIsPasted) {
  constexpr int longest = 200'000;
  const std::vector<std::string> units{"『",
                                       "『』",
                                       "』QUILLSEAL",
                                       "🛡─",
                                       ">",
                                       "> a\n",
                                       "a ",
                                       "a 1 ",
                                       "<",
                                       "\u200b\u200c",
                                       "\u202e\u1680",
                                       "Check this signature → ",
                                       "http://a ",
                                       "({link})",
                                       "a\u0301\u0323",
                                       "字",
                                       "👩\u200d",
                                       "ب\u200c",
                                       "\U000E0041",
                                       "a"};
  const std::string empty = recorded({.base = ""});
  json list = json::array();
  for (const std::string& unit : units) {
    // Pasted with nothing to find, below a text, and as the text.
    const std::string repeated = replacedAll(unit, "{link}", linkTo(empty));
    std::string whole;
    while (whole.size() < 4 * longest)
      whole += repeated;
    std::size_t end = 0;
    for (int count = 0; count < longest; ++end)
      count += (whole[end] & 0xC0) == 0x80 ? 0 : 1;
    whole.resize(end - 1);
    list.push_back({{"id", empty}, {"paste", whole}});
    list.push_back(
        {{"id", empty}, {"paste", "『』" + rule + "🛡 QUILLSEAL"}, {"unit", repeated}});
    list.push_back({{"id", recorded({.base = whole})}, {"paste", whole}});
  }
  const std::size_t timed = list.size();
  for (const auto& [unit, count] : std::vector<std::pair<std::string, int>>{
           {"a", longest + 1}, {"a", 20 * longest}, {"字", longest}}) {
    list.push_back({{"id", empty}, {"paste", ""}, {"unit", unit}, {"count", count}});
  }
  front_->files["/test/cases.json"] = list.dump();
  front_->files["/test/act.js"] = "const longest = " + std::to_string(longest) + R"js(;
import { report } from "/test/help.js";
const settled = () => new Promise((resolve) => setTimeout(resolve, 5));
const clock = async () => Number(await (await fetch("/test/clock")).text());
let current;
let loads = 0;
for (const { id, paste, unit, count } of await (await fetch("/test/cases.json")).json()) {
  if (current !== id) {
    const source = await (await fetch(`/verify/${id}`)).text();
    const page = new DOMParser().parseFromString(source, "text/html");
    document.querySelector("main").replaceWith(page.querySelector("main"));
    await import(`/assets/verify.js?${++loads}`);
    current = id;
  }
  const result = document.getElementById("result");
  const field = document.getElementById("text");
  field.hidden = true;  // laying out the field is the browser's own work
  field.value = "";
  field.dispatchEvent(new Event("input"));
  const more = unit ? Array.from(unit.repeat(count ?? longest)).slice(0, count ?? longest - paste.length).join("") : "";
  field.value = paste + more;
  const begin = await clock();
  field.dispatchEvent(new Event("input"));
  while (result.textContent.includes("Nothing has been compared yet")) await settled();
  document.body.getBoundingClientRect();  // the verdict is laid out
  report(`${await clock() - begin} ${result.classList[1]}`);
}
)js";
  const std::vector<std::string> report = reportAt(linkTo(empty), 100'000);
  ASSERT_EQ(report.size(), list.size());
  for (std::size_t i = 0; i < timed; ++i) {
    // A second, and what a busy machine adds; where time grows with the square, it is several.
    EXPECT_LT(std::stoi(report[i]), 3'000) << units[i / 3] << ' ' << i % 3;
    EXPECT_THAT(report[i], Not(HasSubstr(gray))) << units[i / 3];
    if (i % 3 == 2) {
      EXPECT_THAT(report[i], Not(HasSubstr(red))) << units[i / 3];
    }
  }
  EXPECT_THAT(report[timed], HasSubstr(gray));
  EXPECT_THAT(report[timed + 1], HasSubstr(gray));
  EXPECT_THAT(report[timed + 2], HasSubstr(red)) << "the limit counts characters";
}

}  // namespace
}  // namespace quillseal::devserver
