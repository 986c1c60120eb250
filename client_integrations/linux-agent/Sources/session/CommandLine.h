#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillseal::linux {

/// What a start of `quillseal` asks for.
enum class Command {
  start,       ///< Be the agent; one that runs already opens its settings.
  background,  ///< Be the agent, quietly: nothing on standard error, no settings when one runs.
  sign,        ///< Sign the selected text.
  settings,    ///< Show the settings window.
  quit,        ///< End the agent that runs.
  help,
  version,
  wrong,  ///< The arguments cannot be understood.
};

struct CommandLine {
  Command command = Command::start;
  std::string tpm;      ///< which TPM holds the key, as `KeyStoreOptions::tpm` has it
  std::string problem;  ///< A sentence for standard error; only with `Command::wrong`.
};

/// Understands the arguments that follow the program's name.
[[nodiscard]] CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// The text of `--help`, ending in a line feed.
[[nodiscard]] std::string_view helpText();

/// The word by which a command travels to the agent that runs already; empty for commands that
/// never do.
[[nodiscard]] std::string_view wireName(Command command);

}  // namespace quillseal::linux
