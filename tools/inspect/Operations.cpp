#include "Operations.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>

#include "Quillseal/ContentRisk.h"
#include "Quillseal/ContentRules.h"
#include "Quillseal/CryptoManager.h"
#include "core/reading/ReadableText.h"
#include "core/signing/BrowserScripts.h"
#include "core/signing/ConfirmationText.h"
#include "core/signing/SignedBlock.h"
#include "core/signing/SigningScope.h"
#include "core/text/UnicodeText.h"

namespace quillseal::inspect {
namespace {

using Json = nlohmann::ordered_json;
/// Not ordered_json, whose lookups by key are linear.
using RequestJson = nlohmann::json;

struct RequestError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A request. Reads its keys and checks their types.
class Request {
 public:
  explicit Request(const RequestJson& object) : object_(object) {
    if (!object.is_object()) throw RequestError("a request is a JSON object");
  }

  std::string string(const char* key) const {
    const RequestJson& value = required(key);
    if (!value.is_string()) throw RequestError(quoted(key) + " must be a string");
    return value.get<std::string>();
  }

  /// Nothing when the key is absent or null.
  std::optional<std::string> optionalString(const char* key) const {
    const auto found = object_.find(key);
    if (found == object_.end() || found->is_null()) return std::nullopt;
    return string(key);
  }

  bool boolean(const char* key) const {
    const RequestJson& value = required(key);
    if (!value.is_boolean()) throw RequestError(quoted(key) + " must be true or false");
    return value.get<bool>();
  }

  std::int64_t integer(const char* key) const {
    const RequestJson& value = required(key);
    const bool fits = !value.is_number_unsigned() ||
                      value.get<std::uint64_t>() <= std::numeric_limits<std::int64_t>::max();
    if (!value.is_number_integer() || !fits)
      throw RequestError(quoted(key) + " must be an integer");
    return value.get<std::int64_t>();
  }

 private:
  static std::string quoted(const char* key) { return '"' + std::string(key) + '"'; }

  const RequestJson& required(const char* key) const {
    const auto found = object_.find(key);
    if (found == object_.end()) throw RequestError(quoted(key) + " is missing");
    return *found;
  }

