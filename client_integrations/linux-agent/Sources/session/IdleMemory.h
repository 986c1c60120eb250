#pragma once

/// Returns memory to the system that the agent needs only while it signs. Both functions act on the
/// whole process.
namespace quillseal::linux {

/// From now on a freed block of a mebibyte or more is returned at once. Call before there is a
/// second thread. False where the allocator has no such setting.
bool returnLargeBlocks() noexcept;

/// Returns free memory, and the pages of constant data in the program and its libraries; the system
/// loads those again when they are used. Any thread.
void giveBackUnusedMemory() noexcept;

}  // namespace quillseal::linux
