#pragma once

#include <memory>

#include <wayland-client.h>

namespace quillseal::linux::wayland {

/// Ends an object without a word to the compositor.
struct ForgetProxy {
  void operator()(auto* object) const noexcept {
    wl_proxy_destroy(reinterpret_cast<wl_proxy*>(object));
  }
};

/// Owns an object that has no request to end it in the version in use, but in newer ones.
template <typename Object>
using ProxyHandle = std::unique_ptr<Object, ForgetProxy>;

}  // namespace quillseal::linux::wayland
