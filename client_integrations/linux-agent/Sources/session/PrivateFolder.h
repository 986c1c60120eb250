#pragma once

#include <filesystem>

namespace quillseal::linux {

/// "quillseal" in `parent`, of mode 0700, made when it is missing. Throws std::runtime_error with a
/// sentence when it cannot be made, or when either folder could be changed by another user.
[[nodiscard]] std::filesystem::path privateFolderIn(const std::filesystem::path& parent);

/// The one in `$XDG_RUNTIME_DIR`, for what ends with the session. Throws also when there is no
/// such folder.
[[nodiscard]] std::filesystem::path runtimeFolder();

}  // namespace quillseal::linux
