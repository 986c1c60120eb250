#include "LinuxDesktop/SecretBytes.h"

#include <algorithm>
#include <utility>

#include <openssl/crypto.h>

namespace quillseal {

void wipe(std::span<unsigned char> bytes) noexcept {
  if (!bytes.empty()) ::OPENSSL_cleanse(bytes.data(), bytes.size());
}

SecretBytes::SecretBytes(std::size_t size)
    : bytes_(std::make_unique<unsigned char[]>(size)), size_(size) {}

SecretBytes::SecretBytes(std::string_view text) : SecretBytes(text.size()) {
  std::copy(text.begin(), text.end(), bytes_.get());
}

SecretBytes::SecretBytes(SecretBytes&& other) noexcept
    : bytes_(std::move(other.bytes_)), size_(std::exchange(other.size_, 0)) {}

SecretBytes& SecretBytes::operator=(SecretBytes&& other) noexcept {
  if (this != &other) {
    wipe();
    bytes_ = std::move(other.bytes_);
    size_ = std::exchange(other.size_, 0);
  }
  return *this;
}

SecretBytes::~SecretBytes() {
  wipe();
}

void SecretBytes::shorten(std::size_t size) noexcept {
  quillseal::wipe(bytes().subspan(size));
  size_ = size;
}

void SecretBytes::wipe() noexcept {
  quillseal::wipe(bytes());
}

}  // namespace quillseal
