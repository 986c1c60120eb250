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

/// A connection to sway over its IPC protocol, which i3 shares (sway-ipc(7)). Main thread.
class SwayIpc {
 public:
  enum class Request : std::uint32_t { runCommand = 0, subscribe = 2, getTree = 4, getConfig = 9 };

  struct Message {
    std::uint32_t type;
    std::string text;  ///< JSON
  };

  /// Null when no process accepts at the socket of this path.
  [[nodiscard]] static std::unique_ptr<SwayIpc> open(const std::string& path);

  /// Sends a request and returns the answer. Nothing when none comes within a second; the next
  /// request is sent on a new connection. REQUIRES: no subscription on this connection.
  [[nodiscard]] std::optional<std::string> ask(Request request, std::string_view text);

  /// Readable while there are messages to receive, and after sway has closed the connection.
  [[nodiscard]] int descriptor() const { return socket_.get(); }

  /// Returns the messages since the last call; nothing when the connection is closed.
  [[nodiscard]] std::optional<std::vector<Message>> receive();

 private:
  SwayIpc(std::string path, FileDescriptor socket)
      : path_(std::move(path)), socket_(std::move(socket)) {}
  [[nodiscard]] bool read();
  [[nodiscard]] std::optional<Message> next();

  std::string path_;
  FileDescriptor socket_;
  bool answers_ = true;
  std::string received_;
};

}  // namespace quillseal::linux
