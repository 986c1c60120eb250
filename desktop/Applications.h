#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/text/Error.h"
#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// A running application, as it was when asked for. A plain value: the application may have ended.
struct RunningApplication {
  std::uint64_t instance = 0;       ///< identifies it to the adapter (a process, a window)
  std::optional<std::string> name;  ///< as the user knows it
  std::optional<std::string> bundleIdentifier;
  /// Words of the desktop about the kind of application ("Email", "WordProcessor"), empty where the
  /// desktop has none.
  std::string categories;
  /// What tells one document or tab of the application from another, such as a window's title;
  /// empty where the desktop does not say.
  std::string document;
};

/// An application that is installed.
struct InstalledApplication {
  std::string location;  ///< what the adapter opens it by: a bundle's or a desktop file's path
  std::optional<std::string> bundleIdentifier;
};

/// The applications of the user's session. Main thread.
class Applications {
 public:
  virtual ~Applications() = default;

  /// The application that has the keyboard; never this program's own windows, if another
  /// application was in front before them.
  [[nodiscard]] virtual std::optional<RunningApplication> frontmost() const = 0;

  [[nodiscard]] virtual bool isActive(const RunningApplication& application) const = 0;

  /// Asks for `application` to be brought to the front; nothing happens when it has ended.
  virtual void activate(const RunningApplication& application) = 0;

  /// Google Chrome, in which pages of the server are opened where it is installed.
  [[nodiscard]] virtual std::optional<InstalledApplication> preferredBrowser() const = 0;

  /// The application that opens `url` unless told otherwise.
  [[nodiscard]] virtual std::optional<InstalledApplication> defaultApplicationFor(
      const std::string& url) const = 0;

  /// Opens `url` with `application` and brings it to the front. `done` gets nothing, or why it
  /// could not be opened.
  [[nodiscard]] virtual Ticket open(const std::string& url, const InstalledApplication& application,
                                    std::function<void(std::optional<Error>)> done) = 0;

  /// Opens `url` as the desktop sees fit. Throws Error when it is known that nothing could be
  /// opened.
  virtual void open(const std::string& url) = 0;
};

}  // namespace quillseal::desktop
