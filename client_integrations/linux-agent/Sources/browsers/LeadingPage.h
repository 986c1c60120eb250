#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// A page on this computer that leads the browser which opens it on to another address: a file that
/// only this user may read, deleted at the end of this object's life. Command lines are open to all
/// users of the computer; the page's address says nothing.
class LeadingPage {
 public:
  /// `url` holds only what RFC 3986 allows in a URL, `folder` is this user's alone. Deletes the
  /// pages there that an agent has left behind that was killed. Throws std::runtime_error with a
  /// sentence when the file cannot be written.
  LeadingPage(std::string_view url, const std::filesystem::path& folder);
  ~LeadingPage();
  LeadingPage(LeadingPage&& other) noexcept;
  LeadingPage& operator=(LeadingPage&&) = delete;
  LeadingPage(const LeadingPage&) = delete;
  LeadingPage& operator=(const LeadingPage&) = delete;

  /// How long a page is there for a browser that has to start first.
  static constexpr std::chrono::minutes life{2};

  /// As a browser opens it.
  [[nodiscard]] std::string address() const { return "file://" + path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace quillseal::linux
