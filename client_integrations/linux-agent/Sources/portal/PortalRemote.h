#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/tasks/Async.h"
#include "desktop/MainLoop.h"
#include "desktop/Ticket.h"
#include "keyboard/Keysym.h"
#include "keys/PrivateFile.h"
#include "portal/Portal.h"

namespace quillseal::linux {

/// The session of the RemoteDesktop portal in which the agent presses keys and, where the portal
/// has a clipboard, uses that. The desktop asks the user before it starts one; what they allow is
/// stored as a token for the next session where the portal supports it. Main thread.
class PortalRemote {
 public:
  struct Services {
    desktop::MainLoop& loop;
    Portal& portal;
    PortalOffer offer;
    PrivateFile token;
    /// Tells the user something in a notification.
    std::function<void(const std::string&)> notify;
    std::chrono::milliseconds timeout = Portal::timeout;
  };

  explicit PortalRemote(Services services);
  PortalRemote(const PortalRemote&) = delete;
  PortalRemote& operator=(const PortalRemote&) = delete;

  [[nodiscard]] bool isOpen() const { return state_ == State::open; }

  /// Whether a session may be started without asking the user: they have allowed one before.
  [[nodiscard]] bool mayOpenUnasked() const;

  /// Starts a session unless there is one. Several calls wait for the same one. `done` gets whether
  /// there is a session in the end; dropping the ticket leaves the session alone.
  [[nodiscard]] desktop::Ticket open(std::function<void(bool)> done);

  /// Why there is no session after the last attempt and what to do, in sentences for the user;
  /// empty while it is open, and before the first attempt.
  [[nodiscard]] const std::string& obstacle() const { return obstacle_; }

  /// Calls `ended` whenever an open session ends, in place of an earlier one.
  void onEnd(std::function<void()> ended) { ended_ = std::move(ended); }

  /// The handle of the open session; empty when there is none.
  [[nodiscard]] std::string session() const;

  /// Whether the open session has a clipboard.
  [[nodiscard]] bool hasClipboard() const { return isOpen() && hasClipboard_; }

  /// Presses the keys in order and releases them in reverse order. Nothing happens without a
  /// session. Supports the keys that copy, paste and select all.
  void tap(const std::vector<Keysym>& chord);

 private:
  enum class State { closed, opening, open };

  [[nodiscard]] Task<> openSession();
  [[nodiscard]] Task<bool> chooseDevices(std::string token);
  [[nodiscard]] Task<> requestClipboard();
  [[nodiscard]] Task<bool> start();
  [[nodiscard]] std::string storedToken() const;
  void keepToken(const std::string& token) const;
  void stopOpening(const char* obstacle);
  void finish(std::string obstacle);
  void closed();
  void notify(Keysym symbol, std::uint32_t state) const;

  Services services_;
  State state_ = State::closed;
  bool hasClipboard_ = false;
  std::string obstacle_;
  std::unique_ptr<PortalSession> session_;
  std::map<std::uint64_t, std::function<void(bool)>> waiting_;
  std::uint64_t lastWaiting_ = 0;
  std::function<void()> ended_;
  desktop::Ticket reporting_;
  desktop::Ticket giveUp_;
  std::optional<TaskScope> opening_;
};

}  // namespace quillseal::linux
