#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "session/FileDescriptor.h"

/// The socket on which the agent listens for the relays of the user's browsers:
/// `$XDG_RUNTIME_DIR/quillseal/tabs`, of mode 0600 in a folder of mode 0700. Functions that throw
/// throw std::runtime_error with a sentence.
namespace quillseal::linux::TabSocket {

/// File name of the socket in `runtimeFolder()`.
inline constexpr std::string_view name = "tabs";

/// Listens on the socket, non-blocking, and replaces one that no process answers. The socket gets
/// its name by renaming once it takes connections. Throws, also when another agent listens.
[[nodiscard]] FileDescriptor listen();

/// Connects to the agent. Nothing while no agent of this user listens. Throws when `runtimeFolder`
/// does.
[[nodiscard]] std::optional<FileDescriptor> connect();

/// Accepts the next relay, non-blocking. Nothing when none of this user's is waiting. Throws when
/// the listening socket has failed.
[[nodiscard]] std::optional<FileDescriptor> accept(const FileDescriptor& listening);

/// Returns whether the process at the other end was this user's when it connected or began to
/// listen.
[[nodiscard]] bool isPeerThisUser(const FileDescriptor& socket);

/// Sends all of `bytes` without waiting. False when the other end is gone or does not read.
[[nodiscard]] bool send(const FileDescriptor& socket, std::string_view bytes);

/// Reads at most 4 KiB; empty when the other end is gone. REQUIRES: the socket is readable.
[[nodiscard]] std::string receive(const FileDescriptor& readable);

}  // namespace quillseal::linux::TabSocket
