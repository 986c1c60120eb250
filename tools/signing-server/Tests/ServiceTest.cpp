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
                                          .contentType = contentType_,
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

  /// `base` with the members of the object in `changes`.
  static json changed(json base, const std::string& changes) {
    base.update(json::parse(changes));
    return base;
  }

  std::string contentType_ = "application/json";
  std::string identity_;
  std::string origin_;
  std::string host_ = "127.0.0.1:8427";
  std::int64_t now_ = start;
  TestDevice device_;
  Registry registry_{":memory:"};

 private:
  std::optional<Service> service_;
};

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
  for (const char* text : {"", "[]", "5", "{", "{}x", "{\"api_key\":\"\xff\"}"}) {
    EXPECT_EQ(postText("/api/sign_demo", text).status, 400) << text;
  }
}

// service-stories.txt explains its lines.
TEST_F(ServiceTest, StoriesGoAsTold) {
  Answer answer{.status = 0, .body = {}};
  std::string title, signer;
  json sent;
  const TestDevice other;
  std::map<std::string, std::string> values{
      {"{text}", CryptoManager::sha256Hex("text")},
      {"{images}", CryptoManager::sha256Hex("images")},
      {"{other key}", other.publicKey()},
      {"{other signature}", other.sign(CryptoManager::sha256Hex("x"))}};
  for (std::string line : quillseal::testing::textCases()) {
    for (const auto& [name, value] : values)
      line = unicode::replacingAll(line, name, value);
    if (line.starts_with('[')) {
      title = line;
      now_ = start;
      for (std::string* option : {&identity_, &origin_, &signer})
        option->clear();
      contentType_ = "application/json";
      host_ = "127.0.0.1:8427";
      restart();
    }
    SCOPED_TRACE(title + ' ' + line);
    const auto [verb, what] = divided(line, " ");
    const auto [place, more] = divided(what, " ");
    if (verb == "origin") {
      origin_ = what;
      restart();
    } else if (verb == "identity") {
      identity_ = what;
      restart();
    } else if (verb == "host") {
      host_ = what;
    } else if (verb == "type") {
      contentType_ = what;
    } else if (verb == "enrol") {
      answer = post("/api/register_native", changed(enrolment(), what));
    } else if (verb == "as") {
      signer = what;
    } else if (verb == "sign") {
      sent = signedRequest(changed(request(), what), signer);
      answer = post("/api/sign_native", sent);
    } else if (verb == "send") {
      answer = post(place, changed(sent, more));
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

}  // namespace
}  // namespace quillseal::devserver
