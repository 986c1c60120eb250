#pragma once

#include <functional>
#include <memory>

#include "session/CommandLine.h"

namespace quillseal::linux {

/// Allows one agent per session, through a name on the session bus; later starts send it their
/// command. Main thread only.
class SingleInstance {
 public:
  enum class Role {
    agent,      ///< This process owns the name.
    secondary,  ///< Another process owns the name.
    alone,      ///< There is no session bus: agents cannot find each other.
  };

  SingleInstance();
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// Tries to become the session's agent.
  [[nodiscard]] Role claim();

  /// Sets the handler of commands from later starts. Called from the main loop. Only for the agent.
  void onCommand(std::function<void(Command)> handler);

 private:
  class Receiver;
  std::unique_ptr<Receiver> receiver_;
};

}  // namespace quillseal::linux
