#include "x11/X11Keyboard.h"

#include <algorithm>
#include <utility>

#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include "core/text/UniqueHandle.h"
#include "keyboard/KeyChords.h"
#include "x11/XcbHandles.h"

namespace quillseal::linux {
namespace {

// Some browsers drop a key that goes down and up in the same instant.
constexpr std::uint32_t holdMilliseconds = 12;

using x11::Connection;
using x11::Reply;

using Context = UniqueHandle<xkb_context, ::xkb_context_unref>;
using Keymap = UniqueHandle<xkb_keymap, ::xkb_keymap_unref>;
using KeymapState = UniqueHandle<xkb_state, ::xkb_state_unref>;

bool givesSymbol(xkb_keymap* keymap, xkb_keycode_t key, xkb_layout_index_t layout, Keysym symbol) {
  const xkb_keysym_t* symbols = nullptr;
  const int count = xkb_keymap_key_get_syms_by_level(keymap, key, layout, 0, &symbols);
  return count == 1 && *symbols == symbol;
}

xcb_keycode_t keyInLayout(xkb_keymap* keymap, xkb_layout_index_t layout, Keysym symbol) {
  for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap); key <= xkb_keymap_max_keycode(keymap);
       ++key)
    if (key <= 255 && givesSymbol(keymap, key, layout, symbol))
      return static_cast<xcb_keycode_t>(key);
  return 0;
}

}  // namespace

struct X11Keyboard::State {
  Connection connection;
  xcb_window_t root = 0;
  std::int32_t device = -1;
  Context context;
  std::uint8_t xkbEventType = 0;

  // Read for every press, since the user may switch layouts.
  [[nodiscard]] Keymap keymap() const {
    return Keymap(xkb_x11_keymap_new_from_device(context.get(), connection.get(), device,
                                                 XKB_KEYMAP_COMPILE_NO_FLAGS));
  }

  void fake(std::uint8_t type, xcb_keycode_t key, std::uint32_t delayMilliseconds) const {
    xcb_test_fake_input(connection.get(), type, key, delayMilliseconds, root, 0, 0, 0);
  }

  // Until the server has handled all requests, a request of another connection may overtake them.
  void finish() const {
    const Reply<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection.get(), xcb_get_input_focus(connection.get()), nullptr));
  }
};

std::unique_ptr<X11Keyboard> X11Keyboard::open() {
  auto state = std::make_unique<State>();
  int screen = 0;
  state->connection.reset(xcb_connect(nullptr, &screen));
  xcb_connection_t* connection = state->connection.get();
  if (xcb_connection_has_error(connection) != 0) return nullptr;
  const xcb_query_extension_reply_t* xtest = xcb_get_extension_data(connection, &xcb_test_id);
  if (xtest == nullptr || xtest->present == 0) return nullptr;
  if (xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
                                  XKB_X11_MIN_MINOR_XKB_VERSION,
                                  XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
                                  &state->xkbEventType, nullptr) == 0)
    return nullptr;
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screen > 0 && screens.rem > 0; --screen)
    xcb_screen_next(&screens);
  if (screens.rem == 0) return nullptr;
  state->root = screens.data->root;
  state->device = xkb_x11_get_core_keyboard_device_id(connection);
  state->context.reset(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
  if (state->device < 0 || state->context == nullptr) return nullptr;
  return std::unique_ptr<X11Keyboard>(new X11Keyboard(std::move(state)));
}

X11Keyboard::X11Keyboard(std::unique_ptr<State> state) : state_(std::move(state)) {}

X11Keyboard::~X11Keyboard() = default;

