#include "LinuxDesktop/XTestKeyEvents.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "LinuxDesktop/KeyChords.h"

namespace quillseal {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds releasePatience{400};
constexpr milliseconds releasePolling{8};
// LibreOffice Writer pastes its own earlier copy when the key follows the clipboard more closely.
constexpr milliseconds clipboardPropagation{150};

}  // namespace

XTestKeyEvents::XTestKeyEvents(Services services) : services_(std::move(services)) {}

bool XTestKeyEvents::isTrusted() const {
  return services_.keyboard != nullptr;
}

void XTestKeyEvents::askForTrust() {
  services_.explain();
}

// Waits in turns of the main loop: the clipboard and the hotkey are served meanwhile.
desktop::Ticket XTestKeyEvents::press(desktop::KeyPress press,
                                      const std::optional<desktop::RunningApplication>& /*target*/,
                                      std::function<void(desktop::Delivery)> done) {
  struct Wait {
    desktop::MainLoop::TimePoint earliest;
    desktop::MainLoop::TimePoint latest;
    desktop::Ticket timer;  // and then what is read of a selection
    std::function<void()> step;
  };
  if (!isTrusted()) {
    done(desktop::Delivery::delivered);
    return {};
  }
  // Without the entries nobody can tell which keys to press. A failure reaches the caller from
  // here, but not from a turn of the loop.
  static_cast<void>(services_.entries.withId({}));
  desktop::MainLoop& loop = services_.loop;
  const auto wait = std::make_shared<Wait>();
  wait->earliest = services_.pasteboard.lastWrite() + clipboardPropagation;
  wait->latest = std::max(loop.now() + releasePatience, wait->earliest);
  // Only the ticket owns `wait`: dropped, it takes the timer with it.
  const X11Keyboard::Layout layout = services_.keyboard->layout();
  wait->step = [this, press, layout, done = std::move(done), weak = std::weak_ptr(wait)] {
    const auto self = weak.lock();
    const auto now = services_.loop.now();
    if (now < self->earliest) {
      self->timer =
          services_.loop.after(std::chrono::ceil<milliseconds>(self->earliest - now), self->step);
      return;
    }
    const bool keysDown = !services_.keyboard->heldKeys(layout.keyFor(XKB_KEY_h)).empty();
    if (keysDown && now < self->latest) {
      self->timer = services_.loop.after(releasePolling, self->step);
      return;
    }
    self->timer = exchangeSelections(press, [this, press, layout, done] {
      tap(press, layout);
      done(desktop::Delivery::delivered);
    });
  };
  wait->timer = loop.after(milliseconds{0}, wait->step);
  return desktop::Ticket([wait] { wait->timer = {}; });
}

desktop::Ticket XTestKeyEvents::exchangeSelections(desktop::KeyPress press,
                                                   std::function<void()> done) {
  const xcb_window_t window = services_.windows.activeWindow();
  if (copiesBySelecting(services_.windows.traitsOf(window).windowClass)) {
    if (press.key == desktop::Key::c && services_.windows.hasPrimarySelection(window))
      return services_.pasteboard.copyPrimarySelection(std::move(done));
    if (press.key == desktop::Key::v)
      return services_.pasteboard.offerAsPrimarySelection(std::move(done));
  }
  done();
  return {};
}

void XTestKeyEvents::tap(desktop::KeyPress press, const X11Keyboard::Layout& layout) {
  X11Keyboard& keyboard = *services_.keyboard;
  const WindowTraits traits = services_.windows.traitsOf(services_.windows.activeWindow());
  const auto entry = services_.entries.forWindow(traits);
  const std::vector<Keysym> chord =
      chordFor(press, entry ? entry->categories : std::string(), traits.windowClass);
  std::vector<xcb_keycode_t> keys;
  keys.reserve(chord.size());
  for (const Keysym symbol : chord)
    keys.push_back(layout.keyFor(symbol));
  if (keys.empty() || std::ranges::find(keys, 0) != keys.end()) return;
  keyboard.release(keyboard.heldKeys(layout.keyFor(XKB_KEY_h)));
  services_.windows.releaseKeyboard();
  keyboard.tap(keys);
}

}  // namespace quillseal
