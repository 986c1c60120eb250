#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/types.h>

#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// A small program that connects sockets for the agent.
///
/// Services find out by the connecting process's folder in /proc which program a client is. Of the
/// agent that is hidden, since it has shielded its memory.
class Connector {
 public:
  static constexpr std::string_view program = "quillseal-wayland-connector";

  /// Has `socket` connected to the Unix socket at `address` by the program in the first of the
  /// `places` that has it. Nothing when it is missing, or not connected within two seconds.
  [[nodiscard]] static std::optional<Connector> connect(
      const std::vector<std::filesystem::path>& places, const std::filesystem::path& address,
      const FileDescriptor& socket);

  Connector(Connector&& other) noexcept
      : process_(std::exchange(other.process_, 0)), pipe_(std::move(other.pipe_)) {}
  Connector& operator=(Connector&&) = delete;
  Connector(const Connector&) = delete;
  Connector& operator=(const Connector&) = delete;
  /// Ends the program. The connection stays.
  ~Connector();

 private:
  Connector(pid_t process, FileDescriptor pipe) : process_(process), pipe_(std::move(pipe)) {}

  pid_t process_;
  FileDescriptor pipe_;
};

}  // namespace quillseal::linux
