#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "presence/SystemBus.h"

namespace quillseal::testing {

/// The behaviour of the services.
struct Script {
  bool hasReader = true;
  bool readerInUse = false;
  std::vector<std::string> fingers{"right-index-finger"};
  /// The statuses that follow each VerifyStart; without any, the verification waits.
  std::deque<std::vector<std::string>> touches{};

  bool actionInstalled = true;
  bool mayAsk = true;
  bool passwordRight = true;
  bool dismissed = false;
  bool neverAnswers = false;
};

/// Fakes of fprintd and polkit, on their own thread.
class PresenceServices {
 public:
  explicit PresenceServices(Script script) : script_(std::move(script)) {
    for (const char* name : {"net.reactivated.Fprint", "org.freedesktop.PolicyKit1"})
      linux::SystemBus::check(::sd_bus_request_name(bus_.get(), name, 0));
    linux::SystemBus::check(::sd_bus_add_fallback(bus_.get(), nullptr, "/", handle, this));
    thread_ = std::thread([this] {
      static_cast<void>(bus_.wait(
          {.interrupt = stop_, .limit = std::chrono::minutes(1), .isDone = [] { return false; }}));
    });
  }
  PresenceServices(const PresenceServices&) = delete;
  PresenceServices& operator=(const PresenceServices&) = delete;
  ~PresenceServices() { end(); }

  /// The methods called so far, in order, once the services have ended.
  const std::vector<std::string>& end() {
    stop_.raise();
    if (thread_.joinable()) thread_.join();
    return calls_;
  }

 private:
  static constexpr const char* reader = "/net/reactivated/Fprint/Device/0";

  static int handle(sd_bus_message* message, void* self, sd_bus_error* error) {
    return static_cast<PresenceServices*>(self)->answer(message, error);
  }
  int answer(sd_bus_message* message, sd_bus_error* error) {
    const std::string_view member = ::sd_bus_message_get_member(message);
    calls_.emplace_back(member);
    if (member == "GetDefaultDevice") {
      if (!script_.hasReader)
        return ::sd_bus_error_set(error, "net.reactivated.Fprint.Error.NoSuchDevice", "none");
      return ::sd_bus_reply_method_return(message, "o", reader);
    }
    if (member == "ListEnrolledFingers") {
      if (script_.fingers.empty())
        return ::sd_bus_error_set(error, "net.reactivated.Fprint.Error.NoEnrolledPrints", "none");
      return ::sd_bus_reply_method_return(message, "as", 1, script_.fingers.front().c_str());
    }
    if (member == "Claim" && script_.readerInUse)
      return ::sd_bus_error_set(error, "net.reactivated.Fprint.Error.AlreadyInUse", "in use");
    if (member == "CheckAuthorization") {
      if (!script_.actionInstalled)
        return ::sd_bus_error_set(error, "org.freedesktop.PolicyKit1.Error.Failed",
                                  "the action is not registered");
      const char* text = nullptr;
      std::uint32_t mayQuestion = 0;
      ::sd_bus_message_skip(message, "(sa{sv})");
      ::sd_bus_message_read(message, "s", &text);
      ::sd_bus_message_skip(message, "a{ss}");
      ::sd_bus_message_read(message, "u", &mayQuestion);
      if (mayQuestion == 0)
        return ::sd_bus_reply_method_return(message, "(bba{ss})", 0, script_.mayAsk ? 1 : 0, 0);
      if (script_.neverAnswers) return 1;
      if (script_.dismissed)
        return ::sd_bus_reply_method_return(message, "(bba{ss})", 0, 0, 1, "polkit.dismissed",
                                            "true");
      return ::sd_bus_reply_method_return(message, "(bba{ss})", script_.passwordRight ? 1 : 0,
                                          script_.mayAsk ? 0 : 1, 0);
    }
    const int replied = ::sd_bus_reply_method_return(message, "");
    if (member == "VerifyStart" && !script_.touches.empty()) {
      const std::vector<std::string> statuses = script_.touches.front();
      script_.touches.pop_front();
      for (const std::string& status : statuses)
        ::sd_bus_emit_signal(bus_.get(), reader, "net.reactivated.Fprint.Device", "VerifyStatus",
                             "sb", status.c_str(), 1);
    }
    return replied;
  }

  Script script_;
  std::vector<std::string> calls_;
  linux::SystemBus bus_;
  linux::Interrupt stop_;
  std::thread thread_;
};

}  // namespace quillseal::testing
