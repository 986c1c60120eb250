#include "session/Spawn.h"

#include <algorithm>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace quillseal::linux {
namespace {

class FileActions {
 public:
  FileActions() { posix_spawn_file_actions_init(&actions_); }
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  [[nodiscard]] posix_spawn_file_actions_t* get() { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

}  // namespace

std::optional<pid_t> start(const Spawn& spawn) {
  FileActions actions;
  posix_spawn_file_actions_adddup2(actions.get(), spawn.input, STDIN_FILENO);
  // A program may outlive the agent: open outputs would keep a reader of the agent's waiting.
  if (spawn.output >= 0)
    posix_spawn_file_actions_adddup2(actions.get(), spawn.output, STDOUT_FILENO);
  else
    posix_spawn_file_actions_addopen(actions.get(), STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  std::vector<std::string> words{spawn.file.filename().string()};
  words.insert(words.end(), spawn.arguments.begin(), spawn.arguments.end());
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words)
    arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t process = 0;
  if (posix_spawn(&process, spawn.file.c_str(), actions.get(), nullptr, arguments.data(),
                  environ) != 0)
    return std::nullopt;
  return process;
}

std::optional<std::filesystem::path> firstProgram(
    const std::vector<std::filesystem::path>& places) {
  const auto found = std::ranges::find_if(places, [](const std::filesystem::path& candidate) {
    return access(candidate.c_str(), X_OK) == 0;
  });
  return found == places.end() ? std::nullopt : std::optional(*found);
}

}  // namespace quillseal::linux
