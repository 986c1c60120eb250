#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// A local page that redirects the browser to a URL: a file that only this user may read, deleted
/// with this object. All users of the computer can read command lines; the address of this page
/// reveals nothing.
class RedirectPage {
 public:
  /// `url` holds only what RFC 3986 allows in a URL, `folder` is this user's alone. Deletes pages
  /// there that a killed agent left behind. Throws std::runtime_error with a sentence when the file
  /// cannot be written.
  RedirectPage(std::string_view url, const std::filesystem::path& folder);
  ~RedirectPage();
  RedirectPage(RedirectPage&& other) noexcept;
  RedirectPage& operator=(RedirectPage&&) = delete;
  RedirectPage(const RedirectPage&) = delete;
  RedirectPage& operator=(const RedirectPage&) = delete;

  /// How long a page is kept; the browser may have to start first.
  static constexpr std::chrono::minutes life{2};

  /// The URL to open in the browser.
  [[nodiscard]] std::string address() const { return "file://" + path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace quillseal::linux
