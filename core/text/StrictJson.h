#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace quillseal {

/// Why a JSON text is not the object that was expected. The message is a sentence that names the
/// key at fault and never repeats a value, which may be secret.
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One JSON object from an untrusted sender, read member by member with its types checked.
///
/// Only strings, integers, booleans and nulls of the object itself are kept; what is nested deeper
/// is skipped while it is parsed, so that nesting costs hardly any memory and no stack.
class JsonObject {
 public:
  /// Throws JsonError unless `text` is exactly one JSON object (RFC 8259) in well-formed UTF-8 in
  /// which no key of the object itself appears twice.
  [[nodiscard]] static JsonObject parse(std::string_view text);

  /// The member's value. Each throws JsonError when the key is missing or of another type.
  [[nodiscard]] const std::string& string(std::string_view key) const;
  [[nodiscard]] std::int64_t integer(std::string_view key) const;
  [[nodiscard]] bool boolean(std::string_view key) const;

  /// Nothing when the key is missing or null. Throws JsonError when it is of another type.
  [[nodiscard]] std::optional<std::string> optionalString(std::string_view key) const;
  [[nodiscard]] std::optional<std::int64_t> optionalInteger(std::string_view key) const;

 private:
  struct Other {};
  using Value = std::variant<std::nullptr_t, std::string, std::int64_t, bool, Other>;
  class Reader;

  template <typename T>
  const T& required(std::string_view key, const char* type) const;
  [[nodiscard]] bool isAbsent(std::string_view key) const;

  std::map<std::string, Value, std::less<>> members_;
};

}  // namespace quillseal
