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

/// What a program does when another one asks for a format that it offers.
enum class Answer {
  all,         ///< writes the text and ends
  nothing,     ///< neither writes nor ends
  part,        ///< writes the text and does not end
  thenLeaves,  ///< writes the text, and is gone, with what it offered
  endless,     ///< writes the text again and again
};

struct Offered {
  std::map<std::string, std::string> formats;
  Answer answer = Answer::all;
};

/// A Wayland compositor without a display, on a thread of its own, as far as the agent sees one. It
/// is the one that WAYLAND_DISPLAY names while it lives. Every function returns when it has been
/// done.
class ScriptedCompositor {
 public:
  struct Traits {
    /// Names windows and takes keys by the protocols of KWin, else by those of wlroots.
    bool isKwin = false;
    std::string dataControl = "zwlr_data_control_manager_v1";
    bool hasKeyboards = true;  ///< for programs
    bool namesWindows = true;
    std::string layout{};         ///< text of the person's; no keyboard when empty
    bool takesSelections = true;  ///< else it cancels them at once
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
  /// Opens a window and makes it the active one; gives its place among all that were opened.
  std::size_t open(const Window& window);
  void close(std::size_t window);
  void retitle(std::size_t window, const std::string& title);
  /// None when it is not the place of a window.
  void makeActive(std::size_t window);

  /// Another program copies; selects.
  void copy(const Offered& offered);
  void select(const Offered& offered);
  /// What was copied is gone.
  void clear();

  /// What a program gets that pastes from the one that has set the clipboard last.
  [[nodiscard]] std::string pasted(const std::string& format);

  /// The person chooses another layout for the keyboard that they have.
  void setLayout(const std::string& layout);

  void withdraw(std::string_view interface);
  /// Answers nobody until the end.
  void hang();

  /// "29+", "46+", "46-": keys of evdev that were pressed and let go; "mods 4".
  [[nodiscard]] std::vector<std::string> keys();
  /// The formats that were asked for, in order.
  [[nodiscard]] std::vector<std::string> asked();

 private:
  struct Server;
  void perform(std::function<void(Server&)> work);

  TemporaryFolder folder_;
  std::unique_ptr<Server> server_;
};

}  // namespace quillseal::testing
