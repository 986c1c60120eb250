#pragma once

#include <atomic>
#include <deque>
#include <memory>
#include <string>
#include <thread>
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
  explicit PresenceServices(Script script);
  PresenceServices(const PresenceServices&) = delete;
  PresenceServices& operator=(const PresenceServices&) = delete;
  ~PresenceServices();

  /// Ends the services and returns the called methods, in order.
  [[nodiscard]] const std::vector<std::string>& end();

 private:
  static int handle(sd_bus_message* message, void* self, sd_bus_error* error);
  int answer(sd_bus_message* message, sd_bus_error* error);

  Script script_;
  std::vector<std::string> calls_;
  linux::SystemBus bus_;
  linux::Interrupt stop_;
  std::thread thread_;
};

}  // namespace quillseal::testing
