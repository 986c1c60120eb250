#pragma once

#include "desktop/Log.h"

namespace quillseal::mac {

/// The unified system log. Read with: log show --predicate 'subsystem == "ai.kestle.quillseal"'.
class MacLog final : public desktop::Log {
 public:
  void write(std::string_view line) override;
};

}  // namespace quillseal::mac
