#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Operations.h"

namespace quillseal::inspect {
namespace {

using Json = nlohmann::ordered_json;

Json answered(const Json& request) {
  return Json::parse(answer(request.dump()));
}

TEST(Operations, InspectsTheTrimmedText) {
  const Json result = answered({{"op", "inspect"},
                                {"text", "\n  We met “Ada” — on 3 May…  \n"},
                                {"html", "<img src=b.png><img src=a.png>"},
                                {"issued", "2025-01-30"}});
  EXPECT_EQ(result["words"], 6);
  EXPECT_EQ(result["normalized"], "Wemet\"Ada\"-on3May...");
  EXPECT_EQ(result["normalized_characters"], 20);
  EXPECT_EQ(result["text_digest"],
            "a86987749815a693373a499b8d02f1e1f3d1b062e75ef966dc0f921a2b6370f9");
  EXPECT_EQ(result["distinctive"], true);
  EXPECT_EQ(result["signing_refusal"], "Only 6 words. Write at least 10.");
  EXPECT_EQ(result["image_urls"], Json({"b.png", "a.png"}));
  EXPECT_EQ(result["expires"], "2025-02-06");
  EXPECT_EQ(result["prompt_subject"], "“We met “Ada” — on 3 May…” (6 words)");
}

TEST(Operations, TakesAbsentAndNullHtmlAlike) {
  const Json request{{"op", "inspect"}, {"text", "x"}, {"issued", "2025-01-30"}};
  Json withNull = request;
  withNull["html"] = nullptr;
  EXPECT_EQ(answered(request), answered(withNull));
  EXPECT_EQ(answered(request)["image_urls"], Json::array());
}

TEST(Operations, ComputesThePayloadDigest) {
  // The digest was computed with a shell: printf of the tag and nine digests into sha256sum.
  const Json result = answered({{"op", "canonical"},
                                {"text_digest", std::string(64, 'a')},
                                {"issued", " 2025-01-02 "},
                                {"scope", "Email Message (Apple Mail)"},
                                {"snapshot_digest", ""},
                                {"identity", "Ada"},
                                {"signer_key", "KEY"},
                                {"expires", "2025-01-09"},
                                {"nonce", "00ff"},
                                {"commitment", "Approval"}});
  EXPECT_EQ(result, Json({{"payload_digest",
                           "ab461b39fdd6b2bcb3323e891a960b39fae4bd8c3f545b8e58c5dfe3871bc54e"}}));
}

TEST(Operations, BuildsTheTextsOfTheSigningFlow) {
  const std::pair<Json, Json> cases[] = {
      {{{"op", "scope"}, {"bundle", "com.apple.mail"}, {"name", nullptr}},
       {{"app", "Desktop App"}, {"scope", "Email Message (Desktop App)"}}},
      {{{"op", "compose"}, {"base", "A"}, {"recipient", " B "}}, {{"scope", "A → B"}}},
      {{{"op", "medium"}, {"scope", "Word"}}, {{"index", 6}}},
      {{{"op", "tab_script"}, {"bundle", "none"}, {"url_contains", "x"}, {"tab", nullptr}},
       {{"current", nullptr}, {"close", nullptr}}},
  };
  for (const auto& [request, result] : cases)
    EXPECT_EQ(answered(request), result);

  const Json confirm = answered({{"op", "confirm"},
                                 {"text", "x"},
                                 {"scope", "S"},
                                 {"issued", "D"},
                                 {"identity", "Ada"},
                                 {"demo", false}});
  EXPECT_THAT(confirm["informative"].get<std::string>(),
              testing::HasSubstr("\n\nx\n\nContext: S\nDate: D\nSigning as: Ada\n\n"));

  const Json block = answered({{"op", "block"},
                               {"sig_id", "7"},
                               {"text", "x"},
                               {"html", "<i>x</i>"},
                               {"issued", "2025-01-30"},
                               {"scope", "S"},
                               {"server", "https://s"}});
  EXPECT_THAT(block["plain"].get<std::string>(),
              testing::EndsWith("S · 30 January 2025\nCheck this signature → https://s/verify/7"));
  EXPECT_THAT(block["html"].get<std::string>(), testing::HasSubstr("</span><i>x</i><span"));
}

TEST(Operations, ShowsTheScreening) {
  const auto inspected = [](std::string_view text) {
    return answered({{"op", "inspect"}, {"text", text}, {"issued", "2025-01-30"}});
  };
  const Json plain = inspected("We met Ada on 3 May.");
  EXPECT_EQ(plain["assessment"],
            Json({{"score", 0}, {"blocked", false}, {"warn", false}, {"findings", Json::array()}}));
  for (const char* const key : {"refusal_title", "explanation", "warning"})
    EXPECT_EQ(plain.at(key), nullptr) << key;

  const Json refused = inspected("See javascript:void(0) for the minutes.");
  EXPECT_EQ(refused["assessment"]["findings"],
            Json::array({{{"id", "url-javascript"},
                          {"category", "Deceptive links"},
                          {"why",
                           "contains a javascript: link, which runs code rather than opening a "
                           "page"},
                          {"points", 100},
                          {"blocking", true}}}));
  EXPECT_EQ(refused["refusal_title"], "Not signed — this looks like a scam");
  EXPECT_THAT(refused["explanation"].get<std::string>(),
              testing::StartsWith("•  Deceptive links — contains a javascript: link\n\n"));
  EXPECT_EQ(refused["warning"], nullptr);

  EXPECT_EQ(answered({{"op", "quoted_spans"}, {"text", "She wrote “twenty-five characters…..”"}}),
            Json({{"spans", {{10, 37}}}}));
}

TEST(Report, UnderlinesWhatMatched) {
  const std::string report = readableReport(
      inspect({.text = "会議: see javascript:x now", .html = {}, .issued = "2025-01-30"}));
  EXPECT_THAT(report, testing::HasSubstr("Screening     refused, score 100\n"
                                         "              url-javascript (100, blocks): Deceptive "
                                         "links\n"
                                         "              会議: see javascript:x now\n"
                                         "                        ^^^^^^^^^^^\n"));
}

struct BadRequest {
  std::string line;
  std::string error;
};

TEST(Operations, ExplainsWhatIsWrongWithARequest) {
  const BadRequest cases[] = {
      {"", "the line is not one JSON value"},
      {"{\"op\":\"expiry\"", "the line is not one JSON value"},
      {"{} {}", "the line is not one JSON value"},
      {"[]", "a request is a JSON object"},
      {"{}", "\"op\" is missing"},
      {"{\"op\":7}", "\"op\" must be a string"},
      {"{\"op\":\"dance\"}", "unknown operation \"dance\""},
      {"{\"op\":\"inspect\",\"issued\":\"2025-01-01\"}", "\"text\" is missing"},
      {"{\"op\":\"inspect\",\"text\":null,\"issued\":\"\"}", "\"text\" must be a string"},
      {"{\"op\":\"inspect\",\"text\":\"\",\"html\":1,\"issued\":\"\"}",
       "\"html\" must be a string"},
      {"{\"op\":\"expiry\",\"issued\":\"2025-01-01\",\"word_count\":1.5}",
       "\"word_count\" must be an integer"},
      {R"({"op":"expiry","issued":"","word_count":9223372036854775808})",
       "\"word_count\" must be an integer"},
      {std::string(100000, '['), "the line is not one JSON value"},
  };
  for (const BadRequest& bad : cases)
    EXPECT_EQ(Json::parse(answer(bad.line)), Json({{"error", bad.error}}))
        << bad.line.substr(0, 80);
}

TEST(Operations, ReadsARequestOfManyKeysInReasonableTime) {
  std::string line = "{";
  for (int i = 0; i < 100000; ++i)
    line += "\"k" + std::to_string(i) + "\":1,";
  EXPECT_EQ(Json::parse(answer(line + "\"op\":\"dance\"}")),
            Json({{"error", "unknown operation \"dance\""}}));
}

TEST(Operations, ReplacesIllFormedTextOnce) {
  const auto normalized = [](const std::string& jsonString) {
    const std::string line =
        R"({"op":"inspect","issued":"2025-01-01","text":")" + jsonString + "\"}";
    return Json::parse(answer(line)).value("normalized", "no answer");
  };
  EXPECT_EQ(normalized("a\xFF\xE2\x82z"), "a\uFFFD\uFFFDz");
  EXPECT_EQ(normalized(R"(a\ud83d-\udc00)"), "a\uFFFD-\uFFFD");
  EXPECT_EQ(normalized(R"(\ud83d\ude00)"), "😀");
  EXPECT_EQ(normalized(R"(\\ud83d)"), "\\ud83d");
  EXPECT_EQ(normalized(R"(a\u0000b)"), std::string("a\0b", 3));
}

}  // namespace
}  // namespace quillseal::inspect
