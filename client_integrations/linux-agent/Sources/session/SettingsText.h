#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// The text of a settings file that people edit: lines "Key=Value", taken literally. Nothing is
/// quoted or escaped: whatever stands behind the first "=" is the value, to the end of the line.
/// Only where blanks stand before the "=", as in "Key = Value", are those around the value left
/// out. Keys count before the first "[section]" and in "[General]", and the last line of a key
/// holds. Comments begin with "#" or ";". Everything else stays as it is when a value changes.
class SettingsText {
 public:
  using Values = std::map<std::string, std::string, std::less<>>;

  /// An empty file.
  SettingsText() = default;

  /// Nothing when `bytes` are no such text: a line that is none of the above, ill-formed UTF-8, a
  /// NUL, or more than 1 MiB.
  [[nodiscard]] static std::optional<SettingsText> parsed(std::string bytes);

  [[nodiscard]] Values values() const;

  /// False, and nothing is changed, for what no line can hold: a value with a line break or a NUL.
  /// REQUIRES: `key` is a word of ASCII letters.
  [[nodiscard]] bool set(std::string_view key, std::string_view value);

  [[nodiscard]] const std::string& text() const { return text_; }

  static constexpr std::size_t largest = std::size_t{1024} * 1024;  ///< bytes

 private:
  std::string text_;
};

}  // namespace quillseal::linux
