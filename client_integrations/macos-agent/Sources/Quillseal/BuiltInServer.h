#pragma once

#include <string_view>

/// The server that this build uses when the settings name none; chosen when it is configured.
namespace quillseal::builtInServer {

/// An https origin without a slash at its end.
[[nodiscard]] std::string_view url() noexcept;

/// Empty in a development build, whose users enter server and key in the settings.
[[nodiscard]] std::string_view apiKey() noexcept;

}  // namespace quillseal::builtInServer
