#pragma once

#include <string>

namespace quillseal {

/// What decides whether the agent can reach other applications.
struct SessionTraits {
  bool isWayland = false;
  bool hasXServer = false;    ///< its own or Xwayland
  bool canPressKeys = false;  ///< the X server has XTEST and XKEYBOARD
};

/// What does not work in a session and what does, and how to go on, as sentences for the person;
/// empty where everything works.
[[nodiscard]] std::string limitsOf(const SessionTraits& session);

}  // namespace quillseal
