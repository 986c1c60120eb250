#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include "Cases.h"
#include "PageFixture.h"
#include "Quillseal/CryptoManager.h"
#include "RandomText.h"
#include "SignatureCheck.h"
#include "TestDevice.h"
#include "core/signing/SignedBlock.h"
#include "core/text/UnicodeText.h"

/// Tests what the verification page tells a reader.
namespace quillseal::devserver {
namespace {

using json = nlohmann::ordered_json;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* green = "good";
constexpr const char* amber = "caution";
constexpr const char* red = "bad";
constexpr const char* gray = "unknown";

const std::string text = "Pay 1,250.00 EUR to Ada by 14 March.";
const std::string rule = "────────────────────";

/// A text of paste-cases.jsonl with what its names in braces stand for.
std::string filled(std::string value) {
  static const std::pair<std::string, std::string> names[] = {
      {"{stamp}", "\n\n{rule}\n{line}\nCheck this signature → {link}"},
      {"{line}", "🛡️ QUILLSEAL · Email Message (Writer) · 1 January 2026"},
      {"{rule}", rule},
      {"{text}", text},
  };
  for (const auto& [name, meaning] : names)
    value = unicode::replacingAll(value, name, meaning);
  return value;
}

/// Changes a record as the object says.
void change(Signature& record, const json& changes) {
  const std::pair<const char*, std::string*> texts[] = {
      {"text_digest", &record.textDigest},
      {"issued", &record.issued},
      {"scope", &record.scope},
      {"identity", &record.identity},
      {"device_id", &record.deviceId},
      {"method", &record.method},
      {"timezone", &record.timezone},
      {"expires", &record.expires},
      {"commitment", &record.commitment},
      {"public_key", &record.publicKey},
      {"device_signature", &record.deviceSignature}};
  for (const auto& [key, member] : texts)
    *member = changes.value(key, *member);
  record.recordedAt = changes.value("recorded_at", record.recordedAt);
  record.kind = static_cast<SignatureKind>(changes.value("kind", static_cast<int>(record.kind)));
}

class VerifyPageTest : public PageTest {
 protected:
  /// Records a signature of `base`, changed as the case says, and returns its identifier.
  std::string recorded(const std::string& base, const json& each = json::object()) {
    Signature record;
    record.id = CryptoManager::randomHex(12);
    record.textDigest = digestOf(base);
    record.imageDigest = CryptoManager::imageManifestDigest({});
    record.nonce = CryptoManager::randomHex(16);
    record.recordedAt = start;
    record.utcOffsetMinutes = 330;
    change(record, json::parse(quillseal::testing::caseLines("A record").front()));
    change(record, each.value("made", json::object()));
    if (record.kind == SignatureKind::device) {
      record.publicKey = device_.publicKey();
      record.deviceSignature = device_.sign(canonicalDigest(record));
    }
    change(record, each.value("changed", json::object()));
    EXPECT_TRUE(registry_.record(record));
    return record.id;
  }

  std::string linkTo(const std::string& id) const { return origin_ + "/verify/" + id; }

