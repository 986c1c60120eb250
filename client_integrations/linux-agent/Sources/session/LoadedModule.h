#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillseal::linux {

/// A relative path, from the folder of the installed program to that of its modules.
extern const char moduleFolderFromProgram[];

/// Defined by every module: the version of the program that it belongs to.
inline constexpr const char* moduleVersion = "quillseal_module_version";

/// A part of the program in a file of its own, loaded when it is first needed: libraries that serve
/// one signature in a while need not be held by an agent that waits for days.
class LoadedModule {
 public:
  struct Options {
    std::vector<std::filesystem::path> places;  ///< where it may be; the first there counts
    std::string version;                        ///< that it must be of: files may be upgraded
                                                ///< while an older program runs
    std::string duty;                           ///< what it does, for messages: "talks to …"
  };

  explicit LoadedModule(Options options);

  /// Where installing and building put the module of this file name, seen from the program that
  /// runs.
  [[nodiscard]] static std::vector<std::filesystem::path> usualPlaces(std::string_view fileName);

  /// The function of this name. Loads the module, which stays loaded. Throws std::runtime_error,
  /// with a sentence that tells what to do, when there is no usable one.
  template <typename Function>
  [[nodiscard]] Function* function(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

 private:
  [[nodiscard]] void* symbol(const char* name) const;

  Options options_;
};

}  // namespace quillseal::linux
