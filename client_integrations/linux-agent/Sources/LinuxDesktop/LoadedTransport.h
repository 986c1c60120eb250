#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "Desktop/HttpTransport.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/Descriptors.h"

namespace quillseal {

/// The transport of a module that is loaded with the first request: libcurl brings some thirty
/// libraries, which an agent that waits for days need not hold.
class LoadedTransport final : public desktop::HttpTransport {
 public:
  struct Options {
    std::vector<std::filesystem::path> places;  ///< where the module may be; the first there counts
    std::string version;                        ///< that the module must be of
  };

  /// `loop` and `descriptors` outlive the transport.
  LoadedTransport(desktop::MainLoop& loop, Descriptors& descriptors, Options options);

  /// Without a usable module, every request fails with a sentence that tells what to do.
  [[nodiscard]] desktop::Ticket send(
      const desktop::HttpPost& post,
      std::function<void(Outcome<desktop::HttpResponse>)> done) override;

  [[nodiscard]] Error error(desktop::transport::ErrorCode code) const override;

  /// Where installing and building put the module, seen from the program that runs.
  [[nodiscard]] static std::vector<std::filesystem::path> usualPlaces();

 private:
  void load();

  desktop::MainLoop& loop_;
  Descriptors& descriptors_;
  Options options_;
  std::unique_ptr<desktop::HttpTransport> transport_;
};

}  // namespace quillseal
