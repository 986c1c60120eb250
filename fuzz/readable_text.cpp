#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/reading/ReadableText.h"
#include "core/text/UnicodeText.h"

/// The reading of any bytes is its own reading, and each of its characters maps to a part of the
/// text, in the same order.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using quillseal::ReadableText;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const ReadableText readable(bytes);
  const std::string read(readable.text());
  if (ReadableText(read).text() != read) std::abort();
  if (readable.isAsWritten()) return 0;

  std::size_t last = 0;
  for (std::size_t position = 0; position < read.size();) {
    const std::size_t start = position;
    static_cast<void>(quillseal::unicode::nextScalar(read, position));
    const auto [from, to] = readable.written({.start = start, .end = position});
    if (from < last || to < from || to > size) std::abort();
    last = from;
  }
  return 0;
}
