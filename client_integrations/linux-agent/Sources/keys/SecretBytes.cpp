#include "keys/SecretBytes.h"

#include <algorithm>
#include <new>
#include <utility>

#include <openssl/crypto.h>
#include <sys/prctl.h>

namespace quillseal::linux {
namespace {

/// Size of the locked memory: many times what one signature needs, and far below a user's limit.
constexpr std::size_t lockedBytes = 65'536;
constexpr std::size_t smallestBlock = 16;

unsigned char* allocate(std::size_t size) {
  if (size == 0) return nullptr;
  auto* const bytes = static_cast<unsigned char*>(::OPENSSL_secure_zalloc(size));
  if (bytes == nullptr) throw std::bad_alloc();
  return bytes;
}

}  // namespace

bool lockMemoryOfSecrets() noexcept {
  constexpr int allLocked = 1;
  return ::CRYPTO_secure_malloc_init(lockedBytes, smallestBlock) == allLocked;
}

void shieldProcess() noexcept {
  ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

void SecretBytes::Free::operator()(unsigned char* bytes) const noexcept {
  ::OPENSSL_secure_free(bytes);
}

void wipe(std::span<unsigned char> bytes) noexcept {
  if (!bytes.empty()) ::OPENSSL_cleanse(bytes.data(), bytes.size());
}

SecretBytes::SecretBytes(std::size_t size) : bytes_(allocate(size)), size_(size) {}

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
  quillseal::linux::wipe(bytes().subspan(size));
  size_ = size;
}

void SecretBytes::wipe() noexcept {
  quillseal::linux::wipe(bytes());
}

}  // namespace quillseal::linux
