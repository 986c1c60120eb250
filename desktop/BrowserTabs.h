#pragma once

#include <functional>
#include <optional>
#include <string>

#include "desktop/Ticket.h"

namespace quillseal::desktop {

/// The tabs that shall be closed, and the one that shall be shown instead.
struct TabReturn {
  std::string browser;      ///< bundle identifier
  std::string urlContains;  ///< never empty; marks the tabs to close
  std::optional<std::string> tab;
};

/// The tabs of the user's browsers. Main thread. A desktop whose browsers take scripts gets this
/// from `ScriptedBrowserTabs` and supplies a `ScriptRunner`.
class BrowserTabs {
 public:
  virtual ~BrowserTabs() = default;

  /// The identifier of the current tab of the front window of `browser`; nothing when the browser
  /// cannot be asked. Identifiers mean something only to `closeAndRestore`.
  [[nodiscard]] virtual Ticket currentTab(const std::string& browser,
                                          std::function<void(std::optional<std::string>)> done) = 0;

  /// Closes the tabs whose URL contains the given text, and brings the given tab and the browser to
  /// the front. `done` gets whether that was done.
  [[nodiscard]] virtual Ticket closeAndRestore(const TabReturn& request,
                                               std::function<void(bool)> done) = 0;
};

}  // namespace quillseal::desktop
