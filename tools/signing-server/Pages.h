#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Registry.h"

/// Makes the pages, as HTML documents. Every value is escaped. Pure functions.
namespace quillseal::devserver {

/// Returns the expiry date of a handoff signature. The server does not know the text's length, so
/// it uses the validity of the shortest text.
[[nodiscard]] std::string browserExpiry(std::string_view issued);

/// Returns the page on which a reader compares a message with the record. It gives no verdict
/// before the reader has pasted the message, and none when the record was changed.
[[nodiscard]] std::string verifyPage(const Signature& signature, std::int64_t now);

/// Returns the page on which a user signs. `secondsLeft` is the time until an open handoff expires;
/// zero or less when it has expired.
[[nodiscard]] std::string handoffPage(const Handoff& handoff, std::int64_t secondsLeft);

/// A page with one heading and one paragraph.
struct Notice {
  std::string title;
  std::string text;
};
[[nodiscard]] std::string noticePage(const Notice& notice);

}  // namespace quillseal::devserver
