#include "session/CommandLine.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quillseal::linux {
namespace {

struct Option {
  std::string_view name;
  std::string_view shortName;
  Command command;
};

constexpr std::array options = {
    Option{"--background", "", Command::background},
    Option{"--help", "-h", Command::help},
    Option{"--quit", "", Command::quit},
    Option{"--settings", "", Command::settings},
    Option{"--sign", "", Command::sign},
    Option{"--version", "-V", Command::version},
};

}  // namespace

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
  CommandLine result;
  const auto wrong = [](std::string_view argument, std::string_view why) {
    return CommandLine{.command = Command::wrong,
                       .tpm = {},
                       .problem = "'" + std::string(argument) + "' " + std::string(why)};
  };
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--tpm") {
      if (std::next(argument) == arguments.end()) return wrong(*argument, "needs a value");
      result.tpm = *++argument;
      continue;
    }
    const auto option = std::ranges::find_if(options, [&](const Option& candidate) {
      return *argument == candidate.name ||
             (!candidate.shortName.empty() && *argument == candidate.shortName);
    });
    if (option == options.end()) return wrong(*argument, "is not an option");
    if (result.command != Command::start && result.command != option->command)
      return wrong(*argument, "cannot be combined with another option");
    result.command = option->command;
  }
  return result;
}

std::string_view helpText() {
  return R"(Usage: quillseal [OPTION]

Signs the text that is selected in the application in front: press
Ctrl+Alt+Super+H, or choose the menu item of the shield in the panel.

Without an option the agent starts and stays in the foreground, with its log on
standard error. There is one agent per session: if one is already running, its
settings window is shown.

  --sign        sign the selected text now; bind this to a shortcut of your
                desktop where the built-in one does not work
  --settings    show the settings window
  --quit        end the running agent
  --background  start without output and without windows, as at log-in; the log
                goes to the journal only
  --tpm NAME    where the signing key is kept: "none" always uses a key file,
                "swtpm:…" and "mssim:…" a TPM simulator, for trying out
  -h, --help    show this help
  -V, --version show the version

--sign and --settings start the agent when none runs.
Exit status: 0 done, 1 failed, 2 wrong arguments. Manual: man quillseal
)";
}

std::string_view wireName(Command command) {
  switch (command) {
    case Command::sign:
      return "Sign";
    case Command::start:
    case Command::settings:
      return "Settings";
    case Command::quit:
      return "Quit";
    default:
      return {};
  }
}

}  // namespace quillseal::linux
