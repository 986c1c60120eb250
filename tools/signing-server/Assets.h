#pragma once

#include <optional>
#include <string_view>

/// The files of assets/, compiled in.
namespace quillseal::devserver {

/// The file's content; nothing when there is no such file.
[[nodiscard]] std::optional<std::string_view> asset(std::string_view name);

}  // namespace quillseal::devserver
