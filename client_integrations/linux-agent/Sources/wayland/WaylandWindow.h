#pragma once

#include <cstdint>
#include <string>

namespace quillseal::linux {

/// A window as the compositor describes it.
struct WaylandWindow {
  std::uint64_t id = 0;       ///< never reused; never 0
  std::string applicationId;  ///< under Xwayland the class part of WM_CLASS
  std::string title;
  std::uint32_t process = 0;  ///< 0 where the compositor does not say
  bool isActive = false;      ///< focused
};

}  // namespace quillseal::linux
