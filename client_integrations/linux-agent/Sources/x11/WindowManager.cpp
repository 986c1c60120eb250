#include "x11/WindowManager.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstring>
#include <memory>

#include <unistd.h>

#include "applications/ProcessExecutable.h"
#include "applications/WindowDocument.h"
#include "x11/XcbHandles.h"

namespace quillseal::linux {
namespace {

using x11::Reply;

constexpr std::uint32_t longestProperty = 1024;  // in units of four bytes
constexpr std::uint32_t sourcePager = 2;
constexpr std::uint32_t everyWorkspace = 0xFFFFFFFF;

// WM_CLASS holds the instance and the class, each ended by a zero byte. The instance is not used:
// some programs put a profile path there.
std::string classOf(const std::string& property) {
  const std::size_t end = property.find('\0');
  if (end == std::string::npos) return {};
  return property.c_str() + end + 1;
}

}  // namespace

WindowManager::WindowManager() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  connection_ = x11 == nullptr ? nullptr : x11->connection();
  if (connection_ == nullptr) return;
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
}

// Cached: an atom stays the same as long as the server runs.
xcb_atom_t WindowManager::atom(const char* name) const {
  if (const auto known = atoms_.find(name); known != atoms_.end()) return known->second;
  const xcb_atom_t found = x11::atomOf(connection_, name);
  if (found != XCB_ATOM_NONE) atoms_[name] = found;
  return found;
}

std::string WindowManager::property(xcb_window_t window, const char* name, xcb_atom_t type) const {
  if (connection_ == nullptr || window == 0) return {};
  const auto cookie =
      xcb_get_property(connection_, 0, window, atom(name), type, 0, longestProperty);
  const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
  if (reply == nullptr) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> WindowManager::numbers(xcb_window_t window, const char* name,
                                                  xcb_atom_t type) const {
  const std::string bytes = property(window, name, type);
  std::vector<std::uint32_t> values(bytes.size() / sizeof(std::uint32_t));
  if (!values.empty())
    std::memcpy(values.data(), bytes.data(), values.size() * sizeof(std::uint32_t));
  return values;
}

std::optional<std::uint32_t> WindowManager::number(xcb_window_t window, const char* name,
                                                   xcb_atom_t type) const {
  const std::vector<std::uint32_t> values = numbers(window, name, type);
  return values.empty() ? std::nullopt : std::optional(values.front());
}

xcb_window_t WindowManager::activeWindow() const {
  return number(root_, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW).value_or(0);
}

bool WindowManager::namesActiveWindow() const {
  return number(root_, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW).has_value();
}

xcb_window_t WindowManager::inputFocus() const {
  if (connection_ == nullptr) return 0;
  const Reply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  return reply == nullptr ? 0 : reply->focus;
}

// The server gives every client its own range of ids.
bool WindowManager::isOfSameProgram(xcb_window_t one, xcb_window_t other) const {
  const std::uint32_t withinProgram = xcb_get_setup(connection_)->resource_id_mask;
  return (one & ~withinProgram) == (other & ~withinProgram);
}

bool WindowManager::isInside(xcb_window_t inner, xcb_window_t outer) const {
  while (inner != outer) {
    const Reply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, inner), nullptr));
    if (reply == nullptr || reply->parent == XCB_NONE) return false;
    inner = reply->parent;
  }
  return true;
}

// Some programs focus a separate window of theirs, others a window that another program has
// embedded.
bool WindowManager::hasKeyboard(xcb_window_t window) const {
  if (window == 0 || activeWindow() != window) return false;
  const xcb_window_t focus = inputFocus();
  return focus > XCB_INPUT_FOCUS_POINTER_ROOT &&
         (isOfSameProgram(focus, window) || isInside(focus, window));
}

