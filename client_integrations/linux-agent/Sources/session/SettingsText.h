#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// The text of a settings file that people edit: lines "Key=Value", without quoting or escapes. The
/// value is everything after the first "=". Blanks around it are removed only if there is one
/// before the "=", as in "Key = Value". Keys count before the first "[section]" and in "[General]";
/// the last line with a key wins. Comments begin with "#" or ";". A change of one value leaves
/// everything else as it is.
class SettingsText {
 public:
  using Values = std::map<std::string, std::string, std::less<>>;

  /// An empty file.
  SettingsText() = default;

  /// Parses a file. Nothing when a line is none of the above, and for ill-formed UTF-8, a NUL, or
  /// more than 1 MiB.
  [[nodiscard]] static std::optional<SettingsText> parsed(std::string bytes);

  [[nodiscard]] Values values() const;

  /// Sets a value. Returns false and changes nothing when the value holds a line break or a NUL.
  /// REQUIRES: `key` consists of ASCII letters.
  [[nodiscard]] bool set(std::string_view key, std::string_view value);

  [[nodiscard]] const std::string& text() const { return text_; }

  static constexpr std::size_t largest = std::size_t{1024} * 1024;  ///< bytes

 private:
  std::string text_;
};

}  // namespace quillseal::linux
