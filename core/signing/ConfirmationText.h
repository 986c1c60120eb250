#pragma once

#include <string>
#include <string_view>

/// What users read before they authorise a signature. Pure functions.
namespace quillseal {

/// Names a text in a prompt of one line: its first 48 characters and its number of words.
[[nodiscard]] std::string promptSubject(std::string_view text);

struct ConfirmationFields {
  std::string_view text;
  std::string_view scope;
  std::string_view issued;
  std::string_view identity;  ///< empty when none is bound to this machine
  std::string_view proof;     ///< what the person signs with, such as "fingerprint"
  bool isDemo = false;
};

/// The body of the confirmation dialog. Of a long text, 600 characters are shown.
[[nodiscard]] std::string confirmationText(const ConfirmationFields& fields);

}  // namespace quillseal