bool WindowManager::isOnOtherWorkspace(xcb_window_t window) const {
  const auto workspace = number(window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL);
  return workspace && *workspace != everyWorkspace &&
         workspace != number(root_, "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL);
}

bool WindowManager::isForWriting(xcb_window_t window) const {
  const auto has = [&](const char* list, const char* value) {
    const std::vector<std::uint32_t> values = numbers(window, list, XCB_ATOM_ATOM);
    return std::ranges::find(values, atom(value)) != values.end();
  };
  return !isOnOtherWorkspace(window) && !has("_NET_WM_STATE", "_NET_WM_STATE_HIDDEN") &&
         !has("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK") &&
         !has("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP");
}

// The id is compared as well: the window manager may name a window that has just closed and no
// longer has a process id.
bool WindowManager::isOwn(xcb_window_t window) const {
  return isOfSameProgram(window, xcb_get_setup(connection_)->resource_id_base) ||
         processOf(window) == static_cast<std::uint32_t>(getpid());
}

xcb_window_t WindowManager::topForeignWindow() const {
  const xcb_window_t active = activeWindow();
  if (active == 0 || !isOwn(active)) return active;
  // Ordered from bottom to top.
  const std::vector<xcb_window_t> stack =
      numbers(root_, "_NET_CLIENT_LIST_STACKING", XCB_ATOM_WINDOW);
  const auto found = std::find_if(stack.rbegin(), stack.rend(), [&](xcb_window_t window) {
    return !isOwn(window) && isForWriting(window);
  });
  return found == stack.rend() ? 0 : *found;
}

std::string WindowManager::documentOf(xcb_window_t window) const {
  WindowView view{.title = property(window, "_NET_WM_NAME", atom("UTF8_STRING")), .focus = 0};
  if (view.title.empty()) view.title = property(window, "WM_NAME", XCB_ATOM_ANY);
  if (hasKeyboard(window)) view.focus = inputFocus();
  return documentName(view);
}

std::uint32_t WindowManager::processOf(xcb_window_t window) const {
  return number(window, "_NET_WM_PID", XCB_ATOM_CARDINAL).value_or(0);
}

WindowTraits WindowManager::traitsOf(xcb_window_t window) const {
  WindowTraits traits;
  traits.windowClass = classOf(property(window, "WM_CLASS", XCB_ATOM_STRING));
  traits.gtkApplicationId = property(window, "_GTK_APPLICATION_ID", XCB_ATOM_ANY);
  if (const std::uint32_t process = processOf(window); process != 0)
    traits.executable = executableOf(process);
  return traits;
}

bool WindowManager::hasPrimarySelection(xcb_window_t window) const {
  if (connection_ == nullptr || window == 0) return false;
  const xcb_window_t owner = x11::ownerOf(connection_, XCB_ATOM_PRIMARY);
  return owner != XCB_NONE && isOfSameProgram(owner, window);
}

xcb_window_t WindowManager::clipboardOwner() const {
  return connection_ == nullptr ? 0 : x11::ownerOf(connection_, atom("CLIPBOARD"));
}

bool WindowManager::exists(xcb_window_t window) const {
  if (connection_ == nullptr || window == 0) return false;
  const Reply<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, window), nullptr));
  return reply != nullptr;
}

void WindowManager::send(xcb_window_t window, const ClientMessage& content) const {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = atom(content.name);
  message.data.data32[0] = content.first;
  message.data.data32[1] = content.second;
  xcb_send_event(connection_, 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&message));
  xcb_flush(connection_);
}

void WindowManager::activate(xcb_window_t window) const {
  if (connection_ == nullptr || window == 0) return;
  if (isOnOtherWorkspace(window)) {
    const auto workspace = number(window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL);
    send(root_, {.name = "_NET_CURRENT_DESKTOP",
                 .first = workspace.value_or(0),
                 .second = XCB_CURRENT_TIME});
  }
  send(window, {.name = "_NET_ACTIVE_WINDOW", .first = sourcePager, .second = XCB_CURRENT_TIME});
}

bool WindowManager::releaseKeyboard() const {
  if (connection_ == nullptr) return false;
  // This replaces a grab of this program; it fails while another program has one.
  const auto cookie = xcb_grab_keyboard(connection_, 0, root_, XCB_CURRENT_TIME,
                                        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const Reply<xcb_grab_keyboard_reply_t> grab(
      xcb_grab_keyboard_reply(connection_, cookie, nullptr));
  xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
  // Any answered request shows that the server has handled this one, before a key is pressed on the
  // other connection.
  const Reply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  return grab != nullptr && grab->status == XCB_GRAB_STATUS_SUCCESS;
}

}  // namespace quillseal::linux
