#pragma once

#include <cstdlib>

#include <xcb/xcb.h>

#include "core/text/UniqueHandle.h"

/// Owning handles for what xcb gives.
namespace quillseal::linux::x11 {

using Connection = UniqueHandle<xcb_connection_t, ::xcb_disconnect>;

/// Replies and events. Null when the server did not answer.
template <typename T>
using Reply = UniqueHandle<T, std::free>;

}  // namespace quillseal::linux::x11
