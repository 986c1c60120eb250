#pragma once

#include <string_view>

/// The server that this build uses when the settings name none; chosen when it is configured.
namespace quillseal::BuiltInServer {

/// An https origin without a slash at its end. A placeholder, which leads nowhere, when the build
/// names no server.
[[nodiscard]] std::string_view url() noexcept;

/// Whether `url` is a server, not the placeholder.
[[nodiscard]] bool isChosen() noexcept;

/// Empty in a development build, whose users enter server and key in the settings.
[[nodiscard]] std::string_view apiKey() noexcept;

}  // namespace quillseal::BuiltInServer
