#include "wayland/WaylandLayout.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

#include "core/text/UniqueHandle.h"
#include "session/FileDescriptor.h"
#include "wayland/WaylandKeyboard.h"

namespace quillseal::linux {
namespace {

using Context = UniqueHandle<xkb_context, xkb_context_unref>;
using Keymap = UniqueHandle<xkb_keymap, xkb_keymap_unref>;

/// A file mapped into memory. `text` is null when that fails.
class Mapping {
 public:
  Mapping(int file, std::size_t size)
      : address_(::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0)), size_(size) {}
  ~Mapping() {
    if (address_ != MAP_FAILED) ::munmap(address_, size_);
  }
  Mapping(const Mapping&) = delete;
  Mapping& operator=(const Mapping&) = delete;

  [[nodiscard]] const char* text() const {
    return address_ == MAP_FAILED ? nullptr : static_cast<const char*>(address_);
  }

 private:
  void* address_;
  std::size_t size_;
};

std::string textOf(int file, std::uint32_t size) {
  const Mapping mapping(file, size);
  const char* const text = mapping.text();
  return text == nullptr ? std::string() : std::string(text, ::strnlen(text, size));
}

}  // namespace

struct WaylandLayout::State {
  std::function<void()> changed;
  UniqueHandle<wl_seat, wl_seat_destroy> seat{};
  UniqueHandle<wl_keyboard, wl_keyboard_destroy> keyboard{};
  std::string text{};

  void take(std::string layout) {
    // The compositor sends the keymap of the keyboard that was used last, which may be the agent's
    // own.
    if (layout.empty() || layout == text || WaylandKeyboard::isOwnLayout(layout)) return;
    text = std::move(layout);
    changed();
  }

  static void capabilitiesReported(void* data, wl_seat* seat, std::uint32_t capabilities) {
    auto& state = *static_cast<State*>(data);
    if ((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) == 0 || state.keyboard != nullptr) return;
    state.keyboard.reset(wl_seat_get_keyboard(seat));
    wl_keyboard_add_listener(state.keyboard.get(), &ofKeyboard, &state);
  }
  static constexpr wl_seat_listener ofSeat = {.capabilities = capabilitiesReported,
                                              .name = [](void*, wl_seat*, const char*) {}};

  static void keymapReported(void* data, wl_keyboard* /*keyboard*/, std::uint32_t format,
                             std::int32_t file, std::uint32_t size) {
    const FileDescriptor owner(file);
    std::string layout =
        format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1 ? textOf(file, size) : std::string();
    static_cast<State*>(data)->take(std::move(layout));
  }
  // No key events arrive: this connection has no window.
  static constexpr wl_keyboard_listener ofKeyboard = {
      .keymap = keymapReported,
      .enter = [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
      .leave = [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
      .key = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
      .modifiers = [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t,
                      std::uint32_t, std::uint32_t) {},
      .repeat_info = [](void*, wl_keyboard*, std::int32_t, std::int32_t) {}};
};

WaylandLayout::WaylandLayout(WaylandConnection& connection, std::function<void()> changed)
    : state_(new State{.changed = std::move(changed)}) {
  constexpr std::uint32_t withRepeatInfo = 4;
  state_->seat.reset(connection.bind<wl_seat>(wl_seat_interface, withRepeatInfo));
  if (state_->seat != nullptr)
    wl_seat_add_listener(state_->seat.get(), &State::ofSeat, state_.get());
}

WaylandLayout::~WaylandLayout() = default;

std::optional<std::uint32_t> WaylandLayout::keyFor(Keysym symbol) const {
  const auto keys = keysFor(symbol);
  const auto first = std::ranges::find_if(keys, [](const auto& key) { return key.has_value(); });
  return first == keys.end() ? std::nullopt : *first;
}

std::vector<std::optional<std::uint32_t>> WaylandLayout::keysFor(Keysym symbol) const {
  const Context context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
  const Keymap keymap(xkb_keymap_new_from_string(
      context.get(), state_->text.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
  if (keymap == nullptr) return {};
  const auto keyIn = [&](xkb_layout_index_t layout) -> std::optional<std::uint32_t> {
    for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap.get());
         key <= xkb_keymap_max_keycode(keymap.get()); ++key) {
      const xkb_keysym_t* symbols = nullptr;
      const int count = xkb_keymap_key_get_syms_by_level(keymap.get(), key, layout, 0, &symbols);
      if (count == 1 && *symbols == symbol) return key;
    }
    return std::nullopt;
  };
  std::vector<std::optional<std::uint32_t>> keys;
  for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap.get()); ++layout)
    keys.push_back(keyIn(layout));
  return keys;
}

}  // namespace quillseal::linux
