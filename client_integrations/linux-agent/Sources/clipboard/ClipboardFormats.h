#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

/// The formats in which programs offer text on the clipboard, and what those hold. Pure functions.
namespace quillseal::linux::ClipboardFormats {

inline constexpr const char* plainText = "text/plain;charset=utf-8";
inline constexpr const char* html = "text/html";

/// Bytes by the names of their formats.
using Content = std::map<std::string, std::string>;

/// Of each group the first format that is offered is read, in this order.
using Groups = std::vector<std::vector<std::string>>;

/// What is read of every copy. The marks of a secret come first, so that the secret itself is not
/// even read. No other format is asked for: a word processor lays the selection out anew for each.
[[nodiscard]] const Groups& wanted();

/// What is read instead when somebody wants RTF; the marks of a secret come first here too.
[[nodiscard]] const Groups& wantedForRtf();

/// Those of `wanted` that hold plain text.
[[nodiscard]] const std::vector<std::string>& ofPlainText();

/// Whether the program that copied it marked it as a secret, as password managers do.
[[nodiscard]] bool isSecret(const Content& content);

/// As UTF-8, maybe ill-formed; nothing when there is none or it is empty.
[[nodiscard]] std::optional<std::string> plainTextOf(const Content& content);
[[nodiscard]] std::optional<std::string> htmlOf(const Content& content);

/// Bytes; nothing when there are none or they are secret.
[[nodiscard]] std::optional<std::string> rtfOf(const Content& content);

}  // namespace quillseal::linux::ClipboardFormats
