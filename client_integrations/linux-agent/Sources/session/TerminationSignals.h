#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// Turns SIGHUP, SIGINT and SIGTERM into a callback in the main loop. One object at a time, on the
/// main thread.
class TerminationSignals {
 public:
  explicit TerminationSignals(std::function<void()> terminate);
  ~TerminationSignals();
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;

 private:
  FileDescriptor event_;  ///< written by the signal handler
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quillseal::linux
