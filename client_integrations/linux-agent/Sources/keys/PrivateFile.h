#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// One small file that only this user may read (0600) in a folder that only this user may enter
/// (0700). Links in the last two components of the path are never followed, and a file of another
/// user is reported, not used. Holds only the path.
class PrivateFile {
 public:
  /// `path` is absolute and has a folder of its own.
  explicit PrivateFile(std::filesystem::path path);

  [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

  /// Returns whether anything of that name exists, readable or not.
  [[nodiscard]] bool exists() const noexcept;

  /// Returns the contents; nothing when the file does not exist. Throws KeyFailure when it cannot
  /// be trusted or read, or has more than 64 KiB.
  [[nodiscard]] std::optional<std::string> read() const;

  /// Throws KeyFailure when `replace` would fail; creates the folders it needs.
  void requireWritable() const;

  /// Replaces the file's contents atomically, creating folders as needed. On return they are on the
  /// disk; after a failure or a crash the earlier contents are intact. Throws KeyFailure.
  void replace(std::string_view contents) const;

  /// Deletes the file, or the link of that name. Does nothing when there is none.
  void remove() const noexcept;

 private:
  std::filesystem::path path_;
};

}  // namespace quillseal::linux
