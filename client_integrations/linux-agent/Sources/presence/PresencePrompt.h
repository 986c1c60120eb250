#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What the person is asked to prove their presence for.
struct PresenceRequest {
  std::string reason;       ///< "Sign “…” (12 words)"
  std::string medium;       ///< where the text is going; may be empty
  std::string instruction;  ///< what to do, a sentence
  bool needsConsent;        ///< with a button to go on; without it the window only waits
};

/// A window of ours that says why presence is asked for: the system's own prompts cannot.
/// Destroying it closes it without a call. Main thread.
class PresenceWindow {
 public:
  PresenceWindow() = default;
  PresenceWindow(const PresenceWindow&) = delete;
  PresenceWindow& operator=(const PresenceWindow&) = delete;
  virtual ~PresenceWindow() = default;

  virtual void setInstruction(std::string_view instruction) = 0;
};

/// Shows such windows, in front of all others.
class PresencePrompt {
 public:
  PresencePrompt() = default;
  PresencePrompt(const PresencePrompt&) = delete;
  PresencePrompt& operator=(const PresencePrompt&) = delete;
  virtual ~PresencePrompt() = default;

  /// `answered` is called once, later, on the main thread: with true when the person goes on, with
  /// false when they cancel or close the window. It may destroy the window.
  [[nodiscard]] virtual std::unique_ptr<PresenceWindow> open(
      const PresenceRequest& request, std::function<void(bool)> answered) = 0;
};

}  // namespace quillseal::linux
