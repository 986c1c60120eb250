#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

namespace quillseal::linux {

/// Keeps the memory of all later secrets out of swap and core dumps. False where the system does
/// not allow it. Call once, when the program starts.
bool lockMemoryOfSecrets() noexcept;

/// Keeps other programs of the same user, but not root, from reading this process's memory and from
/// tracing it, and the system from writing core files. Child programs are not affected. Call before
/// there is a secret.
void shieldProcess() noexcept;

/// Secret bytes: a PIN, a passphrase, or a value derived from one. They are overwritten when the
/// object is destroyed or assigned to, and cannot be copied by accident.
class SecretBytes {
 public:
  SecretBytes() noexcept = default;
  /// Makes `size` zero bytes, to be filled in place. Throws std::bad_alloc.
  explicit SecretBytes(std::size_t size);
  /// Copies `text`; the caller wipes the original.
  explicit SecretBytes(std::string_view text);
  SecretBytes(SecretBytes&& other) noexcept;
  SecretBytes& operator=(SecretBytes&& other) noexcept;
  SecretBytes(const SecretBytes&) = delete;
  SecretBytes& operator=(const SecretBytes&) = delete;
  ~SecretBytes();

  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  [[nodiscard]] std::span<unsigned char> bytes() noexcept { return {bytes_.get(), size_}; }
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept {
    return {bytes_.get(), size_};
  }
  [[nodiscard]] std::string_view text() const noexcept {
    return {reinterpret_cast<const char*>(bytes_.get()), size_};
  }

  /// Keeps the first `size` bytes and wipes the others. REQUIRES: size <= this->size().
  void shorten(std::size_t size) noexcept;

 private:
  void wipe() noexcept;

  struct Free {
    void operator()(unsigned char* bytes) const noexcept;
  };
  std::unique_ptr<unsigned char[], Free> bytes_;
  std::size_t size_ = 0;
};

/// Overwrites memory; the optimiser cannot remove this.
void wipe(std::span<unsigned char> bytes) noexcept;

}  // namespace quillseal::linux
