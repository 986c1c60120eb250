#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace quillseal::linux {

/// Turns the signals by which a session or a person ends a program (SIGHUP, SIGINT, SIGTERM) into
/// a call on the main loop. One at a time, on the main thread.
class TerminationSignals {
 public:
  explicit TerminationSignals(std::function<void()> terminate);
  ~TerminationSignals();
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quillseal::linux
