#pragma once

#include <memory>

namespace quillseal {

/// Calls a function of a C library that ends one of its objects. What it returns is of no use then.
template <auto release>
struct HandleRelease {
  template <typename Object>
  void operator()(Object* object) const noexcept {
    static_cast<void>(release(object));
  }
};

/// Owns an object of a C library, which `release` ends: UniqueHandle<BIO, ::BIO_free>. A `release`
/// that a header defines as `static` is another function in each source file, and so is the type:
/// name such a type in source files only.
template <typename Object, auto release>
using UniqueHandle = std::unique_ptr<Object, HandleRelease<release>>;

}  // namespace quillseal
