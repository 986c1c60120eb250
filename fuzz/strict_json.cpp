
#include <nlohmann/json.hpp>

#include "Fuzzer.h"
#include "core/signing/HandoffPage.h"
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
/// The reader says in few words why it refuses the others.
void quillseal::fuzz::check(std::string_view document) {
  const nlohmann::json tree = nlohmann::json::parse(document, nullptr, false);
  try {
    const quillseal::JsonObject object = quillseal::JsonObject::parse(document);
    require(tree.is_object());
    for (const auto& member : tree.items()) {
      const std::string& key = member.key();
      const nlohmann::json& value = member.value();
      // The library compares an unsigned 64-bit number as a signed one.
      const bool isInteger =
          value.is_number_integer() &&
          (!value.is_number_unsigned() || value.get<std::uint64_t>() <= std::uint64_t{INT64_MAX});
      require(agrees(value, value.is_string(), [&] { return object.string(key); }));
      require(agrees(value, value.is_boolean(), [&] { return object.boolean(key); }));
      require(agrees(value, isInteger, [&] { return object.integer(key); }));
      // One such value is the address that a browser opens.
      const std::string text = value.is_string() ? value.get<std::string>() : std::string();
      require(!HandoffPage::isOpenable(text) ||
              text.find_first_of(" \"`<>\\\n") == std::string::npos);
    }
  } catch (const quillseal::JsonError& error) {
    // The words reach the user, so there must be some, and not a server's megabyte.
    const std::string_view words = error.what();
    require(!words.empty() && words.size() <= 1000);
  }
}
