#include "keys/KeyFile.h"

#include <limits>
#include <new>

#include <openssl/pem.h>

#include "Quillseal/CryptoManager.h"
#include "keys/OpenSslHandles.h"

namespace quillseal::linux::KeyFile {

namespace {

constexpr std::string_view sumLabel = "SHA-256 of what follows: ";
constexpr std::size_t sumLength = 64;

}  // namespace

std::string write(std::string_view headline, std::span<const Block> blocks) {
  const openssl::Stream stream(::BIO_new(::BIO_s_mem()));
  if (!stream) throw std::bad_alloc();
  for (const Block& block : blocks) {
    const std::string label(block.label);
    if (::PEM_write_bio(stream.get(), label.c_str(), "", block.bytes.data(),
                        static_cast<long>(block.bytes.size())) <= 0)
      throw std::bad_alloc();
  }
  char* text = nullptr;
  const long length = BIO_get_mem_data(stream.get(), &text);
  const std::string_view body(text, static_cast<std::size_t>(length));

  std::string file(headline);
  file += '\n';
  file += sumLabel;
  file += CryptoManager::sha256Hex(body);
  file += '\n';
  file += body;
  return file;
}

std::optional<std::vector<Block>> read(std::string_view file,
                                       std::span<const std::string_view> labels) {
  const std::size_t line = file.find(sumLabel);
  if (line == std::string_view::npos) return std::nullopt;
  std::string_view rest = file.substr(line + sumLabel.size());
  if (rest.size() <= sumLength || rest[sumLength] != '\n') return std::nullopt;
  const std::string_view sum = rest.substr(0, sumLength);
  rest.remove_prefix(sumLength + 1);
  if (rest.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()) ||
      CryptoManager::sha256Hex(rest) != sum)
    return std::nullopt;

  const openssl::Stream stream(::BIO_new_mem_buf(rest.data(), static_cast<int>(rest.size())));
  if (!stream) throw std::bad_alloc();
  std::vector<Block> blocks;
  for (const std::string_view label : labels) {
    char* name = nullptr;
    char* header = nullptr;
    unsigned char* bytes = nullptr;
    long length = 0;
    if (::PEM_read_bio(stream.get(), &name, &header, &bytes, &length) != 1) return std::nullopt;
    const openssl::Buffer nameOwner(reinterpret_cast<unsigned char*>(name));
    const openssl::Buffer headerOwner(reinterpret_cast<unsigned char*>(header));
    const openssl::Buffer bytesOwner(bytes);
    if (label != name) return std::nullopt;
    blocks.push_back({.label = label, .bytes = {bytes, bytes + length}});
  }
  return blocks;
}

}  // namespace quillseal::linux::KeyFile
