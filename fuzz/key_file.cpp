#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

#include "Fuzzer.h"
#include "Quillseal/CryptoManager.h"
#include "keys/FileKeyStore.h"
#include "keys/KeyFile.h"

namespace {

using namespace quillseal::linux;

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
void quillseal::fuzz::check(std::string_view bytes) {
  static Scratch scratch;
  if (bytes.size() < 3 || bytes.size() > 4096) return;
  sign(scratch, bytes);
  sign(scratch,
       "SHA-256 of what follows: " + CryptoManager::sha256Hex(bytes) + "\n" + std::string(bytes));

  const std::string_view parts = bytes.substr(1);
  const auto middle = parts.begin() + std::clamp<int>(static_cast<unsigned char>(bytes[0]), 1,
                                                      static_cast<int>(parts.size()) - 1);
  const KeyFile::Block blocks[] = {
      {.label = "PUBLIC KEY", .bytes = {parts.begin(), middle}},
      {.label = "ENCRYPTED PRIVATE KEY", .bytes = {middle, parts.end()}}};
  const std::string file = KeyFile::write("", blocks);
  constexpr std::string_view labels[] = {"PUBLIC KEY", "ENCRYPTED PRIVATE KEY"};
  const auto read = KeyFile::read(file, labels);
  require(read && (*read)[0].bytes == blocks[0].bytes && (*read)[1].bytes == blocks[1].bytes);
  sign(scratch, file);
}
