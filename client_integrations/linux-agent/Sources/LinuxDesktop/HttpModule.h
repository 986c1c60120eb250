#pragma once

#include <memory>
#include <string_view>

#include "Desktop/HttpTransport.h"
#include "Desktop/MainLoop.h"
#include "LinuxDesktop/Descriptors.h"

namespace quillseal {

/// What the program and the module that holds the transport say to each other. The module is
/// loaded into a program that may be older than it, so `version` comes first and is looked at
/// first.
struct HttpModuleCall {
  std::string_view version;  ///< of the program
  desktop::MainLoop& loop;
  Descriptors& descriptors;
  std::unique_ptr<desktop::HttpTransport> transport;  ///< the answer; null for another version
};

/// The one function of the module, and its name there.
using HttpModuleFunction = void(HttpModuleCall&);
inline constexpr const char* httpModuleFunction = "quillseal_make_http_transport";

/// A relative path, from the folder of the installed program to the installed module.
extern const char httpModuleFromProgram[];

}  // namespace quillseal
