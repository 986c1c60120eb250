#pragma once

/// Memory that an agent needs while it signs and not while it waits for days. Both functions act on
/// the whole process.
namespace quillseal::linux {

/// From now on a freed block of a mebibyte or more goes back to the system at once. To be called
/// before there is a second thread. False where the allocator has no such setting.
bool returnLargeBlocks() noexcept;

/// Gives back free memory, and the pages of constant data in the program and its libraries: they
/// are in the system's cache of the files and come back at the next use. On any thread.
void giveBackUnusedMemory() noexcept;

}  // namespace quillseal::linux
