#include "Quillseal/BuiltInServer.h"

namespace quillseal::builtInServer {

std::string_view url() noexcept {
  return QUILLSEAL_DEFAULT_SERVER_URL;
}

std::string_view apiKey() noexcept {
  return QUILLSEAL_DEFAULT_API_KEY;
}

}  // namespace quillseal::builtInServer
