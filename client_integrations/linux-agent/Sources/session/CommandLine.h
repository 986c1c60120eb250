#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What a start of `quillseal` asks for.
enum class Command {
  start,       ///< Run the agent; a running one opens its settings.
  background,  ///< Run the agent without output on standard error; a running one opens nothing.
  sign,        ///< Sign the selected text.
  settings,    ///< Show the settings window.
  quit,        ///< End the running agent.
  help,
  version,
  wrong,  ///< The arguments are wrong.
};

struct CommandLine {
  Command command = Command::start;
  std::string tpm;      ///< which TPM holds the key, as `KeyStoreOptions::tpm` has it
  std::string problem;  ///< A sentence for standard error; only with `Command::wrong`.
};

/// Parses the arguments that follow the program's name.
[[nodiscard]] CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// The text of `--help`, ending in a line feed.
[[nodiscard]] std::string_view helpText();

/// Returns the command's name on the session bus; empty for commands that are not sent to a running
/// agent.
[[nodiscard]] std::string_view wireName(Command command);

}  // namespace quillseal::linux
