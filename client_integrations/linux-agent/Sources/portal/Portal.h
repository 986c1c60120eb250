#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "core/tasks/Task.h"
#include "desktop/Ticket.h"
#include "session/DesktopBus.h"

namespace quillseal::linux {

/// What the desktop's portal offers: the version of each interface, 0 where there is none.
struct PortalOffer {
  std::uint32_t remoteDesktop = 0;  ///< with a keyboard
  std::uint32_t globalShortcuts = 0;
  std::uint32_t clipboard = 0;
  bool isSilent = false;  ///< it did not answer everything in time; then the rest is 0

  bool operator==(const PortalOffer&) const = default;
};

/// Asks the portal, and registers this program with it. A portal that does not run is started if
/// `isUsefulPortalInstalled`. Blocks for milliseconds where the portal answers or there is none,
/// and for `timeout` at most.
///
/// The portal looks at `/proc/PID/root` of a client at its first call and refuses everything where
/// that is hidden, as it is of the agent: so the bus is one of DesktopBus::openThrough.
[[nodiscard]] PortalOffer offerOfPortal(DesktopBus& bus, std::chrono::milliseconds timeout);

/// How a request ended.
struct PortalAnswer {
  enum class Outcome { granted, refused, failed };

  Outcome outcome = Outcome::failed;
  DesktopBus::Message message;  ///< the Response signal; null when the request failed before
};

/// Calls to org.freedesktop.portal.Desktop. The answer to a request may take minutes, since the
/// desktop may ask the user. Main thread.
class Portal {
 public:
  static constexpr const char* service = "org.freedesktop.portal.Desktop";
  static constexpr const char* path = "/org/freedesktop/portal/desktop";

  /// For what the portal answers without asking the user. One that has ended is started meanwhile.
  static constexpr std::chrono::seconds timeout{15};

  /// The agent's name: that of an installed desktop file, without ".desktop". By it the desktop
  /// shows and stores what the user allows.
  static constexpr const char* applicationId = "com.quillseal.agent";

  using Message = DesktopBus::Message;
  using Option = std::variant<std::uint32_t, std::string, std::vector<std::string>>;
  using Options = std::vector<std::pair<const char*, Option>>;

  /// `bus` is served, was given to `offerOfPortal`, and outlives this object.
  explicit Portal(DesktopBus& bus);
  Portal(const Portal&) = delete;
  Portal& operator=(const Portal&) = delete;

  [[nodiscard]] DesktopBus& bus() const { return bus_; }

  /// Makes a call to a method of an interface ("org.freedesktop.portal.Clipboard"). Null when the
  /// bus is gone.
  [[nodiscard]] Message newCall(const char* interface, const char* method) const;

  /// Makes a call whose first argument is the session.
  [[nodiscard]] Message newCall(const char* interface, const char* method,
                                const std::string& session) const;

  /// Appends a dictionary of options. False when one cannot be sent.
  [[nodiscard]] static bool append(sd_bus_message& message, const Options& options);

  /// Sends the call. Null after an error.
  [[nodiscard]] Task<Message> call(Message call);

  /// Sends the call, to which the options are yet to be appended, and waits for the Response. A
  /// request that is dropped is closed, and with it what the desktop asks the user.
  [[nodiscard]] Task<PortalAnswer> request(Message call, Options options);

  /// Returns a name that was not used before, for a request or session.
  [[nodiscard]] std::string newToken();

 private:
  struct Request;

  DesktopBus& bus_;
  std::uint64_t lastToken_ = 0;
  DesktopBus::Receiver onOwner_;
  DesktopBus::Subscription owners_;
};

/// A session of the portal, which ends with this object.
class PortalSession {
 public:
  /// Why a session ended: the desktop or the user closed it, or the portal itself has ended.
  enum class End { closed, withPortal };
  using Ended = std::function<void(End)>;

  /// Null when the portal makes none. `ended` is called once, from the bus's events, when the
  /// session has ended by itself.
  [[nodiscard]] static Task<std::unique_ptr<PortalSession>> open(Portal& portal,
                                                                 const char* interface,
                                                                 Ended ended);
  PortalSession(Portal& portal, std::string handle, Ended ended);
  ~PortalSession();
  PortalSession(const PortalSession&) = delete;
  PortalSession& operator=(const PortalSession&) = delete;

  [[nodiscard]] const std::string& handle() const { return handle_; }

  /// Whether the message, a signal of the portal, is about this session. Leaves the message behind
  /// its first argument.
  [[nodiscard]] bool isMeantBy(sd_bus_message& signal) const;

 private:
  void end(End how);

  Portal& portal_;
  std::string handle_;
  Ended ended_;
  DesktopBus::Receiver onClosed_;
  DesktopBus::Receiver onOwner_;
  DesktopBus::Subscription closing_;
  DesktopBus::Subscription owners_;
};

/// An option in a dictionary of a message.
struct PortalOption {
  const char* name;
  const char* type = "s";        ///< of the value
  const char* before = nullptr;  ///< types of the arguments before the dictionary; null: it is next
};

/// Moves to the value of an option. False when there is none of that type.
[[nodiscard]] bool enterOption(sd_bus_message& message, const PortalOption& option);

/// Returns the option's text; nothing when it has none or is of another type.
[[nodiscard]] std::optional<std::string> textOption(sd_bus_message& message,
                                                    const PortalOption& option);

}  // namespace quillseal::linux
