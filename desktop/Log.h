#pragma once

#include <string_view>

namespace quillseal::desktop {

/// The system's log. Any thread.
class Log {
 public:
  virtual ~Log() = default;

  /// Writes one line. Control characters in it are escaped by the adapter.
  virtual void write(std::string_view line) = 0;
};

}  // namespace quillseal::desktop
