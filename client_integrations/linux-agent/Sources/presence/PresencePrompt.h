#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What a presence prompt shows.
struct PresenceRequest {
  std::string reason;       ///< "Sign “…” (12 words)"
  std::string medium;       ///< the application that gets the text; may be empty
  std::string instruction;  ///< what to do, a sentence
  bool needsConsent;        ///< with a button to continue; without it the window only waits
};

/// A window of the agent that says why presence is checked, which the system's prompts cannot show.
/// Destroying it closes the window without a callback. Main thread.
class PresenceWindow {
 public:
  PresenceWindow() = default;
  PresenceWindow(const PresenceWindow&) = delete;
  PresenceWindow& operator=(const PresenceWindow&) = delete;
  virtual ~PresenceWindow() = default;

  virtual void setInstruction(std::string_view instruction) = 0;
};

/// Opens such windows in front of all others.
class PresencePrompt {
 public:
  PresencePrompt() = default;
  PresencePrompt(const PresencePrompt&) = delete;
  PresencePrompt& operator=(const PresencePrompt&) = delete;
  virtual ~PresencePrompt() = default;

  /// `answered` is called once, later, on the main thread: with true when the user continues, with
  /// false when they cancel or close the window. It may destroy the window.
  [[nodiscard]] virtual std::unique_ptr<PresenceWindow> open(
      const PresenceRequest& request, std::function<void(bool)> answered) = 0;
};

}  // namespace quillseal::linux
