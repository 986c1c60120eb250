#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "session/Connector.h"
#include "wayland/WaylandConnection.h"

/// A program that connects to the compositor for the agent.
///
/// KWin offers windows and keys only to a program that an installed desktop file names. It finds
/// the program by the connecting process's /proc/PID/exe, which is hidden once the agent has
/// shielded its memory, and computes the file's digest twice, so the file should be small.
namespace quillseal::linux::WaylandConnector {

inline constexpr std::string_view program = Connector::program;

/// Connects as the program in the first of the `places` that has it, which has ended when this
/// returns. Null when it is missing, or the compositor does not answer within some seconds.
[[nodiscard]] std::unique_ptr<WaylandConnection> open(
    const std::vector<std::filesystem::path>& places);

}  // namespace quillseal::linux::WaylandConnector
