#include <cstdint>

#include "Fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillseal::fuzz::check({reinterpret_cast<const char*>(data), size});
  return 0;
}
