#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TemporaryFolder.h"

namespace quillseal::testing {

/// What a program does when a format that it offers is requested.
enum class Answer {
  all,         ///< writes the text and ends
  nothing,     ///< neither writes nor ends
  part,        ///< writes the text and does not end
  thenLeaves,  ///< writes the text and ends, with its offer
  endless,     ///< writes the text again and again
  onlyOnce,    ///< as `all` for the format that is requested first, then as `part`
};

struct Offered {
  std::map<std::string, std::string> formats;
  Answer answer = Answer::all;
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

  /// Another program copies; selects.
  void copy(const Offered& offered);
  void select(const Offered& offered);
  /// Clears the clipboard.
  void clear();

  /// Returns what a program gets that pastes the current clipboard.
  [[nodiscard]] std::string pasted(const std::string& format);

  /// Changes the layout of the user's keyboard.
  void setLayout(const std::string& layout);

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
