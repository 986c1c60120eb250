#include "session/LoadedModule.h"

#include <algorithm>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <dlfcn.h>

namespace quillseal::linux {

namespace fs = std::filesystem;

LoadedModule::LoadedModule(Options options) : options_(std::move(options)) {}

void* LoadedModule::symbol(const char* name) const {
  const auto unusable = [this](const std::string& reason) {
    return std::runtime_error("The part of Quillseal that " + options_.duty + " cannot be used (" +
                              reason +
                              "). If the computer was updated since Quillseal was started, quit it "
                              "and start it again; otherwise install it again.");
  };
  const auto exists = [](const fs::path& place) {
    std::error_code error;
    return fs::exists(place, error);
  };
  const auto found = std::ranges::find_if(options_.places, exists);
  if (found == options_.places.end()) {
    throw unusable(options_.places.empty() ? "its place is not known"
                                           : options_.places.front().string() + " is missing");
  }
  // Never unloaded: threads of its libraries may still run.
  void* const module = ::dlopen(found->c_str(), RTLD_NOW | RTLD_LOCAL);
  const auto find = [&](const char* wanted) {
    void* const address = module == nullptr ? nullptr : ::dlsym(module, wanted);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): only the main thread loads anything
    if (address == nullptr) throw unusable(::dlerror());
    return address;
  };
  if (static_cast<const char*>(find(moduleVersion)) != options_.version)
    throw unusable(found->string() + " is of another version");
  return find(name);
}

std::vector<fs::path> LoadedModule::usualPlaces(std::string_view fileName) {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (error) return {};
  return {(folder / moduleFolderFromProgram / fileName).lexically_normal(), folder / fileName};
}

}  // namespace quillseal::linux
