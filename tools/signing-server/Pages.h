#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Registry.h"

/// The pages as HTML documents. Every value is escaped. Pure functions.
namespace quillseal::devserver {

/// The last day of a handoff signature. The server never learns how long the text is, so it grants
/// what the shortest text gets.
[[nodiscard]] std::string browserExpiry(std::string_view issued);

/// The page on which a reader compares a message with the record. It says nothing of the message
/// before the reader has pasted it, and compares nothing when the record was changed.
[[nodiscard]] std::string verifyPage(const Signature& signature, std::int64_t now);

/// `secondsLeft` is what an open handoff has before it expires; zero or less when it has expired.
[[nodiscard]] std::string handoffPage(const Handoff& handoff, std::int64_t secondsLeft);

/// A page of one heading and one paragraph.
struct Notice {
  std::string title;
  std::string text;
};
[[nodiscard]] std::string noticePage(const Notice& notice);

}  // namespace quillseal::devserver
