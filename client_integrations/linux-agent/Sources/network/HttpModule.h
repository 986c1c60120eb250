#pragma once

#include <memory>

#include "desktop/HttpTransport.h"
#include "desktop/MainLoop.h"
#include "session/Descriptors.h"

/// The module that holds the transport: libcurl loads some thirty libraries.
namespace quillseal::linux::HttpModule {

inline constexpr const char* fileName = "quillseal-http.so";

/// The only function that the module exports, and its symbol.
using Make = void(desktop::MainLoop&, Descriptors&, std::unique_ptr<desktop::HttpTransport>& made);
inline constexpr const char* make = "quillseal_make_http_transport";

}  // namespace quillseal::linux::HttpModule
