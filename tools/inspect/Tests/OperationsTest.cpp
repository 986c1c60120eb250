#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Operations.h"
#include "Quillseal/CryptoManager.h"

namespace quillseal::inspect {
namespace {

using Json = nlohmann::ordered_json;
using ::testing::HasSubstr;

Json inspected(std::string_view text, std::string_view issued = "2025-01-30") {
  const Json request{{"op", "inspect"},
                     {"text", text},
                     {"html", "<img src=b.png><img src=a.png>"},
                     {"issued", issued}};
  return Json::parse(answer(request.dump()));
}

// Requests and their complete answers, with the keys in order.
TEST(Operations, AnswerEachRequest) {
  const std::string digest(64, 'a');
  const std::pair<std::string, std::string> cases[] = {
      // Expected digest from a shell: printf of the tag and nine digests, piped to sha256sum.
      {R"({"op":"canonical","text_digest":")" + digest +
           R"j(","issued":" 2025-01-02 ","scope":"Email Message (Apple Mail)","snapshot_digest":"","identity":"Ada","signer_key":"KEY","expires":"2025-01-09","nonce":"00ff","commitment":"Approval"})j",
       R"({"payload_digest":"ab461b39fdd6b2bcb3323e891a960b39fae4bd8c3f545b8e58c5dfe3871bc54e"})"},
      {R"({"op":"expiry","issued":"2025-01-30","word_count":60})",
       R"({"days":30,"expires":"2025-03-01"})"},
      {R"({"op":"scope","bundle":"com.apple.mail","name":null})",
       R"j({"app":"Desktop App","scope":"Email Message (Desktop App)"})j"},
      {R"({"op":"compose","base":"A","recipient":" B "})", R"({"scope":"A → B"})"},
      {R"({"op":"medium","scope":"Word"})", R"({"index":6})"},
      {R"({"op":"tab_script","bundle":"none","url_contains":"x","tab":null})",
       R"({"current":null,"close":null})"},
      {R"({"op":"quoted_spans","text":"She wrote “twenty-five characters…..”"})",
       R"({"spans":[[10,37]]})"},
      {"", R"({"error":"the line is not one JSON value"})"},
      {"{} {}", R"({"error":"the line is not one JSON value"})"},
      {std::string(100'000, '['), R"({"error":"the line is not one JSON value"})"},
      {"[]", R"({"error":"a request is a JSON object"})"},
      {"{}", R"({"error":"\"op\" is missing"})"},
      {R"({"op":7})", R"({"error":"\"op\" must be a string"})"},
      {R"({"op":"dance"})", R"({"error":"unknown operation \"dance\""})"},
      {R"({"op":"inspect","text":null,"issued":""})", R"({"error":"\"text\" must be a string"})"},
      {R"({"op":"inspect","text":"","html":1,"issued":""})",
       R"({"error":"\"html\" must be a string"})"},
      {R"({"op":"expiry","issued":"2025-01-01","word_count":1.5})",
       R"({"error":"\"word_count\" must be an integer"})"},
      {R"({"op":"expiry","issued":"","word_count":9223372036854775808})",
       R"({"error":"\"word_count\" must be an integer"})"},
      {R"({"op":"confirm","text":"x","scope":"","issued":"","identity":"","demo":1})",
       R"({"error":"\"demo\" must be true or false"})"},
  };
  for (const auto& [request, result] : cases)
    EXPECT_EQ(answer(request), result) << request.substr(0, 80);
  const std::string confirm = answer(
      R"({"op":"confirm","text":"x","scope":"S","issued":"D","identity":"Ada","demo":false})");
  EXPECT_THAT(confirm, HasSubstr(R"(\n\nx\n\nContext: S\nDate: D\nSigning as: Ada\n\n)"));
  const std::string block = answer(
      R"({"op":"block","sig_id":"7","text":"x","html":"<i>x</i>","issued":"2025-01-30","scope":"S","server":"https://s"})");
  EXPECT_THAT(block,
              HasSubstr(R"(S · 30 January 2025\nCheck this signature → https://s/verify/7")"));
  EXPECT_THAT(block, HasSubstr("</span><i>x</i><span"));
}

TEST(Operations, InspectATrimmedText) {
  const Json result = inspected("\n  We met “Ada” — on 3 May…  \n");
  const Json expected{
      {"words", 6},
      {"normalized", "Wemet\"Ada\"-on3May..."},
      {"normalized_characters", 20},
      {"text_digest", "a86987749815a693373a499b8d02f1e1f3d1b062e75ef966dc0f921a2b6370f9"},
      {"distinctive", true},
      {"signing_refusal", "Only 6 words. Write at least 10."},
      {"image_urls", {"b.png", "a.png"}},
      {"image_digest", CryptoManager::imageManifestDigest({"b.png", "a.png"})},
      {"expires", "2025-02-06"},
      {"prompt_subject", "“We met “Ada” — on 3 May…” (6 words)"},
      {"assessment",
       {{"score", 0}, {"blocked", false}, {"warn", false}, {"findings", Json::array()}}},
      {"refusal_title", nullptr},
      {"explanation", nullptr},
      {"warning", nullptr}};
  EXPECT_EQ(result, expected);
  EXPECT_EQ(answer(R"({"op":"inspect","text":"x","issued":""})"),
            answer(R"({"op":"inspect","text":"x","html":null,"issued":""})"));

  const Json refused = inspected("See javascript:void(0) for the minutes.");
  EXPECT_EQ(refused["assessment"]["findings"][0]["id"], "url-javascript");
  EXPECT_EQ(refused["assessment"]["blocked"], true);
  EXPECT_EQ(refused["refusal_title"], "Not signed — this looks like a scam");
  EXPECT_EQ(refused["warning"], nullptr);
}

TEST(Report, UnderlinesWhatMatched) {
  const std::string report = readableReport(
      inspect({.text = "会議: see javascript:x now", .html = {}, .issued = "2025-01-30"}));
  EXPECT_THAT(report, HasSubstr("Image digest  " + CryptoManager::imageManifestDigest({}) + '\n'));
  EXPECT_THAT(report, HasSubstr("Screening     refused, score 100\n"
                                "              url-javascript (100, blocks): Deceptive links\n"
                                "              会議: see javascript:x now\n"
                                "                        ^^^^^^^^^^^\n"));
}

TEST(Operations, ReadARequestOfManyKeysInReasonableTime) {
  std::string line = "{";
  for (int i = 0; i < 100000; ++i)
    line += "\"k" + std::to_string(i) + "\":1,";
  EXPECT_THAT(answer(line + "\"op\":\"dance\"}"), HasSubstr("unknown operation"));
}

TEST(Operations, ReplaceIllFormedTextOnce) {
  const std::pair<std::string, std::string> cases[] = {
      {"a\xFF\xE2\x82z", "a\uFFFD\uFFFDz"},
      {R"(a\ud83d-\udc00)", "a\uFFFD-\uFFFD"},
      {R"(\ud800\udbff\udc00\udfff)", "\uFFFD\U0010FC00\uFFFD"},
      {R"(\ud83d\ude00)", "😀"},
      {R"(\\ud83d)", "\\ud83d"},
      {R"(a\u0000b)", {"a\0b", 3}},
  };
  for (const auto& [text, normalized] : cases)
    EXPECT_EQ(
        Json::parse(answer(R"({"op":"inspect","issued":"","text":")" + text + "\"}"))["normalized"],
        normalized);
}

}  // namespace
}  // namespace quillseal::inspect