  TestDevice device_;
};

TEST_F(VerifyPageTest, JudgesEachPaste) {
  const auto cases = quillseal::testing::cases();
  json list = json::array();
  for (const json& each : cases) {
    const std::string id = recorded(filled(each.value("base", "{text}")), each);
    const std::string halves = linkTo(id).insert(origin_.size() - 1, " ");
    std::string paste = unicode::replacingAll(filled(each.at("paste")), "{halves}", halves);
    const SignedBlock::Fields block{.signatureId = id,
                                    .text = text,
                                    .html = std::nullopt,
                                    .issued = "2026-01-01",
                                    .scope = "Email Message (Writer)",
                                    .server = origin_};
    paste = unicode::replacingAll(paste, "{block}", SignedBlock::plainText(block));
    paste = unicode::replacingAll(paste, "{HTML block}", SignedBlock::htmlDocument(block));
    paste = unicode::replacingAll(paste, "{link}", linkTo(id));
    list.push_back({{"id", id}, {"paste", std::move(paste)}});
  }
  files_["/test/cases.json"] = list.dump();
  files_["/test/act.js"] = R"js(
import { isSilent, openRecord, paste, report, until } from "/test/help.js";
// Nothing in it is changed on its way through the document's HTML.
const ascii = (value) => JSON.stringify(value).replace(/[^ -%'-;=?-~]/g,
  (unit) => `\\u${unit.charCodeAt(0).toString(16).padStart(4, "0")}`);
const copied = (html) => {
  const mail = document.createElement("div");
  mail.innerHTML = html;
  document.body.append(mail);
  getSelection().selectAllChildren(mail);
  const text = getSelection().toString();
  mail.remove();
  return text;
};
for (const each of await (await fetch("/test/cases.json")).json()) {
  await openRecord(each.id);
  paste(each.paste.startsWith("<!DOCTYPE") ? copied(each.paste) : each.paste);
  await until(() => !isSilent());
  report(ascii({
    tone: document.getElementById("result").classList[1],
    verdict: document.getElementById("result").innerText,
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
    SCOPED_TRACE(cases[i].dump());
    const json told = json::parse(report[i]);
    const std::string tone = cases[i].at("tone");
    const std::string verdict = told.at("verdict");
    const std::string shown = told.at("shown");
    EXPECT_EQ(told.at("tone"), tone) << verdict;
    EXPECT_EQ(told.at("images"), 1) << "only the shield: no value became markup";
    const bool isMatch = tone == green || tone == amber;
    const char* headline = tone == green ? "The words match\n" : "The words match, but …\n";
    EXPECT_EQ(verdict.starts_with(headline), isMatch);
    for (const char* words :
         {"Read it here, not in your mail", "Spaces and line breaks are not signed"})
      EXPECT_EQ(shown.find(words) != std::string::npos, isMatch);
    const auto expect = [&](const char* key, const std::string& page, bool isThere) {
      for (const std::string words : cases[i].value(key, json::array()))
        EXPECT_EQ(page.find(filled(words)) != std::string::npos, isThere)
            << words << " in " << page;
    };
    expect("words", verdict, true);
    expect("shown", shown, true);
    expect("unshown", told.at("page"), false);
  }
}

TEST_F(VerifyPageTest, SaysNothingBeforeThePaste) {
  const std::string id = recorded(text);
  const std::string before = documentAt(linkTo(id));
  EXPECT_THAT(before, HasSubstr(R"(<p class="headline">Nothing has been compared yet</p>)"));
  EXPECT_THAT(before, Not(HasSubstr("This page cannot tell")));
  // The page without JavaScript.
  const std::string without = httplib::Client(origin_).Get("/verify/" + id)->body;
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
  files_["/test/act.js"] = "const text = " + json(base).dump() + R"js(;
import { paste, report, until } from "/test/help.js";
paste(text);
await until(() => document.querySelector("[data-shows=text]"));
const shown = document.querySelector("[data-shows=text]");
const more = document.querySelector("[data-shows=text-more]");
report(`${more.textContent} ${shown.textContent === text.slice(0, 20001)}`);
more.click();
report(`${more.hidden} ${shown.textContent === text}`);
)js";
  EXPECT_THAT(reportAt(linkTo(recorded(base))),
              ::testing::ElementsAre("Show the rest of the text (1,000 more characters) true",
                                     "true true"));
}

TEST_F(VerifyPageTest, AnswersSoonWhateverIsPasted) {
  constexpr int longest = 200'000;
  const auto units = quillseal::testing::cases();
  const std::string empty = recorded("");
  json list = json::array();
  for (const std::string unit : units) {
    // Pasted with nothing to find, below a text, and as the text.
    const std::string part = unicode::replacingAll(unit, "{link}", linkTo(empty));
    std::string whole;
    while (whole.size() < 4 * longest)
      whole += part;
    std::size_t end = 0;
    for (int count = 0; count < longest; ++end)
      count += (whole[end] & 0xC0) == 0x80 ? 0 : 1;
    whole.resize(end - 1);
    list.push_back({{"id", empty}, {"paste", whole}});
    list.push_back({{"id", empty}, {"paste", "『』" + rule + "🛡 QUILLSEAL"}, {"unit", part}});
    list.push_back({{"id", recorded(whole)}, {"paste", whole}});
  }
  files_["/test/cases.json"] = list.dump();
  files_["/test/act.js"] = "const longest = " + std::to_string(longest) + R"js(;
import { isSilent, openRecord, paste, report, settled } from "/test/help.js";
const clock = async () => Number(await (await fetch("/test/clock")).text());
let current;
for (const { id, paste: begin, unit = "" } of await (await fetch("/test/cases.json")).json()) {
  if (current !== id) await openRecord(current = id);
  document.getElementById("text").hidden = true;  // laying it out is the browser's own work
  paste("");
  const count = Math.max(0, longest - begin.length);
  const text = begin + Array.from(unit.repeat(count)).slice(0, count).join("");
  const start = await clock();
  paste(text);
  while (isSilent()) await settled();
  document.body.getBoundingClientRect();  // the verdict is laid out
  report(`${await clock() - start} ${document.getElementById("result").classList[1]}`);
}
)js";
  const std::vector<std::string> report = reportAt(linkTo(empty), 100'000);
  ASSERT_EQ(report.size(), list.size());
  for (std::size_t i = 0; i < report.size(); ++i) {
    // One second, with room for a busy machine; quadratic code takes several times as long.
    EXPECT_LT(std::stoi(report[i]), 3'000) << units[i / 3] << ' ' << i % 3;
    EXPECT_THAT(report[i], Not(HasSubstr(gray))) << units[i / 3];
    EXPECT_TRUE(i % 3 != 2 || !report[i].ends_with(red)) << units[i / 3];
  }
}

}  // namespace
}  // namespace quillseal::devserver
