#include "browsers/TabMessages.h"

#include <array>
#include <cstring>
#include <utility>

#include <nlohmann/json.hpp>

#include "core/signing/SignedBlock.h"
#include "core/text/StrictJson.h"

namespace quillseal::linux::TabMessages {
namespace {

using Json = nlohmann::ordered_json;
using Length = std::uint32_t;

constexpr std::string_view currentTabOperation = "currentTab";
constexpr std::string_view closeOperation = "closeAndRestore";

Json orNull(std::optional<std::int64_t> tab) {
  return tab ? Json(*tab) : Json(nullptr);
}

std::string dumped(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

template <typename Read>
auto parsed(std::string_view message, Read read) {
  try {
    return read(JsonObject::parse(message));
  } catch (const JsonError& error) {
    throw ProtocolError(error.what());
  }
}

bool isCurrentTab(const JsonObject& object) {
  const std::string& operation = object.string("operation");
  if (operation == currentTabOperation) return true;
  if (operation == closeOperation) return false;
  throw ProtocolError("An operation is unknown.");
}

void requireLength(std::size_t length) {
  if (length == 0 || length > longestMessage) throw ProtocolError("A message has a wrong length.");
}

}  // namespace

std::string framed(std::string_view message) {
  requireLength(message.size());
  const auto length = static_cast<Length>(message.size());
  std::array<char, sizeof(Length)> prefix{};
  std::memcpy(prefix.data(), &length, sizeof length);
  return std::string(prefix.data(), prefix.size()).append(message);
}

std::optional<std::string> Deframer::next() {
  Length length = 0;
  if (pending_.size() < sizeof length) return std::nullopt;
  std::memcpy(&length, pending_.data(), sizeof length);
  requireLength(length);
  if (pending_.size() - sizeof length < length) return std::nullopt;
  std::string message = pending_.substr(sizeof length, length);
  pending_.erase(0, sizeof length + length);
  return message;
}

bool isSigningPageMark(std::string_view text) {
  constexpr std::string_view path = "/handoff?h=";
  return text.starts_with(path) && SignedBlock::isSafeIdentifier(text.substr(path.size()));
}

std::string written(const Request& request) {
  Json json{{"id", request.id}};
  if (const auto* close = std::get_if<CloseAndRestore>(&request.operation)) {
    json["operation"] = closeOperation;
    json["urlContains"] = close->urlContains;
    json["tab"] = orNull(close->tab);
  } else {
    json["operation"] = currentTabOperation;
  }
  return dumped(json);
}

std::string written(const Answer& answer) {
  Json json{{"id", answer.id}};
  if (const auto* shown = std::get_if<TabShown>(&answer.result)) {
    json["operation"] = currentTabOperation;
    json["tab"] = orNull(shown->tab);
    json["focusedAt"] = shown->focusedAt;
  } else {
    const auto& closed = std::get<TabsClosed>(answer.result);
    json["operation"] = closeOperation;
    json["closed"] = closed.closed;
    json["restored"] = closed.restored;
  }
  return dumped(json);
}

std::string written(const Greeting& greeting) {
  return dumped(Json{{"program", greeting.program}});
}

Request readRequest(std::string_view message) {
  return parsed(message, [](const JsonObject& object) {
    Request request{.id = object.integer("id"), .operation = CurrentTab{}};
    if (isCurrentTab(object)) return request;
    CloseAndRestore close{.urlContains = object.string("urlContains"),
                          .tab = object.optionalInteger("tab")};
    if (!isSigningPageMark(close.urlContains))
      throw ProtocolError("The mark is not that of a signing page.");
    request.operation = std::move(close);
    return request;
  });
}

Answer readAnswer(std::string_view message) {
  return parsed(message, [](const JsonObject& object) {
    Answer answer{.id = object.integer("id"), .result = {}};
    if (isCurrentTab(object)) {
      answer.result =
          TabShown{.tab = object.optionalInteger("tab"), .focusedAt = object.integer("focusedAt")};
    } else {
      answer.result =
          TabsClosed{.closed = object.boolean("closed"), .restored = object.boolean("restored")};
    }
    return answer;
  });
}

Greeting readGreeting(std::string_view message) {
  return parsed(message,
                [](const JsonObject& object) { return Greeting{object.string("program")}; });
}

}  // namespace quillseal::linux::TabMessages
