#pragma once

#include <atomic>
#include <deque>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "presence/SystemBus.h"

namespace quillseal::testing {

/// What the services on the bus do.
struct Script {
  bool hasReader = true;
  bool readerInUse = false;
  std::vector<std::string> fingers{"right-index-finger"};
  /// For each VerifyStart, the statuses that follow; a started verification without any waits.
  std::deque<std::vector<std::string>> touches{};

  bool actionInstalled = true;
  bool mayAsk = true;
  bool passwordRight = true;
  bool dismissed = false;
  bool neverAnswers = false;
};

/// fprintd and polkit as far as Quillseal sees them, on a thread of their own.
class PresenceServices {
 public:
  explicit PresenceServices(Script script);
  PresenceServices(const PresenceServices&) = delete;
  PresenceServices& operator=(const PresenceServices&) = delete;
  ~PresenceServices();

  /// The methods called so far, in order, once the services have ended.
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
