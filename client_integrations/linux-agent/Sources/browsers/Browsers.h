#pragma once

#include <string>
#include <string_view>

/// The browsers that are known by name, in one table. Pure functions.
namespace quillseal::linux::Browsers {

/// What a browser may be recognised by, each empty when it is not known.
struct Traits {
  std::string_view desktopFile;  ///< its name without ".desktop"
  std::string_view executable;   ///< file name of a program or start script
};

/// One identifier for a browser under whatever name it is met: packages differ in how they name
/// desktop files, and some browsers write a desktop file of their own when they are made the
/// default. The desktop file's name when neither it nor the executable is known.
[[nodiscard]] std::string identifierOf(const Traits& traits);

/// Whether the browser with this identifier runs as this program, by its file name.
[[nodiscard]] bool isProgramOf(std::string_view identifier, std::string_view program);

}  // namespace quillseal::linux::Browsers
