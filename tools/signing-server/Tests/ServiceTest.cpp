#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Cases.h"
#include "Quillseal/CryptoManager.h"
#include "Service.h"
#include "TestDevice.h"

namespace quillseal::devserver {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* apiKey = "the right key";
constexpr const char* deviceId = "0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90";
constexpr std::int64_t start = 1767225600;  // 1 January 2026, 00:00 UTC

class ServiceTest : public ::testing::Test {
 protected:
  struct Answer {
    int status;
    json body;
  };

  Service& service() {
    if (!service_) {
      service_.emplace(registry_, ServiceOptions{.apiKey = apiKey,
                                                 .identity = identity_,
                                                 .origin = origin_,
                                                 .signingSeconds = signingSeconds_,
                                                 .now = [this] { return now_; }});
    }
    return *service_;
  }

  Answer post(const std::string& path, const json& body) { return postText(path, body.dump()); }

  Answer postText(const std::string& path, const std::string& body) {
    const Reply reply = service().answer({.method = "POST",
                                          .path = path,
                                          .contentType = "application/json",
                                          .host = host_,
                                          .handoffId = "",
                                          .body = body});
    EXPECT_EQ(reply.contentType, "application/json");
    return {reply.status, json::parse(reply.body)};
  }

  Reply get(const std::string& path, const std::string& handoffId = "") {
    return service().answer({.method = "GET",
                             .path = path,
                             .contentType = "",
                             .host = host_,
                             .handoffId = handoffId,
                             .body = ""});
  }

  std::string verifyPageOf(const Answer& answer) {
    return get("/verify/" + answer.body.at("signature_id").get<std::string>()).body;
  }

  json enrolment() const {
    return {{"device_id", deviceId}, {"public_key", device_.publicKey()}, {"api_key", apiKey}};
  }

  /// A demonstration request; `signedRequest` adds the fields of a device's signature.
  static json request() { return json::parse(quillseal::testing::caseLines("A request").front()); }

  json signedRequest(json fields, const std::string& identity) const {
    fields["protocol"] = "v2";
    fields["snapshot_digest"] = "";
    const auto text = [&](const char* key) -> const std::string& {
      return fields[key].get_ref<const std::string&>();
    };
    fields["enclave_signature"] =
        device_.sign(CryptoManager::canonicalV3({.textDigest = text("text_digest"),
                                                 .issued = text("issued"),
                                                 .scope = text("scope"),
                                                 .snapshotDigest = "",
                                                 .identity = identity,
                                                 .signerKey = text("device_id"),
                                                 .expires = text("expires"),
                                                 .nonce = text("nonce"),
                                                 .commitment = text("commitment")}));
    return fields;
  }

  /// Restarts with the current options.
  void restart() { service_.reset(); }

  Answer createHandoff(const char* issued = "2026-01-01") {
    json body = json::parse(quillseal::testing::caseLines("A handoff").front());
    body["issued"] = issued;
    return post("/api/handoff/create", body);
  }

  std::string openHandoff() { return createHandoff().body.at("handoff_id"); }

  json poll(const std::string& id) {
    return post("/api/handoff/poll", {{"handoff_id", id}, {"api_key", apiKey}}).body;
  }

  Answer pressSign(const std::string& id, const std::string& text = "text") {
    return post("/handoff/sign",
                {{"handoff_id", id}, {"text_digest", CryptoManager::sha256Hex(text)}});
  }

  std::string identity_;
  std::string origin_;
  std::string host_ = "127.0.0.1:8427";
  std::int64_t signingSeconds_ = 600;
  std::int64_t now_ = start;
  TestDevice device_;
  Registry registry_{":memory:"};

