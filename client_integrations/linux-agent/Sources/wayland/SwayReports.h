#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

/// Reads what sway reports over its IPC protocol. Pure functions.
namespace quillseal::linux {

/// What sway's tree says of a window's application.
struct SwayApplication {
  std::string id;             ///< app id, or under Xwayland the class
  std::uint32_t process = 0;  ///< 0 when several have such a window

  bool operator==(const SwayApplication&) const = default;
};

/// Returns the application of the windows with this title in sway's tree (JSON). Nothing when there
/// is no such window, or the ids of two differ.
[[nodiscard]] std::optional<SwayApplication> applicationIn(std::string_view tree,
                                                           std::string_view title);

/// A key with Control, Alt and Super.
struct SwayChord {
  std::string_view symbol;  ///< name of the keysym
  std::uint32_t code;       ///< XKB key code
};

/// Returns whether a configuration of sway binds the chord, by symbol or code. Looks only at the
/// text itself, not at included files, and at bindings outside modes.
[[nodiscard]] bool bindsAlready(std::string_view configuration, const SwayChord& chord);

/// Returns the string that a JSON object has under this key; empty when it has none.
[[nodiscard]] std::string textOf(const nlohmann::json& object, const char* key);

}  // namespace quillseal::linux
