#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "session/CommandLine.h"

namespace quillseal::linux {
namespace {

using testing::HasSubstr;

CommandLine parsed(const std::vector<std::string_view>& arguments) {
  return parseCommandLine(arguments);
}

TEST(CommandLineTest, UnderstandsEveryOption) {
  const std::pair<std::vector<std::string_view>, Command> cases[] = {
      {{}, Command::start},
      {{"--background"}, Command::background},
      {{"--sign"}, Command::sign},
      {{"--settings"}, Command::settings},
      {{"--quit"}, Command::quit},
      {{"--help"}, Command::help},
      {{"-h"}, Command::help},
      {{"--version"}, Command::version},
      {{"-V"}, Command::version},
      {{"--sign", "--sign"}, Command::sign},
      {{"--tpm", "none", "--sign"}, Command::sign}};
  for (const auto& [arguments, command] : cases) {
    const CommandLine commandLine = parsed(arguments);
    EXPECT_EQ(commandLine.command, command) << testing::PrintToString(arguments);
    EXPECT_EQ(commandLine.problem, "");
  }
  EXPECT_EQ(parsed({"--tpm", "swtpm:path=/s"}).tpm, "swtpm:path=/s");
}

TEST(CommandLineTest, SaysWhatItDoesNotUnderstand) {
  const std::pair<std::vector<std::string_view>, const char*> cases[] = {
      {{"--singn"}, "'--singn' is not an option"},
      {{"letter.txt"}, "'letter.txt' is not an option"},
      {{""}, "'' is not an option"},
      {{"--sign", "--quit"}, "'--quit' cannot be combined"},
      {{"--sign", "--tpm"}, "'--tpm' needs a value"}};
  for (const auto& [arguments, problem] : cases) {
    const CommandLine commandLine = parsed(arguments);
    EXPECT_EQ(commandLine.command, Command::wrong) << testing::PrintToString(arguments);
    EXPECT_THAT(commandLine.problem, HasSubstr(problem));
  }
}

// A second start without an option shows the settings: without a tray there is no other way to
// them.
TEST(CommandLineTest, ASecondStartOpensTheSettings) {
  EXPECT_EQ(wireName(Command::start), wireName(Command::settings));
  EXPECT_EQ(wireName(Command::help), "");
}

}  // namespace
}  // namespace quillseal::linux