 private:
  std::optional<Service> service_;
};

TEST_F(ServiceTest, RecordsTheSignatureOfAnEnrolledDevice) {
  identity_ = "Ada Lovelace";
  json lowerCase = enrolment();  // upper and lower case name the same device
  lowerCase["device_id"] = "0f4b3a52-7c1d-4e8a-9b60-5d2e1c7f8a90";
  const Answer enrolled = post("/api/register_native", lowerCase);
  EXPECT_EQ(enrolled.status, 200);
  EXPECT_EQ(
      enrolled.body,
      json({{"status", "registered"}, {"device_id", deviceId}, {"identity", "Ada Lovelace"}}));
  identity_ = "Somebody Else";  // of the devices that enrol from now on
  restart();
  json fields = request();
  fields["tz_offset"] = -210;
  const Answer answer = post("/api/sign_native", signedRequest(fields, "ada lovelace"));
  ASSERT_EQ(answer.status, 200) << answer.body;

  const std::string page = verifyPageOf(answer);
  EXPECT_THAT(page, HasSubstr("&quot;isExpired&quot;:false"));
  for (const char* shown : {"Ada Lovelace", "1 January 2026", "31 January 2026", "statement",
                            "Email Message (Writer &lt;b&gt;)", deviceId,
                            "Asia&#x2F;Kolkata (UTC-03:30)", "1 January 2026, 00:00 UTC"}) {
    EXPECT_THAT(page, HasSubstr(shown));
  }
  EXPECT_THAT(page, HasSubstr(CryptoManager::sha256Hex("images")));
  constexpr std::int64_t day = std::int64_t{24} * 60 * 60;
  now_ += 30 * day;
  EXPECT_THAT(verifyPageOf(answer), HasSubstr("&quot;isExpired&quot;:false")) << "its last day";
  now_ += day;
  EXPECT_THAT(verifyPageOf(answer), HasSubstr("&quot;isExpired&quot;:true"));
}

TEST_F(ServiceTest, RefusesWhatIsNotTheDevicesSignature) {
  const json genuine = signedRequest(request(), "");
  const Answer unknown = post("/api/sign_native", genuine);
  EXPECT_EQ(unknown.status, 404);
  EXPECT_EQ(unknown.body.at("error"), "Device not registered");

  EXPECT_EQ(post("/api/register_native", enrolment()).body,
            json({{"status", "registered"}, {"device_id", deviceId}}));
  // Each bound field, changed on its own.
  const json changes = {{"text_digest", CryptoManager::sha256Hex("other")},
                        {"snapshot_digest", CryptoManager::sha256Hex("other")},
                        {"issued", "2026-01-02"},
                        {"scope", "Chat Message"},
                        {"expires", "2026-02-01"},
                        {"nonce", "ffeeddccbbaa99887766554433221100"},
                        {"commitment", "approval"},
                        {"enclave_signature", TestDevice().sign(CryptoManager::sha256Hex("x"))}};
  for (const auto& [key, value] : changes.items()) {
    json forged = genuine;
    forged[key] = value;
    EXPECT_EQ(post("/api/sign_native", forged).status, 403) << key;
  }
  EXPECT_EQ(post("/api/sign_native", signedRequest(request(), "Someone Else")).status, 403);
  EXPECT_EQ(post("/api/sign_native", genuine).status, 200);
  EXPECT_EQ(post("/api/sign_native", genuine).status, 409) << "the nonce was used";
  EXPECT_EQ(post("/api/sign_demo", request()).status, 409) << "the nonce was used";

  json replaced = enrolment();
  replaced["public_key"] = TestDevice().publicKey();
  post("/api/register_native", replaced);
  json fresh = request();
  fresh["nonce"] = "0123456789abcdef0123456789abcdef";
  EXPECT_EQ(post("/api/sign_native", signedRequest(fresh, "")).status, 403) << "an old key";
}

TEST_F(ServiceTest, DemonstrationsAreShownAsSuch) {
  const Answer answer = post("/api/sign_demo", request());
  ASSERT_EQ(answer.status, 200) << answer.body;
  EXPECT_EQ(answer.body.at("demo"), true);
  EXPECT_THAT(verifyPageOf(answer), HasSubstr("&quot;kind&quot;:&quot;demonstration&quot;"));

  // Somewhere on earth it is yesterday or tomorrow.
  for (const auto& [issued, isOff] : {std::pair{"2025-12-30", "true"},
                                      {"2025-12-31", "false"},
                                      {"2026-01-02", "false"},
                                      {"2026-01-03", "true"}}) {
    json dated = request();
    dated["issued"] = dated["expires"] = issued;
    dated["nonce"] = CryptoManager::sha256Hex(issued);
    EXPECT_THAT(verifyPageOf(post("/api/sign_demo", dated)),
                HasSubstr("&quot;isOffDate&quot;:" + std::string(isOff)))
        << issued;
  }
}

TEST_F(ServiceTest, RefusesAWrongApiKeyEverywhere) {
  for (const char* path : {"/api/register_native", "/api/sign_native", "/api/sign_demo",
                           "/api/handoff/create", "/api/handoff/poll"}) {
    for (const char* wrong : {"the wrong one", "", "the right ke", "the right keyy"})
      EXPECT_EQ(post(path, {{"api_key", wrong}}).status, 401) << path << wrong;
    EXPECT_EQ(post(path, json::object()).status, 400) << path;
  }
}

TEST_F(ServiceTest, NamesTheKeyAtFault) {
  post("/api/register_native", enrolment());
  for (const json each : quillseal::testing::cases()) {
    const std::string key = each[0];
    json body = signedRequest(request(), "");
    body.erase(key);
    EXPECT_EQ(post("/api/sign_native", body).status, 400) << key;
    for (std::size_t i = 1; i < each.size(); ++i) {
      body[key] = each[i];
      const Answer answer = post("/api/sign_native", body);
      EXPECT_EQ(answer.status, 400) << key << each[i];
      EXPECT_THAT(answer.body.value("error", ""), HasSubstr("“" + key + "”"));
    }
  }
  json offTheCurve = enrolment();
  offTheCurve["public_key"] = "BA==";
  EXPECT_EQ(post("/api/register_native", offTheCurve).status, 400);
  for (const char* text : {"", "[]", "5", "{", "{}x", "{\"api_key\":\"\xff\"}"}) {
    EXPECT_EQ(postText("/api/sign_demo", text).status, 400) << text;
  }
}

TEST_F(ServiceTest, AHandoffIsSignedInTheBrowser) {
  const std::string id = openHandoff();
  EXPECT_EQ(poll(id), json({{"status", "pending"}}));
  EXPECT_THAT(get("/handoff", id).body, HasSubstr("Sign this text?"));
  EXPECT_EQ(pressSign(id, "another text").status, 403);
  EXPECT_EQ(poll(id), json({{"status", "pending"}}));

  const Answer answer = pressSign(id);
  ASSERT_EQ(answer.status, 200) << answer.body;
  const std::string signatureId = answer.body.at("signature_id");
  const Signature kept = registry_.signature(signatureId).value();
  EXPECT_EQ(kept.imageDigest, CryptoManager::sha256Hex("images"));
  EXPECT_EQ(kept.snapshotDigest, CryptoManager::sha256Hex("snapshot"));
  EXPECT_EQ(kept.scope, "Web Form (Browser)");
  EXPECT_EQ(kept.commitment, "statement");
  EXPECT_EQ(pressSign(id).body.at("signature_id"), signatureId) << "a second click";
  EXPECT_EQ(post("/handoff/decline", {{"handoff_id", id}}).status, 409);
  now_ += 3600;
  EXPECT_EQ(poll(id), json({{"status", "complete"}, {"signature_id", signatureId}}));
  EXPECT_EQ(pressSign(id).body.at("signature_id"), signatureId) << "a repeated request";
  EXPECT_THAT(verifyPageOf(answer), HasSubstr("&quot;kind&quot;:&quot;browser&quot;"));
  EXPECT_THAT(verifyPageOf(answer), HasSubstr("8 January 2026"));
}

TEST_F(ServiceTest, AHandoffNeedsADayToExpireOn) {
  EXPECT_EQ(createHandoff("9999-12-24").status, 200);
  for (const char* late : {"9999-12-25", "9999-12-31"}) {
    const Answer answer = createHandoff(late);
    EXPECT_EQ(answer.status, 400) << late;
    EXPECT_THAT(answer.body.value("error", ""), HasSubstr("“issued”"));
  }
}

TEST_F(ServiceTest, AHandoffEndsUnsigned) {
  signingSeconds_ = 300;
  const std::string declined = openHandoff();
  EXPECT_EQ(post("/handoff/decline", {{"handoff_id", declined}}).status, 200);
  EXPECT_EQ(poll(declined).at("status"), "expired") << "so that the agent stops waiting";
  const Answer refused = pressSign(declined);
  EXPECT_EQ(refused.status, 409);
  EXPECT_EQ(refused.body.at("error"), "This signing request was declined.");
  EXPECT_THAT(get("/handoff", declined).body, HasSubstr("Declined"));

  const std::string late = openHandoff();
  EXPECT_THAT(get("/handoff", late).body, HasSubstr("data-seconds-left=\"300\""));
  now_ += 299;
  EXPECT_EQ(poll(late).at("status"), "pending");
  now_ += 1;
  EXPECT_EQ(poll(late).at("status"), "expired");
  EXPECT_EQ(pressSign(late).status, 410);
  EXPECT_THAT(get("/handoff", late).body, HasSubstr("Expired"));

  EXPECT_EQ(pressSign("unknown").status, 404);
  EXPECT_EQ(get("/handoff", "unknown").status, 404);
}

TEST_F(ServiceTest, LinksLeadBackToWhereTheRequestCameOrToTheProxyInFront) {
  const auto link = [&] { return createHandoff().body.at("url").get<std::string>(); };
  EXPECT_THAT(link(), StartsWith("http://127.0.0.1:8427/handoff?h="));
  origin_ = "https://seal.example.org";
  restart();
  EXPECT_THAT(link(), StartsWith("https://seal.example.org/handoff?h="));
}

TEST_F(ServiceTest, AnswersOnlyToItsOwnName) {
  origin_ = "https://Seal.example.org:8443";
  for (const auto& each : quillseal::testing::cases()) {
    host_ = each[0];
    EXPECT_EQ(createHandoff().status, each[1]) << each;
    EXPECT_EQ(get("/").status, each[1]) << each;
  }
  origin_.clear();
  restart();
  host_ = "";
  EXPECT_EQ(get("/").status, 421) << "the origin, when there is none, is no name either";
}

TEST_F(ServiceTest, OnlyJsonIsTakenAndTemplatesAreNotServed) {
  const Reply reply = service().answer({.method = "POST",
                                        .path = "/handoff/sign",
                                        .contentType = "text/plain",
                                        .host = host_,
                                        .handoffId = "",
                                        .body = "{}"});
  EXPECT_EQ(reply.status, 415);
  EXPECT_EQ(get("/assets/verify.js").status, 200);
  EXPECT_EQ(get("/assets/verify.mustache").status, 404);
  EXPECT_EQ(get("/assets/../main.cpp").status, 404);
  EXPECT_EQ(get("/verify/'; DROP TABLE signatures; --").status, 404);
}

}  // namespace
}  // namespace quillseal::devserver
