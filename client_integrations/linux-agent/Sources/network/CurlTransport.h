#pragma once

#include <functional>
#include <memory>
#include <string>

#include <curl/curl.h>

#include "desktop/HttpTransport.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

namespace quillseal::linux {

/// HTTP over libcurl, driven by the main loop. No call blocks; libcurl resolves names on its own
/// threads. Redirects are not followed, since every request is a POST that carries a key. An answer
/// of more than 8 MiB is refused.
class CurlTransport final : public desktop::HttpTransport {
 public:
  struct Options {
    /// A PEM file of certificates to trust instead of the system's; empty for the system's.
    std::string certificateAuthorities;
  };

  /// `loop` and `descriptors` outlive the transport.
  CurlTransport(desktop::MainLoop& loop, Descriptors& descriptors, Options options);
  ~CurlTransport() override;

  [[nodiscard]] desktop::Ticket send(
      const desktop::HttpPost& post,
      std::function<void(Outcome<desktop::HttpResponse>)> done) override;

  [[nodiscard]] Error error(desktop::transport::ErrorCode code) const override;

  /// Maps a libcurl error to the agent's error code. `systemError` is the `errno` that came with
  /// it, or 0.
  [[nodiscard]] static desktop::transport::ErrorCode errorCodeOf(CURLcode failure,
                                                                 long systemError) noexcept;

 private:
  class Engine;

  [[nodiscard]] Engine& engine();

  desktop::MainLoop& loop_;
  Descriptors& descriptors_;
  Options options_;
  std::shared_ptr<Engine> engine_;
};

}  // namespace quillseal::linux
