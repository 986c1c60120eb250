#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "session/FileDescriptor.h"

/// The socket at which the agent awaits the relays of the user's browsers:
/// `$XDG_RUNTIME_DIR/quillseal/tabs`, of mode 0600 in a folder of mode 0700. Functions that throw
/// throw std::runtime_error with a sentence.
namespace quillseal::linux::TabSocket {

/// File name of the socket in `runtimeFolder()`.
inline constexpr std::string_view name = "tabs";

/// Listens there, non-blocking, in the place of a socket that nobody answers any more. The socket
/// appears, by renaming, only once it takes connections. Throws, also when another agent listens.
[[nodiscard]] FileDescriptor listen();

/// A connection to the agent; nothing while no agent of this user listens. Throws when
/// `runtimeFolder` does.
[[nodiscard]] std::optional<FileDescriptor> connect();

/// The next relay that waits at the listening socket, non-blocking; nothing when there is none that
/// belongs to this user. Throws when the socket is of no use any more.
[[nodiscard]] std::optional<FileDescriptor> accept(const FileDescriptor& listening);

/// Whether the process at the other end was this user's when it connected or began to listen.
[[nodiscard]] bool isPeerThisUser(const FileDescriptor& socket);

/// Sends all of `bytes` at once. False when the other end is gone or leaves what it was sent
/// unread.
[[nodiscard]] bool send(const FileDescriptor& socket, std::string_view bytes);

/// What has arrived, at most 4 KiB of it; empty when the other end is gone. REQUIRES: something
/// has.
[[nodiscard]] std::string receive(const FileDescriptor& readable);

}  // namespace quillseal::linux::TabSocket
