#pragma once

#include <memory>

#include <wayland-client.h>

namespace quillseal::linux::wayland {

/// Destroys an object without a request to the compositor.
struct ForgetProxy {
  void operator()(auto* object) const noexcept {
    wl_proxy_destroy(reinterpret_cast<wl_proxy*>(object));
  }
};

/// Owns an object that has no destructor request, at least not in the bound version.
template <typename Object>
using ProxyHandle = std::unique_ptr<Object, ForgetProxy>;

}  // namespace quillseal::linux::wayland
