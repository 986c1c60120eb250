#pragma once

#include <chrono>
#include <functional>
#include <string>

#include <systemd/sd-bus.h>

#include "core/text/UniqueHandle.h"
#include "session/FileDescriptor.h"

namespace quillseal::linux {

/// Ends another thread's wait when it is raised.
class Interrupt {
 public:
  Interrupt();

  /// Any thread. Cannot be undone.
  void raise() const noexcept;
  [[nodiscard]] bool isRaised() const noexcept;
  /// Readable once raised.
  [[nodiscard]] int descriptor() const noexcept { return descriptor_.get(); }

 private:
  FileDescriptor descriptor_;
};

using BusMessage = UniqueHandle<sd_bus_message, ::sd_bus_message_unref>;

/// What is listened for, for as long as this is kept.
using BusSlot = UniqueHandle<sd_bus_slot, ::sd_bus_slot_unref>;

/// A connection of its own to the system's message bus, used by one thread. Functions throw Error
/// with the bus's words.
class SystemBus {
 public:
  using Seconds = std::chrono::seconds;

  /// Where a call goes.
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

  /// Sends a call whose answer may take as long as a person does. Null when interrupted, or when
  /// nobody has answered for five minutes.
  struct LongCall {
    sd_bus_message& request;
    const Interrupt& interrupt;
  };
  [[nodiscard]] BusMessage sendAndWait(const LongCall& call);

  /// Handles what comes in until `isDone`. False when interrupted or when the time is over.
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
