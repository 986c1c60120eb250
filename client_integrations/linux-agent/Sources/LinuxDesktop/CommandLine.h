#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quillseal {

/// What a start of `quillseal` asks for.
enum class Command {
  Start,       ///< Be the agent; one that runs already opens its settings.
  Background,  ///< Be the agent, quietly: nothing on standard error, no settings when one runs.
  Sign,        ///< Sign the selected text.
  Settings,    ///< Show the settings window.
  Quit,        ///< End the agent that runs.
  Help,
  Version,
  Wrong,  ///< The arguments cannot be understood.
};

struct CommandLine {
  Command command = Command::Start;
  std::string tpm;      ///< which TPM holds the key, as `KeyStoreOptions::tpm` has it
  std::string problem;  ///< A sentence for standard error; only with `Command::Wrong`.
};

/// Understands the arguments that follow the program's name.
[[nodiscard]] CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// The text of `--help`, ending in a line feed.
[[nodiscard]] std::string_view helpText();

/// The word by which a command travels to the agent that runs already; empty for commands that
/// never do.
[[nodiscard]] std::string_view wireName(Command command);

}  // namespace quillseal
