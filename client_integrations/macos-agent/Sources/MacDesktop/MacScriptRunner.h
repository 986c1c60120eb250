#pragma once

#import <dispatch/dispatch.h>

#include "Desktop/MainLoop.h"
#include "Desktop/ScriptRunner.h"

namespace quillseal::mac {

/// AppleScript on a serial queue of its own.
class MacScriptRunner final : public desktop::ScriptRunner {
 public:
  /// `loop` outlives this object and its scripts.
  explicit MacScriptRunner(desktop::MainLoop& loop);

  [[nodiscard]] desktop::Ticket run(
      const std::string& source,
      std::function<void(Outcome<std::optional<std::string>>)> done) override;

 private:
  desktop::MainLoop& loop_;
  dispatch_queue_t queue_;
};

}  // namespace quillseal::mac
