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

/// A part of the program in a separate shared object, loaded at its first use, so that an idle
/// agent does not hold the libraries that only signing needs.
class LoadedModule {
 public:
  struct Options {
    std::vector<std::filesystem::path> places;  ///< candidate paths; the first that exists is used
    std::string version;                        ///< that it must be of: files may be upgraded
                                                ///< while an older program runs
    std::string duty;                           ///< for messages: "talks to …"
  };

  explicit LoadedModule(Options options);

  /// Returns the places where the installed and the built program have the module of this file
  /// name.
  [[nodiscard]] static std::vector<std::filesystem::path> usualPlaces(std::string_view fileName);

  /// Returns the function of this name. Loads the module, which stays loaded. Throws
  /// std::runtime_error with a sentence that says what to do when there is no usable module.
  template <typename Function>
  [[nodiscard]] Function* function(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

 private:
  [[nodiscard]] void* symbol(const char* name) const;

  Options options_;
};

}  // namespace quillseal::linux
