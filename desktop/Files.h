#pragma once

#include <string>
#include <string_view>

namespace quillseal::desktop {

/// The few files the agent writes. Main thread.
class Files {
 public:
  virtual ~Files() = default;

  /// Without a slash at its end.
  [[nodiscard]] virtual std::string homeDirectory() const = 0;

  /// Replaces the file at `path` by one with these contents, atomically, readable by its owner
  /// only; missing folders are made. Whether it worked.
  virtual bool replace(const std::string& path, std::string_view contents) = 0;
};

}  // namespace quillseal::desktop
