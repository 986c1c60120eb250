#include "session/SettingsText.h"

#include <algorithm>
#include <utility>

#include "core/text/UnicodeText.h"

namespace quillseal::linux {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";
constexpr std::string_view lineEnds = "\r\n";

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t start = text.find_first_not_of(blanks);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(blanks) - start + 1);
}

struct Line {
  std::size_t start = 0;   ///< in the text
  std::string_view bytes;  ///< without the line break
};

/// Iterates over the lines of a text. CR LF counts as two line breaks; the empty line between them
/// has no effect.
class Lines {
 public:
  explicit Lines(std::string_view text)
      : text_(text), next_(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0) {}

  [[nodiscard]] std::optional<Line> next() {
    if (next_ > text_.size()) return std::nullopt;
    const std::size_t end = std::min(text_.find_first_of(lineEnds, next_), text_.size());
    const Line line{.start = next_, .bytes = text_.substr(next_, end - next_)};
    next_ = end + 1;
    return line;
  }

 private:
  std::string_view text_;
  std::size_t next_;
};

bool isComment(std::string_view line) {
  return line.empty() || line.front() == '#' || line.front() == ';';
}

bool isSection(std::string_view line) {
  return line.size() > 1 && line.front() == '[' && line.back() == ']';
}

bool isGeneral(std::string_view section) {
  return unicode::lowercased(section) == "[general]";
}

struct Setting {
  std::string_view key;
  std::string_view value;
};

/// Parses a line; nothing when it has no key or no "=".
std::optional<Setting> settingIn(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view before = line.substr(0, equals);
  const std::string_view value = line.substr(equals + 1);
  const std::string_view key = withoutBlanks(before);
  if (key.empty()) return std::nullopt;
  const bool isSpaced = blanks.find(before.back()) != std::string_view::npos;
  return Setting{.key = key, .value = isSpaced ? withoutBlanks(value) : value};
}

/// Calls `found` with each effective setting and its line. Returns the end of the last line in
/// "[General]", if there is such a section.
template <typename Found>
std::optional<std::size_t> forEachSetting(std::string_view text, Found found) {
  std::optional<std::size_t> endOfGeneral;
  bool counts = true;
  bool hasSection = false;
  Lines lines(text);
  while (const auto line = lines.next()) {
    const std::string_view trimmed = withoutBlanks(line->bytes);
    if (isComment(trimmed)) continue;
    if (isSection(trimmed)) {
      hasSection = true;
      counts = isGeneral(trimmed);
    } else if (const auto setting = settingIn(line->bytes); setting && counts) {
      found(*setting, *line);
    }
    if (hasSection && counts) endOfGeneral = line->start + line->bytes.size();
  }
  return endOfGeneral;
}

}  // namespace

std::optional<SettingsText> SettingsText::parsed(std::string bytes) {
  if (bytes.size() > largest || bytes.find('\0') != std::string::npos ||
      unicode::wellFormed(bytes) != bytes)
    return std::nullopt;
  Lines lines(bytes);
  while (const auto line = lines.next()) {
    const std::string_view trimmed = withoutBlanks(line->bytes);
    const bool isKnown = isComment(trimmed) || isSection(trimmed) ||
                         (trimmed.front() != '[' && settingIn(line->bytes));
    if (!isKnown) return std::nullopt;
  }
  SettingsText result;
  result.text_ = std::move(bytes);
  return result;
}

SettingsText::Values SettingsText::values() const {
  Values values;
  forEachSetting(text_, [&](const Setting& setting, const Line&) {
    values.insert_or_assign(std::string(setting.key), std::string(setting.value));
  });
  return values;
}

bool SettingsText::set(std::string_view key, std::string_view value) {
  if (value.find_first_of(lineEnds) != std::string_view::npos ||
      value.find('\0') != std::string_view::npos)
    return false;
  const std::string line = std::string(key).append("=").append(unicode::wellFormed(value));
  std::optional<Line> last;
  const auto endOfGeneral = forEachSetting(text_, [&](const Setting& setting, const Line& found) {
    if (setting.key == key) last = found;
  });
  if (last) {
    text_.replace(last->start, last->bytes.size(), line);
  } else if (endOfGeneral) {
    text_.insert(*endOfGeneral, "\n" + line);
  } else {
    if (!text_.empty() && text_.back() != '\n') text_ += '\n';
    text_ += "[General]\n" + line + "\n";
  }
  return true;
}

}  // namespace quillseal::linux
