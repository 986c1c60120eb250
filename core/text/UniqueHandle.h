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

/// Owns an object of a C library, which `release` ends: UniqueHandle<BIO, ::BIO_free>. Where
/// `release` is a static function of a header, only for source files, as is a type that names it.
template <typename Object, auto release>
using UniqueHandle = std::unique_ptr<Object, HandleRelease<release>>;

}  // namespace quillseal
