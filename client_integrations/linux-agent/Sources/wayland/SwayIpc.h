#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// A connection to sway by the protocol that it shares with i3 (sway-ipc(7)). Main thread.
class SwayIpc {
 public:
  enum class Request : std::uint32_t { runCommand = 0, subscribe = 2, getTree = 4, getConfig = 9 };

  struct Message {
    std::uint32_t type;
    std::string text;  ///< JSON
  };

  /// Null when nobody answers at the socket with this path.
  [[nodiscard]] static std::unique_ptr<SwayIpc> open(const std::string& path);

  /// The answer to a request; nothing when none comes within a second, and to every later request.
  /// REQUIRES: nothing was subscribed to on this connection.
  [[nodiscard]] std::optional<std::string> ask(Request request, std::string_view text);

  /// What is readable while there are messages to receive, or sway has gone.
  [[nodiscard]] int descriptor() const { return socket_.get(); }

  /// The messages that have arrived since the last call; nothing when sway has gone.
  [[nodiscard]] std::optional<std::vector<Message>> receive();

 private:
  explicit SwayIpc(FileDescriptor socket) : socket_(std::move(socket)) {}
  [[nodiscard]] bool read();
  [[nodiscard]] std::optional<Message> next();

  FileDescriptor socket_;
  bool answers_ = true;
  std::string received_;
};

/// The app id, or under Xwayland the class, that a tree of sway's (JSON) gives to the windows with
/// this title; nothing when there are none, or two differ.
[[nodiscard]] std::optional<std::string> applicationIdIn(std::string_view tree,
                                                         std::string_view title);

/// Whether a configuration of sway binds something to Control, Alt and Super with `key`, which is
/// the name of a keysym, or with the key of this XKB number. Looks at the text itself, not at the
/// files that it includes, and only at bindings outside of modes.
struct SwayChord {
  std::string_view symbol;
  std::uint32_t code;
};
[[nodiscard]] bool bindsAlready(std::string_view configuration, const SwayChord& chord);

}  // namespace quillseal::linux
