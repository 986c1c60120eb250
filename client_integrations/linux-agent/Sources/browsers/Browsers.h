#pragma once

#include <string>
#include <string_view>

/// The table of known browsers. Pure functions.
namespace quillseal::linux::Browsers {

/// What identifies a browser. Each member is empty when it is not known.
struct Traits {
  std::string_view desktopFile;  ///< its name without ".desktop"
  std::string_view executable;   ///< file name of a program or start script
};

/// Returns the same identifier for a browser however it was packaged: packages name their desktop
/// files differently, and some browsers write another one when they become the default. For an
/// unknown browser, the name of its desktop file.
[[nodiscard]] std::string identifierOf(const Traits& traits);

/// Returns whether the browser with this identifier has an executable of this file name.
[[nodiscard]] bool isProgramOf(std::string_view identifier, std::string_view program);

}  // namespace quillseal::linux::Browsers
