#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>

namespace quillseal {

[[nodiscard]] inline QString toQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Gives a text of the agent the words of this platform. Applied to what is shown, never to what is
/// signed, sent or logged.
using Words = std::function<std::string(std::string_view)>;

}  // namespace quillseal
