#include "network/HttpModule.h"

#include "network/CurlTransport.h"

extern "C" __attribute__((visibility("default"))) void quillseal_make_http_transport(
    quillseal::desktop::MainLoop& loop, quillseal::linux::Descriptors& descriptors,
    std::unique_ptr<quillseal::desktop::HttpTransport>& made) {
  made = std::make_unique<quillseal::linux::CurlTransport>(
      loop, descriptors, quillseal::linux::CurlTransport::Options{});
}
