#include "session/IdleMemory.h"

#include <cstddef>
#include <cstdint>
#include <span>

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace quillseal::linux {

namespace {

// Drops only read-only segments: code may hold a debugger's breakpoints, and data that the program
// or the loader writes to is in other segments.
int giveBackConstants(dl_phdr_info* object, std::size_t /*size*/, void* /*unused*/) {
  const auto pageSize = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  const std::span<const ElfW(Phdr)> segments(object->dlpi_phdr, object->dlpi_phnum);
  for (const auto& segment : segments) {
    if (segment.p_type != PT_LOAD || segment.p_flags != PF_R) continue;
    const std::uintptr_t begin = object->dlpi_addr + segment.p_vaddr;
    const std::uintptr_t firstPage = begin / pageSize * pageSize;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader gives addresses as integers
    ::madvise(reinterpret_cast<void*>(firstPage), begin + segment.p_memsz - firstPage,
              MADV_DONTNEED);
  }
  return 0;
}

}  // namespace

bool returnLargeBlocks() noexcept {
  // By default the C library raises this threshold when a large block is freed, and then keeps
  // later ones in each thread's heap.
  constexpr int largeBlock = 1 << 20;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): before any thread
  return ::mallopt(M_MMAP_THRESHOLD, largeBlock) == 1;
}

void giveBackUnusedMemory() noexcept {
  ::malloc_trim(0);
  ::dl_iterate_phdr(giveBackConstants, nullptr);
}

}  // namespace quillseal::linux
