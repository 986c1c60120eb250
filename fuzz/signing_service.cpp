#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "Fuzzer.h"
#include "Service.h"

namespace {

using namespace quillseal::devserver;

constexpr auto paths = std::to_array<std::string_view>(
    {"/api/register_native", "/api/sign_native", "/api/sign_demo", "/api/handoff/create",
     "/api/handoff/poll", "/handoff", "/verify/0a1b", ""});

std::string_view cut(std::string_view& rest) {
  const std::string_view field = rest.substr(0, rest.find('\0'));
  rest.remove_prefix(std::min(rest.size(), field.size() + 1));
  return field;
}

}  // namespace

/// To any request, the development server answers with one of its own statuses and never with the
/// sender's markup. The input is the choice of a path, then path, host, handoff and body, separated
/// by zero bytes.
void quillseal::fuzz::check(std::string_view bytes) {
  if (bytes.empty()) return;
  Registry registry(":memory:");
  Service service(registry,
                  {.apiKey = "k", .identity = "Ada", .origin = "", .now = [] { return 0; }});
  std::string_view rest = bytes.substr(1);
  const std::string path(paths[static_cast<unsigned char>(bytes[0]) % paths.size()]);
  const std::string more(cut(rest));
  const std::string host(cut(rest));
  const std::string handoff(cut(rest));
  for (const char* method : {"POST", "GET"}) {
    const Reply reply = service.answer({.method = method,
                                        .path = path + more,
                                        .contentType = "application/json",
                                        .host = host,
                                        .handoffId = handoff,
                                        .body = std::string(rest)});
    require(reply.status >= 200 && reply.status <= 499 && !reply.contentType.empty());
    require(!reply.contentType.starts_with("text/html") ||
            reply.body.find("<fuzz") == std::string::npos);
  }
}
