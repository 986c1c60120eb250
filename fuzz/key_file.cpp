#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

#include "Quillseal/CryptoManager.h"
#include "keys/FileKeyStore.h"
#include "keys/KeyFile.h"

namespace {

using namespace quillseal;

/// A temporary store, on a memory file system where there is one.
struct Scratch {
  std::filesystem::path folder =
      (std::filesystem::is_directory("/dev/shm") ? "/dev/shm"
                                                 : std::filesystem::temp_directory_path()) /
      ("quillseal-fuzz-" + std::to_string(::getpid()));
  FileKeyStore store{{.path = folder / "key.pem", .cost = {}}};
  PrivateFile file{folder / "key.pem"};
  ~Scratch() { std::filesystem::remove_all(folder); }
};

void sign(Scratch& scratch, std::string_view contents) {
  scratch.file.replace(contents);
  try {
    static_cast<void>(scratch.store.sign({}, SecretBytes("correct horse battery")));
  } catch (const KeyFailure&) {
  }
}

}  // namespace

/// A file of any bytes is refused, or signs. An attacker can compute the checksum, so the same
/// bytes are also tried with a correct one, and as the two parts after it: the first byte gives the
/// length of the public part, and neither is empty.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Scratch scratch;
  if (size < 3 || size > 4096) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  sign(scratch, text);
  sign(scratch,
       "SHA-256 of what follows: " + CryptoManager::sha256Hex(text) + "\n" + std::string(text));

  const std::size_t publicSize = std::clamp<std::size_t>(data[0], 1, size - 2);
  const std::uint8_t* const parts = data + 1;
  const KeyFile::Block blocks[] = {
      {.label = "PUBLIC KEY", .bytes = {parts, parts + publicSize}},
      {.label = "ENCRYPTED PRIVATE KEY", .bytes = {parts + publicSize, data + size}}};
  const std::string file = KeyFile::write("", blocks);
  constexpr std::string_view labels[] = {"PUBLIC KEY", "ENCRYPTED PRIVATE KEY"};
  const auto read = KeyFile::read(file, labels);
  if (!read || (*read)[0].bytes != blocks[0].bytes || (*read)[1].bytes != blocks[1].bytes)
    std::abort();
  sign(scratch, file);
  return 0;
}
