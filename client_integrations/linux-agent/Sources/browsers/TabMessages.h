#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

/// What the agent and the browser extension say to each other, through the relay: JSON objects,
/// each behind its length in four bytes of the machine's order, as browsers frame native messages
/// (https://developer.chrome.com/docs/extensions/develop/concepts/native-messaging).
namespace quillseal::linux::TabMessages {

/// No message is longer; browsers themselves would send up to 64 MiB.
inline constexpr std::size_t longestMessage = 4096;

/// The other side does not keep to the protocol; there is no use in listening on.
class ProtocolError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A message with its length. Throws ProtocolError when it is too long.
[[nodiscard]] std::string framed(std::string_view message);

/// Cuts a stream of bytes into messages.
class Deframer {
 public:
  void append(std::string_view bytes) { pending_ += bytes; }

  /// The next whole message. Throws ProtocolError when its announced length is 0 or too long,
  /// before any of it is waited for.
  [[nodiscard]] std::optional<std::string> next();

 private:
  std::string pending_;
};

/// Whether a text is "/handoff?h=" and a safe identifier (SignedBlock::isSafeIdentifier): tabs are
/// closed by such a mark only.
[[nodiscard]] bool isSigningPageMark(std::string_view text);

/// Which tab is current in the window that was looked at last?
struct CurrentTab {};

/// Close the tabs with the marked signing page; then show the tab.
struct CloseAndRestore {
  std::string urlContains;  ///< see `isSigningPageMark`
  std::optional<std::int64_t> tab;
};

struct Request {
  std::int64_t id = 0;  ///< the answer repeats it
  std::variant<CurrentTab, CloseAndRestore> operation;
};

struct TabShown {
  std::optional<std::int64_t> tab;
  std::int64_t focusedAt = 0;  ///< when a window last had the keyboard; milliseconds since 1970
};

struct TabsClosed {
  bool closed = false;    ///< at least one tab was
  bool restored = false;  ///< the given tab is shown, or none was given
};

struct Answer {
  std::int64_t id = 0;
  std::variant<TabShown, TabsClosed> result;
};

/// The relay's first word to the agent.
struct Greeting {
  std::string program;  ///< file name of the browser's program
};

/// As JSON. Ill-formed UTF-8 is replaced.
[[nodiscard]] std::string written(const Request& request);
[[nodiscard]] std::string written(const Answer& answer);
[[nodiscard]] std::string written(const Greeting& greeting);

/// Each throws ProtocolError unless the message is one of that kind.
[[nodiscard]] Request readRequest(std::string_view message);
[[nodiscard]] Answer readAnswer(std::string_view message);
[[nodiscard]] Greeting readGreeting(std::string_view message);

}  // namespace quillseal::linux::TabMessages
