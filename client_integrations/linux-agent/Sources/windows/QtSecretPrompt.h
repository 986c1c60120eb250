#pragma once

#include <list>
#include <memory>
#include <mutex>

#include "desktop/MainLoop.h"
#include "keys/SecretPrompt.h"
#include "session/QtText.h"
#include "windows/OwnWindows.h"

namespace quillseal::linux {

/// Asks for PINs and passphrases in Qt dialogs. The typed text is only in memory that is wiped,
/// never in a widget.
class QtSecretPrompt : public SecretPrompt {
 public:
  QtSecretPrompt(desktop::MainLoop& loop, const OwnWindows& windows);
  ~QtSecretPrompt() override;

  [[nodiscard]] std::optional<SecretBytes> ask(const SecretRequest& request) override;
  [[nodiscard]] std::optional<SecretBytes> askForNew(const NewSecretRequest& request) override;

  /// Cancels every open and every later question. Main thread, when the agent ends.
  void close();

 private:
  class Pending;
  using Show = std::function<desktop::Ticket(const std::shared_ptr<Pending>&)>;

  [[nodiscard]] std::optional<SecretBytes> wait(Show show);

  desktop::MainLoop& loop_;
  const OwnWindows& windows_;
  std::mutex mutex_;  // guards the two members below
  std::list<std::shared_ptr<Pending>> pending_;
  bool closed_ = false;
};

}  // namespace quillseal::linux
