#pragma once

#include "desktop/Log.h"

namespace quillseal::linux {

/// Logs to the journal, or to syslog where there is none. Echoed lines that would block are
/// dropped.
class JournalLog : public desktop::Log {
 public:
  enum class Echo { none, standardError };

  explicit JournalLog(Echo echo) : echo_(echo) {}

  void write(std::string_view line) override;

 private:
  Echo echo_;
};

}  // namespace quillseal::linux
