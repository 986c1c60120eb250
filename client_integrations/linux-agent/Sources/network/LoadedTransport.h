#pragma once

#include <memory>

#include "desktop/HttpTransport.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"
#include "session/LoadedModule.h"

namespace quillseal::linux {

/// The transport of `HttpModule`. Loads the module at the first request.
class LoadedTransport final : public desktop::HttpTransport {
 public:
  /// `loop` and `descriptors` outlive the transport.
  LoadedTransport(desktop::MainLoop& loop, Descriptors& descriptors, LoadedModule module);

  /// Without a usable module, every request fails with a sentence that says what to do.
  [[nodiscard]] desktop::Ticket send(
      const desktop::HttpPost& post,
      std::function<void(Outcome<desktop::HttpResponse>)> done) override;

  [[nodiscard]] Error error(desktop::transport::ErrorCode code) const override;

 private:
  desktop::MainLoop& loop_;
  Descriptors& descriptors_;
  LoadedModule module_;
  std::unique_ptr<desktop::HttpTransport> transport_;
};

}  // namespace quillseal::linux
