#pragma once

#include <QLatin1Char>
#include <QLatin1String>
#include <QString>
#include <string>
#include <string_view>

namespace quillseal::linux {

[[nodiscard]] inline QString toQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Returns the text for a menu or button, where a single "&" would mark a mnemonic.
[[nodiscard]] inline QString withoutMnemonic(std::string_view utf8) {
  return toQString(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace quillseal::linux
