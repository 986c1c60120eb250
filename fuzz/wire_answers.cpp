#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "core/signing/HandoffPage.h"
#include "core/signing/WireMessages.h"
#include "core/text/StrictJson.h"

namespace {

using namespace quillseal;
using nlohmann::json;

template <typename Response>
std::optional<Response> read(std::string_view text) {
  try {
    return wire::decoded<Response>(text);
  } catch (const JsonError& error) {
    // The message is shown to the user, so it must not be empty or a megabyte long.
    if (std::string_view(error.what()).empty() || std::string_view(error.what()).size() > 1000)
      std::abort();
    return std::nullopt;
  }
}

void requireMember(const json& tree, const char* key, const json& value) {
  if (!tree.is_object() || tree.value(key, json()) != value) std::abort();
}

}  // namespace

/// Each kind of answer has the values that an ordinary parser finds, or is refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const json tree = json::parse(text, nullptr, false);
  if (const auto answer = read<wire::EnrolResponse>(text)) {
    requireMember(tree, "status", answer->status);
    requireMember(tree, "device_id", answer->deviceId);
    requireMember(tree, "identity", answer->identity ? json(*answer->identity) : json());
  }
  if (const auto answer = read<wire::SignResponse>(text))
    requireMember(tree, "signature_id", answer->signatureId);
  if (const auto answer = read<wire::DemoSignResponse>(text)) {
    requireMember(tree, "signature_id", answer->signatureId);
    requireMember(tree, "demo", answer->demo);
  }
  if (const auto answer = read<wire::HandoffCreateResponse>(text)) {
    requireMember(tree, "handoff_id", answer->handoffId);
    requireMember(tree, "url", answer->url);
    const bool isPlain = answer->url.find_first_of(" \"`<>\\\n") == std::string::npos;
    if (HandoffPage::isOpenable(answer->url) && !isPlain) std::abort();
  }
  if (const auto answer = read<wire::HandoffPollResponse>(text)) {
    requireMember(tree, "status", answer->status);
    requireMember(tree, "signature_id", answer->signatureId ? json(*answer->signatureId) : json());
  }
  if (const auto answer = read<wire::ErrorResponse>(text))
    requireMember(tree, "error", answer->error);
  return 0;
}
