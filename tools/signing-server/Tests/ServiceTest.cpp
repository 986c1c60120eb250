#include <map>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Cases.h"
#include "Quillseal/CryptoManager.h"
#include "Service.h"
#include "TestDevice.h"
#include "core/text/UnicodeText.h"

namespace quillseal::devserver {
namespace {

using nlohmann::json;
using quillseal::testing::divided;
using ::testing::HasSubstr;

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
                                                 .signingSeconds = 300,
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

  Answer createHandoff(const std::string& issued = "2026-01-01") {
    json body = json::parse(quillseal::testing::caseLines("A handoff").front());
    body["issued"] = issued;
    return post("/api/handoff/create", body);
  }

  std::string identity_;
  std::string origin_;
  std::string host_ = "127.0.0.1:8427";
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

// service-stories.txt explains its lines.
TEST_F(ServiceTest, StoriesGoAsTold) {
  Answer answer{.status = 0, .body = {}};
  std::string title;
  std::map<std::string, std::string> values{{"{text}", CryptoManager::sha256Hex("text")},
                                            {"{images}", CryptoManager::sha256Hex("images")}};
  for (std::string line : quillseal::testing::textCases()) {
    for (const auto& [name, value] : values)
      line = unicode::replacingAll(line, name, value);
    if (line.starts_with('[')) title = line;
    SCOPED_TRACE(title + ' ' + line);
    const auto [verb, what] = divided(line, " ");
    const auto [place, more] = divided(what, " ");
    if (verb == "origin") {
      origin_ = what;
      restart();
    } else if (verb == "seconds") {
      now_ += std::stoi(what);
    } else if (verb == "create") {
      answer = createHandoff(what);
    } else if (verb == "demonstrate") {
      json dated = request();
      dated["issued"] = dated["expires"] = what;
      dated["nonce"] = CryptoManager::sha256Hex(what);
      answer = post("/api/sign_demo", dated);
    } else if (verb == "POST") {
      answer = postText(place, more);
    } else if (verb == "GET") {
      const Reply reply = get(divided(what, "?h=").first, divided(what, "?h=").second);
      answer = {.status = reply.status, .body = reply.body};
    } else if (verb == ">") {
      const std::string body =
          answer.body.is_string() ? std::string(answer.body) : answer.body.dump();
      EXPECT_EQ(std::to_string(answer.status), place);
      EXPECT_THAT(body, HasSubstr(more));
    } else if (verb == "snapshot") {
      EXPECT_EQ(registry_.signature(values.at("{signature}"))->snapshotDigest,
                CryptoManager::sha256Hex("snapshot"));
    } else if (!line.starts_with('[')) {
      ADD_FAILURE() << "no story can do this";
    }
    for (const std::string name : {"handoff", "signature"})
      if (answer.body.is_object() && answer.body.contains(name + "_id"))
        values['{' + name + '}'] = answer.body[name + "_id"];
  }
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

TEST_F(ServiceTest, OnlyJsonIsTaken) {
  const Reply reply = service().answer({.method = "POST",
                                        .path = "/handoff/sign",
                                        .contentType = "text/plain",
                                        .host = host_,
                                        .handoffId = "",
                                        .body = "{}"});
  EXPECT_EQ(reply.status, 415);
}

}  // namespace
}  // namespace quillseal::devserver
