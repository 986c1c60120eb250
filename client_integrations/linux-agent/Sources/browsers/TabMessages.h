#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

/// The messages between agent and browser extension, passed on by the relay: JSON objects, each
/// preceded by its length in four bytes in native byte order, as browsers frame native messages
/// (https://developer.chrome.com/docs/extensions/develop/concepts/native-messaging).
namespace quillseal::linux::TabMessages {

/// Longer messages are refused; browsers would send up to 64 MiB.
inline constexpr std::size_t longestMessage = 4096;

/// The other side broke the protocol; the connection must be closed.
class ProtocolError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Returns the message with its length in front. Throws ProtocolError when it is too long.
[[nodiscard]] std::string framed(std::string_view message);

/// Splits a stream of bytes into messages.
class Deframer {
 public:
  void append(std::string_view bytes) { pending_ += bytes; }

  /// Returns the next complete message, or nothing. Throws ProtocolError as soon as the length is
  /// known to be 0 or too large.
  [[nodiscard]] std::optional<std::string> next();

 private:
  std::string pending_;
};

/// Returns whether a text is "/handoff?h=" and a safe identifier (SignedBlock::isSafeIdentifier).
/// Tabs are closed by such a mark only.
[[nodiscard]] bool isSigningPageMark(std::string_view text);

/// Asks which tab is current in the window that was focused last.
struct CurrentTab {};

/// Asks to close the tabs with the marked signing page, then to show the tab.
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
  bool closed = false;    ///< at least one tab was closed
  bool restored = false;  ///< the given tab is shown, or none was given
};

struct Answer {
  std::int64_t id = 0;
  std::variant<TabShown, TabsClosed> result;
};

/// The relay's first message to the agent.
struct Greeting {
  std::string program;  ///< file name of the browser's program
};

/// Return the message as JSON. Ill-formed UTF-8 is replaced.
[[nodiscard]] std::string written(const Request& request);
[[nodiscard]] std::string written(const Answer& answer);
[[nodiscard]] std::string written(const Greeting& greeting);

/// Parse a message. Each throws ProtocolError when it is of another kind.
[[nodiscard]] Request readRequest(std::string_view message);
[[nodiscard]] Answer readAnswer(std::string_view message);
[[nodiscard]] Greeting readGreeting(std::string_view message);

}  // namespace quillseal::linux::TabMessages
