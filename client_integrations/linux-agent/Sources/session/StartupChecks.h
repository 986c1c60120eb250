#pragma once

#include <chrono>
#include <string>

namespace quillseal::linux {

/// The agent's name on the session bus, also of its interface, and its object there.
inline constexpr const char* agentName = "com.quillseal.Agent";
inline constexpr const char* agentPath = "/com/quillseal/Agent";

// Checks the services for which Qt blocks the main thread. A missing service counts as answering,
// since Qt does not wait for it.

/// Returns whether the session bus accepts a client within `timeout`. Qt waits for that without a
/// time-out when the QApplication is created.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds timeout);

/// What became of a command for the agent that runs in this session.
enum class Handover { noAgent, done, noAnswer };

/// Calls the method of that name on the object of the agent. Works before the QApplication exists,
/// since a shortcut's command may run thirty times a second.
[[nodiscard]] Handover handOver(const std::string& method, std::chrono::milliseconds timeout);

/// Returns whether the services of the accessibility bus answer within `timeout`. Qt waits for
/// them, 50 seconds or for ever, when the event loop starts.
[[nodiscard]] bool accessibilityAnswers(std::chrono::milliseconds timeout);

}  // namespace quillseal::linux
