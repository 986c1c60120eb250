#pragma once

#include <cerrno>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace quillseal::linux {

/// Owns an open file descriptor and closes it.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int number) noexcept : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    FileDescriptor old(std::move(*this));
    std::swap(number_, other.number_);
    return *this;
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (number_ >= 0) ::close(number_);
  }

  [[nodiscard]] int get() const noexcept { return number_; }
  /// Gives the descriptor to the caller, who closes it.
  [[nodiscard]] int release() && noexcept { return std::exchange(number_, -1); }
  [[nodiscard]] bool isOpen() const noexcept { return number_ >= 0; }

 private:
  int number_ = -1;
};

/// Writes all of `bytes`; blocks if the descriptor is blocking. On failure returns false, with
/// errno set.
[[nodiscard]] inline bool writeAll(const FileDescriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace quillseal::linux
