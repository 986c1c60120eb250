#include "clipboard/ClipboardFormats.h"

#include <QByteArray>
#include <QString>
#include <QStringDecoder>
#include <algorithm>

namespace quillseal::linux::ClipboardFormats {
namespace {

// Marks of a secret: KDE's and KeePassXC's, and that of macOS for programs that set both.
constexpr auto passwordHint = "x-kde-passwordManagerHint";
constexpr auto concealed = "org.nspasteboard.ConcealedType";

constexpr auto latin1 = "STRING";

enum Group { concealedMark, hint, text, markup };

const std::string* find(const Content& content, const std::vector<std::string>& group,
                        std::string& format) {
  for (const std::string& name : group) {
    const auto found = content.find(name);
    if (found == content.end() || found->second.empty()) continue;
    format = name;
    return &found->second;
  }
  return nullptr;
}

/// Some programs include the terminating NUL.
std::optional<std::string> present(std::string text) {
  std::erase(text, '\0');
  if (text.empty()) return std::nullopt;
  return text;
}

}  // namespace

const Groups& wanted() {
  // In some programs the first plain text has line feeds where the second has CR LF; in one browser
  // the third is Latin-1 with escapes.
  static const Groups groups = {
      {concealed}, {passwordHint}, {"UTF8_STRING", plainText, "text/plain", latin1}, {html}};
  return groups;
}

const Groups& wantedForText() {
  static const Groups groups(wanted().begin(), wanted().begin() + markup);
  return groups;
}

const Groups& wantedForRtf() {
  static const Groups groups = {{concealed}, {passwordHint}, {"text/rtf", "application/rtf"}};
  return groups;
}

std::vector<std::string> chosen(const Groups& groups, const std::vector<std::string>& offered) {
  std::vector<std::string> formats;
  for (const std::vector<std::string>& group : groups) {
    const auto found = std::ranges::find_first_of(group, offered);
    if (found != group.end()) formats.push_back(*found);
  }
  return formats;
}

const std::vector<std::string>& ofPlainText() {
  return wanted()[text];
}

bool isSecret(const Content& content) {
  const auto mark = content.find(passwordHint);
  return content.contains(concealed) || (mark != content.end() && mark->second == "secret");
}

std::optional<std::string> plainTextOf(const Content& content) {
  std::string format;
  const std::string* bytes = find(content, ofPlainText(), format);
  if (bytes == nullptr) return std::nullopt;
  const QByteArray raw = QByteArray::fromStdString(*bytes);
  return present(format == latin1 ? QString::fromLatin1(raw).toStdString() : *bytes);
}

std::optional<std::string> htmlOf(const Content& content) {
  std::string format;
  const std::string* bytes = find(content, wanted()[markup], format);
  if (bytes == nullptr) return std::nullopt;
  // Detected from a byte order mark or the charset that the HTML declares.
  const QByteArray raw = QByteArray::fromStdString(*bytes);
  const QString decoded = QStringDecoder::decoderForHtml(raw)(raw);
  return present(decoded.toStdString());
}

std::optional<std::string> rtfOf(const Content& content) {
  std::string format;
  const std::string* bytes = find(content, wantedForRtf().back(), format);
  if (bytes == nullptr || isSecret(content)) return std::nullopt;
  return *bytes;
}

}  // namespace quillseal::linux::ClipboardFormats
