#include <string>

#include "Fuzzer.h"
#include "core/reading/ReadableText.h"
#include "core/text/UnicodeText.h"

/// The reading of any bytes is its own reading, and each of its characters maps to a part of the
/// text, in the same order. A well-formed text has a well-formed one.
void quillseal::fuzz::check(std::string_view bytes) {
  using quillseal::ReadableText;
  const ReadableText readable(bytes);
  const std::string read(readable.text());
  require(ReadableText(read).text() == read);
  if (readable.isAsWritten()) return;
  const bool isWellFormed = unicode::wellFormed(bytes) == bytes;
  require(!isWellFormed || unicode::wellFormed(read) == read);
  require(readable.written({.start = 0, .end = 0}).start <= bytes.size());

  std::size_t last = 0;
  for (std::size_t position = 0; position < read.size();) {
    const std::size_t start = position;
    static_cast<void>(unicode::nextScalar(read, position));
    const auto [from, to] = readable.written({.start = start, .end = position});
    require(last <= from && from <= to && to <= bytes.size());
    require(!isWellFormed || from == bytes.size() || (bytes[from] & 0xC0) != 0x80);
    last = from;
  }
}
