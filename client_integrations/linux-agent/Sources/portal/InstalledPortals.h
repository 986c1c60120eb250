#pragma once

namespace quillseal::linux {

/// Whether a part of the portal that lets programs press keys is installed, for whichever desktop.
/// Without one, starting the portal takes time and brings nothing. Reads the files `*.portal` in
/// the folders that the portal itself reads, in milliseconds.
[[nodiscard]] bool isRemoteDesktopInstalled();

}  // namespace quillseal::linux
