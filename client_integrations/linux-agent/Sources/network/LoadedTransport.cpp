#include "network/LoadedTransport.h"

#include <stdexcept>
#include <utility>

#include "network/HttpModule.h"
#include "network/TransportErrors.h"

namespace quillseal::linux {

LoadedTransport::LoadedTransport(desktop::MainLoop& loop, Descriptors& descriptors,
                                 LoadedModule module)
    : loop_(loop), descriptors_(descriptors), module_(std::move(module)) {}

desktop::Ticket LoadedTransport::send(const desktop::HttpPost& post,
                                      std::function<void(Outcome<desktop::HttpResponse>)> done) {
  try {
    if (transport_ == nullptr)
      module_.function<HttpModule::Make>(HttpModule::make)(loop_, descriptors_, transport_);
  } catch (const std::runtime_error& error) {
    done(Error({.domain = desktop::transport::errorDomain,
                .code = desktop::transport::unknown,
                .description = error.what()}));
    return {};
  }
  return transport_->send(post, std::move(done));
}

Error LoadedTransport::error(desktop::transport::ErrorCode code) const {
  return transportError(code);
}

}  // namespace quillseal::linux
