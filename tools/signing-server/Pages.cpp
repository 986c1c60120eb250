#include "Pages.h"

#include <array>
#include <charconv>
#include <chrono>
#include <iomanip>
#include <sstream>
#include <stdexcept>

#include <mstch/mstch.hpp>
#include <nlohmann/json.hpp>

#include "Assets.h"
#include "Quillseal/CryptoManager.h"
#include "SignatureCheck.h"
#include "core/text/CalendarDate.h"

namespace quillseal::devserver {
namespace {

using namespace std::string_literals;

constexpr auto monthNames =
    std::to_array<const char*>({"January", "February", "March", "April", "May", "June", "July",
                                "August", "September", "October", "November", "December"});

std::string templateText(std::string_view name) {
  const std::optional<std::string_view> text = asset(name);
  if (!text) throw std::logic_error("no template " + std::string(name));
  return std::string(*text);
}

std::string rendered(std::string_view name, const mstch::map& values) {
  return mstch::render(templateText(name), values,
                       {{"frame_top", templateText("frame_top.mustache")},
                        {"frame_end", templateText("frame_end.mustache")}});
}

std::chrono::sys_seconds instant(std::int64_t seconds) {
  return std::chrono::sys_seconds(std::chrono::seconds(seconds));
}

std::string isoDate(std::int64_t now) {
  const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(instant(now)));
  std::ostringstream text;
  text << std::setfill('0') << std::setw(4) << int{day.year()} << '-' << std::setw(2)
       << unsigned{day.month()} << '-' << std::setw(2) << unsigned{day.day()};
  return text.str();
}

/// Formats "2025-01-30" as "30 January 2025". REQUIRES: an existing day.
std::string longDate(const std::string& date) {
  const auto number = [&](std::size_t from, std::size_t count) {
    std::size_t value = 0;
    std::from_chars(date.data() + from, date.data() + from + count, value);
    return value;
  };
  return std::to_string(number(8, 2)) + ' ' + monthNames.at(number(5, 2) - 1) + ' ' +
         date.substr(0, 4);
}

std::string utcTime(std::int64_t seconds) {
  const auto time = instant(seconds);
  const std::chrono::hh_mm_ss clock(time - std::chrono::floor<std::chrono::days>(time));
  std::ostringstream text;
  text << longDate(isoDate(seconds)) << ", " << std::setfill('0') << std::setw(2)
       << clock.hours().count() << ':' << std::setw(2) << clock.minutes().count() << " UTC";
  return text.str();
}

/// Returns the signer's time zone with its offset, such as "Asia/Kolkata (UTC+05:30)".
std::string zone(const Signature& signature) {
  const std::int64_t minutes = signature.utcOffsetMinutes;
  const std::int64_t distance = minutes < 0 ? -minutes : minutes;
  std::ostringstream text;
  text << signature.timezone << " (UTC" << (minutes < 0 ? '-' : '+') << std::setfill('0')
       << std::setw(2) << distance / 60 << ':' << std::setw(2) << distance % 60 << ')';
  return text.str();
}

std::string nameOf(SignatureKind kind) {
  switch (kind) {
    case SignatureKind::device:
      return "device";
    case SignatureKind::demonstration:
      return "demonstration";
    case SignatureKind::browser:
      break;
  }
  return "browser";
}

/// Returns whether the signer's date was not the day of the recording anywhere on earth.
bool isOffDate(const Signature& signature) {
  const auto issued = std::chrono::sys_days(parsedDate(signature.issued).value());
  const auto recorded = std::chrono::floor<std::chrono::days>(instant(signature.recordedAt));
  return std::chrono::abs(issued - recorded) > std::chrono::days(1);
}

/// Returns the data that the page's script compares a paste with, as JSON.
std::string recordOf(const Signature& signature, std::int64_t now) {
  const nlohmann::json record{{"id", signature.id},
                              {"kind", nameOf(signature.kind)},
                              {"textDigest", signature.textDigest},
                              {"identity", signature.identity},
                              {"scope", signature.scope},
                              {"issued", longDate(signature.issued)},
                              {"recorded", longDate(isoDate(signature.recordedAt))},
                              {"expires", longDate(signature.expires)},
                              {"isExpired", isoDate(now) > signature.expires},
                              {"isOffDate", isOffDate(signature)}};
  return record.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace

std::string browserExpiry(std::string_view issued) {
  return CryptoManager::expiryDateFor({.issued = issued, .wordCount = 0});
}

std::string verifyPage(const Signature& signature, std::int64_t now) {
  // Somebody may have changed the record in the database, or the file may be damaged.
  const bool isSound = isConsistent(signature);
  mstch::map values;
  values["title"] = "Check a message"s;
  values["script"] = "verify.js"s;
  if (isSound) {
    values["record"] = recordOf(signature, now);
    values["tone"] = "unknown"s;
    values["verdict"] = "This page cannot tell you whether your message is genuine"s;
    values["explanation"] = "Comparing needs JavaScript, which is off in this browser."s;
    values["issued"] = longDate(signature.issued);
    values["expires"] = longDate(signature.expires);
    values["recorded"] = utcTime(signature.recordedAt);
  } else {
    values["record"] = "null"s;
    values["tone"] = "bad"s;
    values["verdict"] = "This record was changed after it was made"s;
    values["explanation"] = "Do not rely on a message whose link leads here. Nothing is compared."s;
    values["recorded"] = "unknown"s;
  }
  values["is_device"] = signature.kind == SignatureKind::device;
  values["commitment"] = signature.commitment;
  values["has_device"] = !signature.deviceId.empty();
  values["device"] = signature.deviceId;
  values["has_zone"] = !signature.timezone.empty();
  values["zone"] = zone(signature);
  values["id"] = signature.id;
  values["text_digest"] = signature.textDigest;
  values["image_digest"] = signature.imageDigest;
  values["nonce"] = signature.nonce;
  values["canonical_digest"] = canonicalDigest(signature);
  values["public_key"] = signature.publicKey;
  values["device_signature"] = signature.deviceSignature;
  return rendered("verify.mustache", values);
}

std::string handoffPage(const Handoff& handoff, std::int64_t secondsLeft) {
  switch (handoff.state) {
    case HandoffState::complete:
      return noticePage(
          {.title = "Already signed", .text = "This text was signed. You can close this tab."});
    case HandoffState::declined:
      return noticePage(
          {.title = "Declined", .text = "You declined this request. Nothing was signed."});
    case HandoffState::open:
      break;
  }
  if (secondsLeft <= 0) {
    return noticePage({.title = "Expired",
                       .text = "This request was not signed in time. Nothing was signed. Select "
                               "your text and start again."});
  }
  mstch::map values;
  values["title"] = "Sign this text?"s;
  values["script"] = "handoff.js"s;
  values["id"] = handoff.id;
  values["text_digest"] = handoff.textDigest;
  values["seconds_left"] = std::to_string(secondsLeft);
  values["scope"] = handoff.scope;
  values["issued"] = longDate(handoff.issued);
  values["expires"] = longDate(browserExpiry(handoff.issued));
  return rendered("handoff.mustache", values);
}

std::string noticePage(const Notice& notice) {
  mstch::map values;
  values["title"] = notice.title;
  values["text"] = notice.text;
  return rendered("notice.mustache", values);
}

}  // namespace quillseal::devserver
