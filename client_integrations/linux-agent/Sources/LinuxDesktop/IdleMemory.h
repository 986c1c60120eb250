#pragma once

/// Memory that an agent needs while it signs and not while it waits for days. Both act on the whole
/// process and may be called on any thread.
namespace quillseal {

/// From now on a freed block of a mebibyte or more goes back to the system at once. False where the
/// allocator has no such setting.
bool returnLargeBlocks() noexcept;

/// Gives back free memory, and the pages of constant data in the program and its libraries: they
/// are in the system's cache of the files and come back at the next use.
void giveBackUnusedMemory() noexcept;

}  // namespace quillseal
