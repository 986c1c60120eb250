#pragma once

#include <utility>

#import <CoreFoundation/CoreFoundation.h>
#import <IOKit/IOKitLib.h>

namespace quillseal::mac {

/// Owns one reference to a Core Foundation object, such as the result of a Create or Copy function.
template <typename Reference>
class CfHandle {
 public:
  CfHandle() = default;
  explicit CfHandle(Reference owned) noexcept : reference_(owned) {}
  CfHandle(CfHandle&& other) noexcept : reference_(std::exchange(other.reference_, nullptr)) {}
  CfHandle& operator=(CfHandle&& other) noexcept {
    std::swap(reference_, other.reference_);
    return *this;
  }
  CfHandle(const CfHandle&) = delete;
  CfHandle& operator=(const CfHandle&) = delete;
  ~CfHandle() {
    if (reference_ != nullptr) ::CFRelease(reference_);
  }

  [[nodiscard]] Reference get() const noexcept { return reference_; }
  [[nodiscard]] explicit operator bool() const noexcept { return reference_ != nullptr; }

  /// The address at which a function stores a reference that the handle then owns. REQUIRES: the
  /// handle is empty.
  [[nodiscard]] Reference* receive() noexcept { return &reference_; }

  /// Passes ownership of the reference to the caller.
  [[nodiscard]] Reference release() noexcept { return std::exchange(reference_, nullptr); }

 private:
  Reference reference_ = nullptr;
};

/// Owns one reference to an I/O Kit object.
class IoHandle {
 public:
  explicit IoHandle(io_object_t owned) noexcept : object_(owned) {}
  IoHandle(const IoHandle&) = delete;
  IoHandle& operator=(const IoHandle&) = delete;
  ~IoHandle() {
    if (object_ != IO_OBJECT_NULL) ::IOObjectRelease(object_);
  }

  [[nodiscard]] io_object_t get() const noexcept { return object_; }
  [[nodiscard]] explicit operator bool() const noexcept { return object_ != IO_OBJECT_NULL; }

 private:
  io_object_t object_;
};

}  // namespace quillseal::mac
