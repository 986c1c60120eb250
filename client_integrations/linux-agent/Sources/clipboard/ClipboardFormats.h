#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// Chooses and decodes the formats in which programs offer text on the clipboard. Pure functions.
namespace quillseal::linux::ClipboardFormats {

inline constexpr const char* plainText = "text/plain;charset=utf-8";
inline constexpr const char* html = "text/html";

/// The formats in which a signed block is offered as plain text.
inline constexpr std::array ofBlockAsText{plainText, "text/plain", "UTF8_STRING"};

/// Maps the name of a format to its bytes.
using Content = std::map<std::string, std::string>;

/// Groups of formats. Of each group the first offered format is read, in this order.
using Groups = std::vector<std::vector<std::string>>;

/// Returns the formats that are read of every copy. The marks of a secret come first, so that the
/// secret itself is not read. No other format is requested, because a word processor renders the
/// selection again for each.
[[nodiscard]] const Groups& wanted();

/// Returns the first offered format of each group, of those that have one.
[[nodiscard]] std::vector<std::string> chosen(const Groups& groups,
                                              const std::vector<std::string>& offered);

/// Return the formats that are read for plain text or RTF only, the marks of a secret first.
[[nodiscard]] const Groups& wantedForText();
[[nodiscard]] const Groups& wantedForRtf();

/// The formats of `wanted` that hold plain text.
[[nodiscard]] const std::vector<std::string>& ofPlainText();

/// Returns whether the content is marked as a secret, as password managers do.
[[nodiscard]] bool isSecret(const Content& content);

/// Return the text in UTF-8, possibly ill-formed; nothing when there is none or it is empty.
[[nodiscard]] std::optional<std::string> plainTextOf(const Content& content);
[[nodiscard]] std::optional<std::string> htmlOf(const Content& content);

/// Returns the bytes of the RTF; nothing when there is none or it is secret.
[[nodiscard]] std::optional<std::string> rtfOf(const Content& content);

}  // namespace quillseal::linux::ClipboardFormats
