#include "FailingAllocation.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();
thread_local std::size_t untilFailure = never;

}  // namespace

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  if (untilFailure != never && untilFailure-- == 0) return nullptr;
  return std::malloc(std::max<std::size_t>(size, 1));
}
void* operator new(std::size_t size) {
  if (void* const memory = ::operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace quillseal::testing {

FailingAllocation::FailingAllocation(std::size_t succeeding) {
  untilFailure = succeeding;
}
FailingAllocation::~FailingAllocation() {
  untilFailure = never;
}

// Below zero the counter wraps to `never`.
bool FailingAllocation::happened() const {
  return untilFailure == never;
}

}  // namespace quillseal::testing
