#pragma once

#include <functional>
#include <memory>

#include "session/CommandLine.h"

namespace quillseal::linux {

/// One agent per session, by a name on the session bus; later starts hand their command to it.
/// Main thread only.
class SingleInstance {
 public:
  enum class Role {
    agent,    ///< This process owns the name.
    visitor,  ///< Another one does.
    alone,    ///< There is no session bus: others cannot be seen, and cannot see this one.
  };

  SingleInstance();
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Tries to become the agent.
  [[nodiscard]] Role claim();

  /// The commands that other starts hand over; called from the main loop. Only for the agent.
  void onCommand(std::function<void(Command)> handler);

  /// Hands the command to the running agent. False when none answers within five seconds.
  [[nodiscard]] static bool handOver(Command command);

 private:
  class Receiver;
  std::unique_ptr<Receiver> receiver_;
};

}  // namespace quillseal::linux
