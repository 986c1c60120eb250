#pragma once

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

/// Owning handles for what xcb gives.
namespace quillseal::linux::x11 {

struct Disconnect {
  void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

struct Free {
  void operator()(void* pointer) const noexcept { std::free(pointer); }
};
/// Replies and events. Null when the server did not answer.
template <typename T>
using Reply = std::unique_ptr<T, Free>;

}  // namespace quillseal::linux::x11
