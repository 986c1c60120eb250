#pragma once

#include <optional>
#include <string_view>

/// Gives access to the files of assets/, which are compiled in.
namespace quillseal::devserver {

/// Returns the file's content; nothing when there is no such file.
[[nodiscard]] std::optional<std::string_view> asset(std::string_view name);

}  // namespace quillseal::devserver
