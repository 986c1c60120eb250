#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "TemporaryFolder.h"

namespace quillseal::testing {

/// What another program offers, and what it does when one of the formats is requested: "all" writes
/// the text and ends, "nothing" neither writes nor ends, "part" writes and does not end,
/// "thenLeaves" writes and ends with its offer, "endless" writes again and again, and "onlyOnce" is
/// "all" for the format that is requested first, then "part".
struct Offered {
  std::map<std::string, std::string> formats;
  std::string answer = "all";
};

/// A fake Wayland compositor with the protocols that the agent uses, on its own thread. While it
/// lives, WAYLAND_DISPLAY names it. Every function returns when its action is done.
class ScriptedCompositor {
 public:
  struct Traits {
    /// Uses KWin's protocols for windows and keys instead of wlroots's.
    bool isKwin = false;
    std::string dataControl = "zwlr_data_control_manager_v1";
    bool hasKeyboards = true;  ///< for programs
    int fakeInputVersion = 4;  ///< of KWin's
    bool namesWindows = true;
    std::string layout{};         ///< keymap of the user's keyboard; no keyboard when empty
    bool takesSelections = true;  ///< otherwise it cancels them at once
  };

  ScriptedCompositor() : ScriptedCompositor(Traits()) {}
  explicit ScriptedCompositor(Traits traits);
  ~ScriptedCompositor();
  ScriptedCompositor(const ScriptedCompositor&) = delete;
  ScriptedCompositor& operator=(const ScriptedCompositor&) = delete;

  struct Window {
    std::string applicationId;
    std::string title;
  };
  /// Opens a window and activates it. Returns its index among all opened windows.
  std::size_t open(const Window& window);
  void close(std::size_t window);
  void retitle(std::size_t window, const std::string& title);
  /// Activates a window; none if there is no window with this index.
  void makeActive(std::size_t window);

  /// Another program copies or selects; nothing clears the clipboard or the selection.
  enum Kind { clipboard, primary };
  void offer(Kind kind, const std::optional<Offered>& what);

  /// Returns what a program gets that pastes the current clipboard.
  [[nodiscard]] std::string pasted(const std::string& format);

  /// Changes the layout of the user's keyboard.
  void setLayout(const std::string& layout);

  /// Takes an interface away, and finishes its objects where the protocol has an event for that.
  void withdraw(std::string_view interface);
  /// Stops answering all clients for good.
  void hang();

  /// "29+", "46+", "46-": evdev keys pressed and released; "mods 4".
  [[nodiscard]] std::vector<std::string> keys();
  /// Returns the requested formats, in order.
  [[nodiscard]] std::vector<std::string> asked();

 private:
  struct Server;
  void perform(std::function<void(Server&)> work);

  TemporaryFolder folder_;
  std::unique_ptr<Server> server_;
};

}  // namespace quillseal::testing
