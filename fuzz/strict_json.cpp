#include <cstdint>
#include <cstdlib>

#include <nlohmann/json.hpp>

#include "core/text/StrictJson.h"

namespace {

/// Checks that `read` returns the value of the document tree under the key, or throws if there is
/// none of that type.
template <typename Read>
bool agrees(const nlohmann::json& expected, bool isOfType, Read read) {
  try {
    return expected == read() && isOfType;
  } catch (const quillseal::JsonError&) {
    return !isOfType;
  }
}

}  // namespace

/// An ordinary parser reads every document that the strict reader accepts, with the same result.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const nlohmann::json tree = nlohmann::json::parse(text, nullptr, false);
  try {
    const quillseal::JsonObject object = quillseal::JsonObject::parse(text);
    if (!tree.is_object()) std::abort();
    for (const auto& member : tree.items()) {
      const std::string& key = member.key();
      const nlohmann::json& value = member.value();
      // The library compares an unsigned 64-bit number as a signed one.
      const bool isInteger =
          value.is_number_integer() &&
          (!value.is_number_unsigned() || value.get<std::uint64_t>() <= std::uint64_t{INT64_MAX});
      if (!agrees(value, value.is_string(), [&] { return object.string(key); }) ||
          !agrees(value, value.is_boolean(), [&] { return object.boolean(key); }) ||
          !agrees(value, isInteger, [&] { return object.integer(key); })) {
        std::abort();
      }
    }
  } catch (const quillseal::JsonError&) {
  }
  return 0;
}
