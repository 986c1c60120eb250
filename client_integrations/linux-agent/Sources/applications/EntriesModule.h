#pragma once

#include <memory>

#include "applications/DesktopEntries.h"

/// The module that holds the desktop entries: GIO and its libraries.
namespace quillseal::linux::EntriesModule {

inline constexpr const char* fileName = "quillseal-entries.so";

/// The only function that the module exports, and its symbol.
using Make = void(std::unique_ptr<DesktopEntries>& made);
inline constexpr const char* make = "quillseal_make_desktop_entries";

}  // namespace quillseal::linux::EntriesModule