  const RequestJson& object_;
};

Json inspectOperation(const Request& request) {
  const std::string text = request.string("text");
  const std::optional<std::string> html = request.optionalString("html");
  const std::string issued = request.string("issued");
  return toJson(inspect({.text = text, .html = html, .issued = issued}));
}

Json canonicalOperation(const Request& request) {
  const std::string textDigest = request.string("text_digest");
  const std::string issued = request.string("issued");
  const std::string scope = request.string("scope");
  const std::string snapshotDigest = request.string("snapshot_digest");
  const std::string identity = request.string("identity");
  const std::string signerKey = request.string("signer_key");
  const std::string expires = request.string("expires");
  const std::string nonce = request.string("nonce");
  const std::string commitment = request.string("commitment");
  return {{"payload_digest", CryptoManager::canonicalV3({.textDigest = textDigest,
                                                         .issued = issued,
                                                         .scope = scope,
                                                         .snapshotDigest = snapshotDigest,
                                                         .identity = identity,
                                                         .signerKey = signerKey,
                                                         .expires = expires,
                                                         .nonce = nonce,
                                                         .commitment = commitment})}};
}

Json expiryOperation(const Request& request) {
  const std::string issued = request.string("issued");
  const std::int64_t words = request.integer("word_count");
  return {{"days", CryptoManager::expiryDaysFor(words)},
          {"expires", CryptoManager::expiryDateFor({.issued = issued, .wordCount = words})}};
}

Json scopeOperation(const Request& request) {
  const std::string bundle = request.string("bundle");
  const std::optional<std::string> name = request.optionalString("name");
  const auto detected = SigningScope::detectAppScope({.name = name, .bundleIdentifier = bundle});
  return {{"app", detected.app}, {"scope", detected.scope}};
}

Json composeOperation(const Request& request) {
  const std::string base = request.string("base");
  const std::string recipient = request.string("recipient");
  return {{"scope", SigningScope::composeScope({.base = base, .recipient = recipient})}};
}

Json mediumOperation(const Request& request) {
  return {{"index", SigningScope::defaultMediumIndex(request.string("scope"))}};
}

Json confirmOperation(const Request& request) {
  const std::string text = request.string("text");
  const std::string scope = request.string("scope");
  const std::string issued = request.string("issued");
  const std::string identity = request.string("identity");
  return {{"informative", confirmationText({.text = text,
                                            .scope = scope,
                                            .issued = issued,
                                            .identity = identity,
                                            .proof = "fingerprint",
                                            .isDemo = request.boolean("demo")})}};
}

Json blockOperation(const Request& request) {
  const std::string signatureId = request.string("sig_id");
  const std::string text = request.string("text");
  const std::optional<std::string> html = request.optionalString("html");
  const std::string issued = request.string("issued");
  const std::string scope = request.string("scope");
  const std::string server = request.string("server");
  const SignedBlock::Fields fields{.signatureId = signatureId,
                                   .text = text,
                                   .html = html,
                                   .issued = issued,
                                   .scope = scope,
                                   .server = server};
  return {{"plain", SignedBlock::plainText(fields)}, {"html", SignedBlock::htmlDocument(fields)}};
}

Json orNull(const std::optional<std::string>& text) {
  return text ? Json(*text) : Json(nullptr);
}

Json quotedSpansOperation(const Request& request) {
  const std::string text = request.string("text");
  Json spans = Json::array();
  for (const ContentRisk::QuotedSpan& span : ContentRisk::quotedSpans(text))
    spans.push_back({span.firstCharacter, span.endCharacter});
  return {{"spans", spans}};
}

Json tabScriptOperation(const Request& request) {
  const std::string bundle = request.string("bundle");
  const std::string urlContains = request.string("url_contains");
  const std::optional<std::string> tab = request.optionalString("tab");
  return {{"current", orNull(BrowserScripts::currentTab(bundle))},
          {"close", orNull(BrowserScripts::closeAndRestore(
                        {.bundleIdentifier = bundle, .urlContains = urlContains, .tabId = tab}))}};
}

struct Operation {
  std::string_view name;
  Json (*perform)(const Request&);
};

constexpr std::array operations{
    Operation{"block", blockOperation},     Operation{"canonical", canonicalOperation},
    Operation{"compose", composeOperation}, Operation{"confirm", confirmOperation},
    Operation{"expiry", expiryOperation},   Operation{"inspect", inspectOperation},
    Operation{"medium", mediumOperation},   Operation{"quoted_spans", quotedSpansOperation},
    Operation{"scope", scopeOperation},     Operation{"tab_script", tabScriptOperation},
};

/// Returns the value of the "\uXXXX" escape at `at`, or nothing.
std::optional<unsigned> unicodeEscapeAt(std::string_view json, std::size_t at) {
  if (json.substr(at, 2) != "\\u" || json.size() < at + 6) return std::nullopt;
  unsigned value = 0;
  for (const char digit : json.substr(at + 2, 4)) {
    if (std::isxdigit(static_cast<unsigned char>(digit)) == 0) return std::nullopt;
    value =
        value * 16 + static_cast<unsigned>(digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10);
  }
  return value;
}

/// JSON from other programs may hold an unpaired surrogate, for which the parser would refuse the
/// whole line.
std::string withoutLoneSurrogates(std::string_view json) {
  const auto isLeading = [](unsigned unit) { return unit >= 0xD800 && unit <= 0xDBFF; };
  const auto isTrailing = [](unsigned unit) { return unit >= 0xDC00 && unit <= 0xDFFF; };
  std::string result;
  result.reserve(json.size());
  std::size_t at = 0;
  while (at < json.size()) {
    std::size_t length = json[at] == '\\' ? 2 : 1;
    if (const auto unit = unicodeEscapeAt(json, at)) {
      length = 6;
      const auto next = unicodeEscapeAt(json, at + 6);
      if (isLeading(*unit) && next && isTrailing(*next)) {
        length = 12;
      } else if (isLeading(*unit) || isTrailing(*unit)) {
        result += "\\uFFFD";
        at += length;
        continue;
      }
    }
    result += json.substr(at, length);
    at += length;
  }
  return result;
}

Json perform(std::string_view requestLine) {
  const std::string line = withoutLoneSurrogates(unicode::wellFormed(requestLine));
  const RequestJson parsed = RequestJson::parse(line);
  const Request request(parsed);
  const std::string name = request.string("op");
  const auto* const operation =
      std::find_if(operations.begin(), operations.end(),
                   [&](const Operation& candidate) { return candidate.name == name; });
  if (operation == operations.end()) throw RequestError("unknown operation \"" + name + '"');
  return operation->perform(request);
}

Json toJson(const ContentRisk::Assessment& assessment) {
  Json findings = Json::array();
  for (const ContentRisk::Finding& finding : assessment.findings)
    findings.push_back({{"id", finding.id},
                        {"category", finding.category},
                        {"why", finding.why},
                        {"points", finding.points},
                        {"blocking", finding.isBlocking}});
  return {{"score", assessment.score},
          {"blocked", assessment.isBlocked},
          {"warn", assessment.shouldWarn},
          {"findings", findings}};
}

/// Returns an assessment as JSON, with the texts that the user would see.
Json verdict(const ContentRisk::Assessment& assessment) {
  const auto textIf = [&](bool applies, std::string (*text)(const ContentRisk::Assessment&)) {
    return applies ? Json(text(assessment)) : Json(nullptr);
  };
  return {{"assessment", toJson(assessment)},
          {"refusal_title", textIf(assessment.isBlocked, ContentRisk::refusalTitle)},
          {"explanation", textIf(assessment.isBlocked, ContentRisk::explanation)},
          {"warning", textIf(assessment.shouldWarn, ContentRisk::warning)}};
}

}  // namespace

Json toJson(const Inspection& inspection) {
  Json json = {{"words", inspection.words},
               {"normalized", inspection.normalized},
               {"normalized_characters", inspection.normalizedCharacters},
               {"text_digest", inspection.textDigest},
               {"distinctive", inspection.distinctive},
               {"signing_refusal", inspection.signingRefusal},
               {"image_urls", inspection.imageURLs},
               {"image_digest", inspection.imageDigest},
               {"expires", inspection.expires},
               {"prompt_subject", inspection.promptSubject}};
  json.update(verdict(inspection.screening.assessment));
  return json;
}

Json toJsonWithReading(const Inspection& inspection) {
  Json json = toJson(inspection);
  json["as_read"] = nullptr;
  if (const auto asRead = ContentRisk::screenAsRead(inspection.text, inspection.screening)) {
    json["as_read"] = {{"text", ReadableText(inspection.text).text()}};
    json["as_read"].update(verdict(asRead->assessment));
  }
  return json;
}

std::string rulesTable() {
  Json rules = Json::array();
  for (const ContentRules::Rule& rule : ContentRules::all)
    rules.push_back({{"id", rule.id},
                     {"category", rule.category},
                     {"severity", rule.severity},
                     {"points", rule.points},
                     {"why", rule.why},
                     {"pattern", rule.pattern},
                     {"caseInsensitive", rule.caseInsensitive}});
  return rules.dump(2) + '\n';
}

std::string answer(std::string_view requestLine) {
  Json result;
  try {
    result = perform(requestLine);
  } catch (const nlohmann::json::exception&) {
    result = {{"error", "the line is not one JSON value"}};
  } catch (const RequestError& error) {
    result = {{"error", error.what()}};
  }
  return result.dump();
}

}  // namespace quillseal::inspect
