#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "core/signing/SigningScope.h"
#include "core/tasks/Task.h"
#include "desktop/Applications.h"
#include "desktop/KeyEvents.h"
#include "desktop/Log.h"
#include "desktop/MainLoop.h"
#include "desktop/Pasteboard.h"

namespace quillseal {

/// Fetches the RTF of a copy, bytes as offered, when it is asked for: a word processor may take
/// seconds to write it, and a signed block is pasted as plain text or HTML. Gives nothing when none
/// is offered, or once the clipboard has changed. REQUIRES: pasteboard and main loop still exist.
using RtfData = std::function<Task<std::optional<std::string>>()>;

/// A selection with the application it was made in. All texts are well-formed UTF-8.
struct CapturedContent {
  std::string plainText;  ///< as copied, not trimmed
  std::optional<std::string> htmlContent;
  RtfData rtfData;
  std::string sourceApp;  ///< display name
  std::string scope;      ///< the medium
  std::optional<desktop::RunningApplication> sourceApplication;
};

/// Takes the text that the user has selected in whatever application is in front, by having that
/// application copy it. What was on the clipboard before is lost.
namespace AccessibilityManager {

struct Services {
  desktop::Applications& applications;
  desktop::KeyEvents& keys;
  desktop::Log& log;
  desktop::MainLoop& loop;
  desktop::Pasteboard& pasteboard;
};

/// Name and medium of an application; without one, those of the desktop itself.
[[nodiscard]] SigningScope::AppScope detectAppScope(
    const std::optional<desktop::RunningApplication>& application);

/// How long an application may take to come to the front before keys are pressed in it.
constexpr std::chrono::milliseconds activationTime{350};

/// Presses and releases a key in `target`, as `KeyEvents::press` does.
[[nodiscard]] Task<desktop::Delivery> press(
    desktop::KeyEvents& keys, desktop::KeyPress press,
    const std::optional<desktop::RunningApplication>& target);

enum class CopyOutcome {
  copied,
  unchanged,        ///< the clipboard did not change within 1.2 s
  noText,           ///< it holds no text, or only white space
  unreadable,       ///< the system may have kept this program from reading it
  secret,           ///< it was marked as a secret
  declined,         ///< no key was pressed: another window than the source would have got it
  keyboardTaken,    ///< no key was pressed: something else has the keyboard, as a menu may
  keysHeld,         ///< no key was pressed: the keys of the hotkey were held for too long
  notAllowed,       ///< no key was pressed: the desktop does not let it, as the user has been told
  documentChanged,  ///< no key was pressed: the source shows another document
  sourceClosed,     ///< no key was pressed: the source has ended
};

/// One copy from an application; the texts of one that failed are empty.
struct Copy {
  CopyOutcome outcome = CopyOutcome::unchanged;
  std::string plainText;
  std::optional<std::string> html;
  RtfData rtf;
};

/// Has `source` copy its selection.
[[nodiscard]] Task<Copy> copySelection(Services services,
                                       const std::optional<desktop::RunningApplication>& source);

/// What a capture yielded.
struct Capture {
  CopyOutcome outcome = CopyOutcome::unchanged;
  std::optional<CapturedContent> content;  ///< when something was copied
};

/// Captures the selection of the front application, or all of its text when nothing is selected.
/// When a window of this program is focused, the application behind it is activated first, so that
/// the reported source is the application that copies. Keys are pressed in no other application,
/// and all text is selected only after a copy that is known to have given none.
[[nodiscard]] Task<Capture> captureSelectedContent(Services services);

}  // namespace AccessibilityManager

}  // namespace quillseal
