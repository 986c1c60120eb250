#include "core/text/StrictJson.h"

#include <limits>
#include <utility>

#include <nlohmann/json.hpp>

#include "core/text/UnicodeText.h"

namespace quillseal {
namespace {

/// For a sentence: a key may be as long as the whole text.
std::string named(std::string_view key) {
  constexpr std::size_t mostCharacters = 40;
  const std::string_view shown = unicode::firstCharacters(key, mostCharacters);
  return "“" + std::string(shown) + (shown.size() < key.size() ? "…”" : "”");
}

}  // namespace

/// The parser's events. An event handler that answers false ends the parse.
class JsonObject::Reader : public nlohmann::json_sax<nlohmann::json> {
 public:
  explicit Reader(JsonObject& object) : object_(object) {}

  [[nodiscard]] const std::string& failure() const { return failure_; }

  bool null() override { return store(nullptr); }
  bool boolean(bool value) override { return store(value); }
  bool number_integer(number_integer_t value) override { return store(std::int64_t{value}); }
  bool number_unsigned(number_unsigned_t value) override {
    if (value > std::uint64_t{std::numeric_limits<std::int64_t>::max()}) return store(Other{});
    return store(static_cast<std::int64_t>(value));
  }
  bool number_float(number_float_t, const string_t&) override { return store(Other{}); }
  bool string(string_t& value) override { return store(std::move(value)); }
  bool binary(binary_t&) override { return store(Other{}); }

  bool start_object(std::size_t) override { return open(true); }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(false); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    if (depth_ > 1) return true;
    key_ = std::move(name);
    if (!object_.members_.contains(key_)) return true;
    return fail("The key " + named(key_) + " appears twice.");
  }

  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return fail("It is not well-formed JSON.");
  }

 private:
  bool store(Value value) {
    if (depth_ == 0) return failAsNoObject();
    if (depth_ == 1) object_.members_.insert_or_assign(key_, std::move(value));
    return true;
  }

  bool open(bool isObject) {
    if (depth_ == 0 && !isObject) return failAsNoObject();
    if (depth_ == 1) object_.members_.insert_or_assign(key_, Other{});
    ++depth_;
    return true;
  }

  bool close() {
    --depth_;
    return true;
  }

  bool failAsNoObject() { return fail("It is not a JSON object."); }

  bool fail(std::string message) {
    failure_ = std::move(message);
    return false;
  }

  JsonObject& object_;
  std::size_t depth_ = 0;
  std::string key_;
  std::string failure_;
};

JsonObject JsonObject::parse(std::string_view text) {
  // The parser takes a zero byte for the end of the text.
  if (text.find('\0') != std::string_view::npos) throw JsonError("It is not well-formed JSON.");
  JsonObject object;
  Reader reader(object);
  if (!nlohmann::json::sax_parse(text, &reader)) throw JsonError(reader.failure());
  return object;
}

template <typename T>
const T& JsonObject::required(std::string_view key, const char* type) const {
  const auto found = members_.find(key);
  if (found == members_.end()) throw JsonError("The key " + named(key) + " is missing.");
  const T* value = std::get_if<T>(&found->second);
  if (value == nullptr) throw JsonError("The key " + named(key) + " is not " + type + ".");
  return *value;
}

const std::string& JsonObject::string(std::string_view key) const {
  return required<std::string>(key, "a string");
}

std::int64_t JsonObject::integer(std::string_view key) const {
  return required<std::int64_t>(key, "an integer");
}

bool JsonObject::boolean(std::string_view key) const {
  return required<bool>(key, "true or false");
}

std::optional<std::string> JsonObject::optionalString(std::string_view key) const {
  if (isAbsent(key)) return std::nullopt;
  return string(key);
}

std::optional<std::int64_t> JsonObject::optionalInteger(std::string_view key) const {
  if (isAbsent(key)) return std::nullopt;
  return integer(key);
}

bool JsonObject::isAbsent(std::string_view key) const {
  const auto found = members_.find(key);
  return found == members_.end() || std::holds_alternative<std::nullptr_t>(found->second);
}

}  // namespace quillseal
