#pragma once

#include "MacDesktop/MacMainLoop.h"
#include "desktop/ScriptRunner.h"

namespace quillseal::mac {

/// Runs AppleScript on the main thread, as Foundation requires. An application that does not answer
/// blocks it for at most `longestWait`; then the script fails.
class MacScriptRunner final : public desktop::ScriptRunner {
 public:
  static constexpr int longestWait = 5;  ///< for each answer of an application, in seconds

  explicit MacScriptRunner(const MacMainLoop& loop) : poster_(loop.poster()) {}

  [[nodiscard]] desktop::Ticket run(
      const std::string& source,
      std::function<void(Outcome<std::optional<std::string>>)> done) override;

 private:
  MacMainLoop::Poster poster_;
};

}  // namespace quillseal::mac
