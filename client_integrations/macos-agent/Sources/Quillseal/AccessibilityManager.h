#pragma once

#include <optional>
#include <string>

#include "Desktop/Applications.h"
#include "Desktop/KeyEvents.h"
#include "Desktop/Log.h"
#include "Desktop/MainLoop.h"
#include "Desktop/Pasteboard.h"
#include "Quillseal/SigningScope.h"
#include "Quillseal/Task.h"

namespace quillseal {

/// A selection with the application it was made in. All texts are well-formed UTF-8.
struct CapturedContent {
  std::string plainText;  ///< as copied, not trimmed
  std::optional<std::string> htmlContent;
  std::optional<std::string> rtfData;  ///< bytes
  std::string sourceApp;               ///< display name
  std::string scope;                   ///< the medium
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

/// Presses and releases a key in `target`, or in whatever is in front without one.
[[nodiscard]] Task<desktop::Delivery> press(
    desktop::KeyEvents& keys, desktop::KeyPress press,
    const std::optional<desktop::RunningApplication>& target);

/// One copy from the front application.
struct Captured {
  std::string plainText;
  std::optional<std::string> html;
  std::optional<std::string> rtf;
};

/// Has the front application copy its selection. Nothing when the clipboard does not change within
/// 1.2 s, or holds no text, only white space or what is marked as a secret.
[[nodiscard]] Task<std::optional<Captured>> copySelection(Services services);

/// The selection of the front application; all of its text when nothing is selected. Nothing when
/// there is no text or the user has not allowed this program to press keys.
[[nodiscard]] Task<std::optional<CapturedContent>> captureSelectedContent(Services services);

}  // namespace AccessibilityManager

}  // namespace quillseal
