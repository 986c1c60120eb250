#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The signed block: a text framed by corner brackets, with a stamp that leads to its verification.
/// Pure functions.
namespace quillseal::SignedBlock {

struct Fields {
  std::string_view signatureId;          ///< see `isSafeIdentifier`
  std::string_view text;                 ///< white space at its ends is left out
  std::optional<std::string_view> html;  ///< the same text as HTML; an empty one counts as none
  std::string_view issued;               ///< "yyyy-MM-dd"
  std::string_view scope;
  std::string_view server;  ///< origin of the verification page
};

/// Whether an identifier from the server can stand in a link, an HTML attribute and a script, mean
/// the same in each and look like itself: 1 to 256 ASCII letters, digits and "-._~:=", but neither
/// "." nor "..". Links and scripts are built from such identifiers only.
[[nodiscard]] bool isSafeIdentifier(std::string_view identifier);

/// "2025-01-30" as "30 January 2025". Anything but a date is returned as it is.
[[nodiscard]] std::string readableDate(std::string_view date);

/// The block as plain text.
[[nodiscard]] std::string plainText(const Fields& fields);

/// The block as an HTML document. Captured HTML is taken over as it is, but for the tags that would
/// nest a document in the document.
[[nodiscard]] std::string htmlDocument(const Fields& fields);

}  // namespace quillseal::SignedBlock
