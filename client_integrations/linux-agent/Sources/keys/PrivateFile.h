#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// One small file that only this user may read (0600) in a folder that only this user may enter
/// (0700). Links are never followed in the last two components of the path: a file that somebody
/// else put there is reported, not used. Holds a path and nothing else.
class PrivateFile {
 public:
  /// `path` is absolute and has a folder of its own.
  explicit PrivateFile(std::filesystem::path path);

  [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

  /// Whether anything of that name is there, readable or not.
  [[nodiscard]] bool exists() const noexcept;

  /// The contents; nothing when no such file exists. Throws KeyFailure when there is one but it
  /// cannot be trusted or read, or has more than 64 KiB.
  [[nodiscard]] std::optional<std::string> read() const;

  /// Throws KeyFailure when `replace` could not work; creates the folders it needs.
  void requireWritable() const;

  /// Puts `contents` in the place of whatever is there, creating folders as needed. On return they
  /// are on the disk; after a failure or a crash the earlier contents are still there, whole.
  /// Throws KeyFailure.
  void replace(std::string_view contents) const;

  /// Deletes the file, or the link of that name. Harmless when there is none.
  void remove() const noexcept;

 private:
  std::filesystem::path path_;
};

}  // namespace quillseal::linux
