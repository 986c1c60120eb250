#include "LinuxDesktop/X11SelectionOwner.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <poll.h>
#include <xcb/xcb.h>

namespace quillseal {
namespace {

using Clock = std::chrono::steady_clock;

struct FreeDeleter {
  void operator()(void* pointer) const { std::free(pointer); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeDeleter>;

struct Disconnect {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
// Of its own, so that no event is taken from Qt. What was made through it goes with it.
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

bool isOnX() {
  return qGuiApp->nativeInterface<QNativeInterface::QX11Application>() != nullptr;
}

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
  const auto cookie =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
  if (reply == nullptr) return XCB_ATOM_NONE;
  return reply->atom;
}

// The least that may be sent an answer.
xcb_window_t invisibleWindow(xcb_connection_t* connection) {
  const xcb_window_t window = xcb_generate_id(connection);
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  return window;
}

// The server itself answers when nobody owns the selection.
bool isAnswered(xcb_connection_t* connection, Clock::time_point deadline) {
  while (xcb_connection_has_error(connection) == 0) {
    if (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection)}) {
      constexpr unsigned sentByProgram = 0x80;
      if ((event->response_type & ~sentByProgram) == XCB_SELECTION_NOTIFY) return true;
      continue;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    pollfd readable{.fd = xcb_get_file_descriptor(connection), .events = POLLIN, .revents = 0};
    poll(&readable, 1, static_cast<int>(left));
  }
  return true;
}

}  // namespace

bool ownerAnswers(X11Selection selection, std::chrono::milliseconds patience) {
  if (!isOnX()) return true;
  const Clock::time_point deadline = Clock::now() + patience;
  const Connection connection(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(connection.get()) != 0) return true;

  const xcb_atom_t targets = atomOf(connection.get(), "TARGETS");
  xcb_convert_selection(connection.get(), invisibleWindow(connection.get()),
                        selection == X11Selection::primary
                            ? static_cast<xcb_atom_t>(XCB_ATOM_PRIMARY)
                            : atomOf(connection.get(), "CLIPBOARD"),
                        targets, targets, XCB_CURRENT_TIME);
  xcb_flush(connection.get());
  return isAnswered(connection.get(), deadline);
}

}  // namespace quillseal
