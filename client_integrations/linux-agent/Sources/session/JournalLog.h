#pragma once

#include "desktop/Log.h"

namespace quillseal::linux {

/// Writes to the journal, or to syslog where no journal runs. Echoed lines that would block are
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
