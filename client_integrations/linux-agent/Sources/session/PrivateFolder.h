#pragma once

#include <filesystem>

namespace quillseal::linux {

/// Returns the folder "quillseal" in `parent` and creates it with mode 0700 if it is missing.
/// Throws std::runtime_error with a sentence when that fails or another user could change either
/// folder.
[[nodiscard]] std::filesystem::path privateFolderIn(const std::filesystem::path& parent);

/// Returns the one in `$XDG_RUNTIME_DIR`, for files that last as long as the session. Throws also
/// when the variable names no folder.
[[nodiscard]] std::filesystem::path runtimeFolder();

}  // namespace quillseal::linux
