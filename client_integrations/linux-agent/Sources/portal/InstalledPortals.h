#pragma once

namespace quillseal::linux {

/// Whether a part of the portal that lets programs press keys or gives them hotkeys is installed,
/// for any desktop. Without one, starting the portal takes time and brings nothing. Reads the files
/// `*.portal` in the folders that the portal itself reads, in milliseconds.
[[nodiscard]] bool isUsefulPortalInstalled();

}  // namespace quillseal::linux
