#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <xcb/xcb.h>

#include "core/text/UniqueHandle.h"

/// Owning handles for what xcb gives, and questions to the X server.
namespace quillseal::linux::x11 {

using Connection = UniqueHandle<xcb_connection_t, ::xcb_disconnect>;

/// Replies, events and errors. Null when the server did not answer.
template <typename T>
using Reply = UniqueHandle<T, std::free>;

/// Returns the number of the name. Asks the server. XCB_ATOM_NONE when it does not answer.
[[nodiscard]] inline xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
  const auto cookie =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

/// Returns the window that owns the selection; XCB_NONE for nobody.
[[nodiscard]] inline xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection) {
  const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
      connection, xcb_get_selection_owner(connection, selection), nullptr));
  return reply == nullptr ? xcb_window_t{XCB_NONE} : reply->owner;
}

}  // namespace quillseal::linux::x11
