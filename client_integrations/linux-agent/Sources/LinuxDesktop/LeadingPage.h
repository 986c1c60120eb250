#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillseal {

/// A page on this computer that leads the browser which opens it on to another address: a file that
/// only this user may read, deleted at the end of this object's life.
class LeadingPage {
 public:
  /// `url` holds only what RFC 3986 allows in a URL. Throws std::runtime_error with a sentence when
  /// there is no folder of this user alone, or the file cannot be written.
  explicit LeadingPage(std::string_view url);
  ~LeadingPage();
  LeadingPage(LeadingPage&& other) noexcept;
  LeadingPage& operator=(LeadingPage&&) = delete;
  LeadingPage(const LeadingPage&) = delete;
  LeadingPage& operator=(const LeadingPage&) = delete;

  /// As a browser opens it.
  [[nodiscard]] std::string address() const { return "file://" + path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace quillseal
