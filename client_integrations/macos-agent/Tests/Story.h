#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "FakeDesktop.h"
#include "Quillseal/AppDelegate.h"
#include "Quillseal/CryptoManager.h"
#include "Quillseal/SigningCoordinator.h"

namespace quillseal {

inline const std::string text =
    "I met Grace on Tuesday and we agreed to print 40 posters for the fair in June together.";
inline const std::string subject = "“I met Grace on Tuesday and we agreed to print 40…” (18 words)";
inline const std::string digest = CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
inline const std::string notification =
    "notify: ✅ Signature Generated! | Signed content copied and injected.";

inline const desktop::RunningApplication mail{.instance = 1,
                                              .name = "Mail",
                                              .bundleIdentifier = "com.apple.mail",
                                              .categories = "",
                                              .document = ""};
inline const desktop::RunningApplication chromeRunning{.instance = 2,
                                                       .name = "Google Chrome",
                                                       .bundleIdentifier = "com.google.Chrome",
                                                       .categories = "",
                                                       .document = ""};
inline const desktop::InstalledApplication chromeInstalled{.location = "Chrome.app",
                                                           .bundleIdentifier = "com.google.Chrome"};

/// A user with a text in a mail program, and the agent.
struct Story : testing::FakeDesktop {
  Story() {
    applications.front = applications.active = mail;
    keys.selection = testing::Copy{.text = "\n" + text + "\n", .html = {}};
    applications.defaultBrowser = chromeInstalled;
  }
  void sign() {
    coordinator->startSigning();
    loop.run();
  }
  void inBrowser() {
    keyStore.hasKey = false;
    defaults.strings["SigningMode"] = "handoff";
  }
  [[nodiscard]] bool wroteBlock() const {
    return pasteboard.clipboard.text && pasteboard.clipboard.text->starts_with("『");
  }
  [[nodiscard]] std::ptrdiff_t count(const std::string& start) const {
    return std::ranges::count_if(trace,
                                 [&](const std::string& line) { return line.starts_with(start); });
  }
  std::optional<SigningCoordinator> coordinator{std::in_place, services()};
  std::optional<AppDelegate> app;      ///< the whole agent, once it is launched
  TaskScope enrolments;                ///< by the coordinator
  std::vector<desktop::Ticket> later;  ///< of what happens meanwhile
};

/// Does or sets what a line of signing-stories.txt says.
void goOn(Story& story, const std::string& line);

}  // namespace quillseal
