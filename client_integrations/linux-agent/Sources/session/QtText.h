#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quillseal::linux {

[[nodiscard]] inline QString toQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace quillseal::linux
