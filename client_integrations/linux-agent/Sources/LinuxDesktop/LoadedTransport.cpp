#include "LinuxDesktop/LoadedTransport.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include <dlfcn.h>

#include "LinuxDesktop/HttpModule.h"
#include "LinuxDesktop/TransportErrors.h"

namespace quillseal {
namespace {

namespace fs = std::filesystem;

Error unusable(const std::string& reason) {
  return Error({.domain = desktop::transport::errorDomain,
                .code = desktop::transport::unknown,
                .description = "The part of Quillseal that talks to the server cannot be used (" +
                               reason +
                               "). If the computer was updated since Quillseal was started, "
                               "quit it and start it again; otherwise install it again."});
}

}  // namespace

LoadedTransport::LoadedTransport(desktop::MainLoop& loop, Descriptors& descriptors, Options options)
    : loop_(loop), descriptors_(descriptors), options_(std::move(options)) {}

void LoadedTransport::load() {
  const auto exists = [](const fs::path& place) {
    std::error_code error;
    return fs::exists(place, error);
  };
  const auto found = std::ranges::find_if(options_.places, exists);
  if (found == options_.places.end())
    throw unusable(options_.places.empty() ? "where it is cannot be told"
                                           : options_.places.front().string() + " is missing");
  // Never unloaded: libcurl's own threads may outlive a request.
  void* const module = ::dlopen(found->c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const function = module == nullptr ? nullptr : ::dlsym(module, httpModuleFunction);
  // NOLINTNEXTLINE(concurrency-mt-unsafe): only the main thread loads anything
  if (function == nullptr) throw unusable(::dlerror());
  HttpModuleCall call{.version = options_.version,
                      .loop = loop_,
                      .descriptors = descriptors_,
                      .transport = nullptr};
  reinterpret_cast<HttpModuleFunction*>(function)(call);
  if (call.transport == nullptr) throw unusable(found->string() + " is of another version");
  transport_ = std::move(call.transport);
}

desktop::Ticket LoadedTransport::send(const desktop::HttpPost& post,
                                      std::function<void(Outcome<desktop::HttpResponse>)> done) {
  try {
    if (transport_ == nullptr) load();
  } catch (const Error& error) {
    done(error);
    return {};
  }
  return transport_->send(post, std::move(done));
}

Error LoadedTransport::error(desktop::transport::ErrorCode code) const {
  return transportError(code);
}

std::vector<fs::path> LoadedTransport::usualPlaces() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (error) return {};
  return {(folder / httpModuleFromProgram).lexically_normal(),
          folder / fs::path(httpModuleFromProgram).filename()};
}

}  // namespace quillseal
