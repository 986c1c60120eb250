#include "LinuxDesktop/HttpModule.h"

#include "LinuxDesktop/CurlTransport.h"

extern "C" __attribute__((visibility("default"))) void quillseal_make_http_transport(
    quillseal::HttpModuleCall& call) {
  if (call.version != QUILLSEAL_VERSION) return;
  call.transport = std::make_unique<quillseal::CurlTransport>(call.loop, call.descriptors,
                                                              quillseal::CurlTransport::Options{});
}
