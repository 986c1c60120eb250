#pragma once

#include <chrono>
#include <functional>
#include <string>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"
#include "session/BusMessage.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// Interrupts another thread's wait.
class Interrupt {
 public:
  Interrupt();

  /// Any thread. Cannot be undone.
  void raise() const noexcept;
  [[nodiscard]] bool isRaised() const noexcept;
  /// Becomes readable once raised.
  [[nodiscard]] int descriptor() const noexcept { return descriptor_.get(); }

 private:
  FileDescriptor descriptor_;
};

/// A private connection to the D-Bus system bus, used by one thread. Functions throw Error with the
/// bus's message.
class SystemBus {
 public:
  using Seconds = std::chrono::seconds;

  /// The destination of a call.
  struct Target {
    const char* service;
    const char* path;
    const char* interface;
  };

  SystemBus();

  /// Calls a method and waits for its answer. `types` and `arguments` as for sd_bus_message_append.
  template <typename... Arguments>
  BusMessage call(const Target& target, const char* method, const char* types,
                  Arguments... arguments) {
    BusMessage request = newCall(target, method);
    if constexpr (sizeof...(arguments) > 0)
      check(::sd_bus_message_append(request.get(), types, arguments...));
    return send(*request);
  }

  [[nodiscard]] BusMessage newCall(const Target& target, const char* method);
  BusMessage send(sd_bus_message& request);

  /// Sends a call that waits for a person. Null when interrupted, or after five minutes without an
  /// answer.
  struct LongCall {
    sd_bus_message& request;
    const Interrupt& interrupt;
  };
  [[nodiscard]] BusMessage sendAndWait(const LongCall& call);

  /// Processes messages until `isDone`. False when interrupted or timed out.
  struct Wait {
    const Interrupt& interrupt;
    Seconds limit;
    std::function<bool()> isDone;
  };
  [[nodiscard]] bool wait(const Wait& wait);

  [[nodiscard]] sd_bus* get() const noexcept { return bus_.get(); }

  /// Throws when `result` is a negative errno.
  static void check(int result);

 private:
  UniqueHandle<sd_bus, ::sd_bus_flush_close_unref> bus_;
};

}  // namespace quillseal::linux