std::vector<xcb_keycode_t> X11Keyboard::heldKeys(xcb_keycode_t also) {
  xcb_connection_t* connection = state_->connection.get();
  const auto mappingCookie = xcb_get_modifier_mapping(connection);
  const auto keysCookie = xcb_query_keymap(connection);
  const Reply<xcb_get_modifier_mapping_reply_t> mapping(
      xcb_get_modifier_mapping_reply(connection, mappingCookie, nullptr));
  const Reply<xcb_query_keymap_reply_t> keys(
      xcb_query_keymap_reply(connection, keysCookie, nullptr));
  std::vector<xcb_keycode_t> held;
  if (mapping == nullptr || keys == nullptr) return held;
  const auto isDown = [&](xcb_keycode_t key) {
    return key != 0 && (keys->keys[key / 8] >> (key % 8) & 1) != 0;
  };
  const std::span modifiers(
      xcb_get_modifier_mapping_keycodes(mapping.get()),
      static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(mapping.get())));
  for (const xcb_keycode_t key : modifiers)
    if (isDown(key) && std::ranges::find(held, key) == held.end()) held.push_back(key);
  if (isDown(also)) held.push_back(also);
  return held;
}

void X11Keyboard::release(std::span<const xcb_keycode_t> keys) {
  for (const xcb_keycode_t key : keys)
    state_->fake(XCB_KEY_RELEASE, key, 0);
  state_->finish();
}

void X11Keyboard::tap(std::span<const xcb_keycode_t> keys) {
  for (const xcb_keycode_t key : keys)
    state_->fake(XCB_KEY_PRESS, key, 0);
  std::uint32_t delay = holdMilliseconds;
  for (std::size_t i = keys.size(); i > 0; --i) {
    state_->fake(XCB_KEY_RELEASE, keys[i - 1], delay);
    delay = 0;
  }
  xcb_flush(state_->connection.get());
}

struct X11Keyboard::Layout::Map {
  Keymap keymap;
  xkb_layout_index_t inUse;
  Reply<xcb_get_modifier_mapping_reply_t> modifiers;  // null when the server did not answer
};

X11Keyboard::Layout X11Keyboard::layout() {
  Layout layout;
  xcb_connection_t* connection = state_->connection.get();
  const auto modifiersCookie = xcb_get_modifier_mapping(connection);
  Keymap keymap = state_->keymap();
  Reply<xcb_get_modifier_mapping_reply_t> modifiers(
      xcb_get_modifier_mapping_reply(connection, modifiersCookie, nullptr));
  if (keymap == nullptr) return layout;
  const KeymapState now(xkb_x11_state_new_from_device(keymap.get(), connection, state_->device));
  const xkb_layout_index_t inUse =
      now == nullptr ? 0 : xkb_state_serialize_layout(now.get(), XKB_STATE_LAYOUT_EFFECTIVE);
  layout.map_ = std::make_shared<const Layout::Map>(
      Layout::Map{.keymap = std::move(keymap), .inUse = inUse, .modifiers = std::move(modifiers)});
  return layout;
}

xcb_keycode_t X11Keyboard::Layout::keyFor(Keysym symbol) const {
  if (map_ == nullptr) return usualKeyOf(symbol);
  xkb_keymap* const keymap = map_->keymap.get();
  if (const xcb_keycode_t key = keyInLayout(keymap, map_->inUse, symbol); key != 0) return key;
  for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap); ++layout)
    if (const xcb_keycode_t key = keyInLayout(keymap, layout, symbol); key != 0) return key;
  return usualKeyOf(symbol);
}

std::uint16_t X11Keyboard::Layout::modifierMaskOf(Keysym symbol) const {
  if (map_ == nullptr || map_->modifiers == nullptr) return 0;
  xcb_get_modifier_mapping_reply_t* const modifiers = map_->modifiers.get();
  const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(modifiers);
  for (int modifier = 0; modifier < 8; ++modifier)
    for (int i = 0; i < modifiers->keycodes_per_modifier; ++i) {
      const xcb_keycode_t key = keys[modifier * modifiers->keycodes_per_modifier + i];
      if (key != 0 && givesSymbol(map_->keymap.get(), key, 0, symbol))
        return static_cast<std::uint16_t>(1U << modifier);
    }
  return 0;
}

std::uint8_t X11Keyboard::xkbEventType() const {
  return state_->xkbEventType;
}

}  // namespace quillseal::linux
