#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Quillseal/BuiltInServer.h"
#include "desktop/Defaults.h"

/// The user's settings: their keys, their types, and what holds when one is absent.
namespace quillseal::Settings {

struct Text {
  using Fallback = std::string_view (*)() noexcept;

  std::string_view key;
  Fallback fallback;

  /// As it was stored; nothing when absent.
  [[nodiscard]] std::optional<std::string> stored(const desktop::Defaults& defaults) const {
    return defaults.string(key);
  }
  /// As it was stored, or the fallback.
  [[nodiscard]] std::string value(const desktop::Defaults& defaults) const {
    return stored(defaults).value_or(std::string(fallback()));
  }
  void store(desktop::Defaults& defaults, std::string_view value) const {
    defaults.setString(key, value);
  }
};

/// What the agent has decided; undecided when absent.
struct Decision {
  std::string_view key;

  /// As it was stored; nothing when absent.
  [[nodiscard]] std::optional<std::string> stored(const desktop::Defaults& defaults) const {
    return defaults.string(key);
  }
  void store(desktop::Defaults& defaults, std::string_view value) const {
    defaults.setString(key, value);
  }
};

/// Off when absent.
struct Flag {
  std::string_view key;

  [[nodiscard]] bool isOn(const desktop::Defaults& defaults) const { return defaults.boolean(key); }
  void store(desktop::Defaults& defaults, bool isOn) const {
    defaults.setString(key, isOn ? "true" : "false");
  }
};

constexpr std::string_view nothing() noexcept {
  return {};
}

/// The origin of the signing server.
inline constexpr Text serverURL{.key = "ServerURL", .fallback = BuiltInServer::url};
/// What authorises this build at the server.
inline constexpr Text apiKey{.key = "APIKey", .fallback = BuiltInServer::apiKey};
/// The name of the person that the server has bound to this device; unverified when empty.
inline constexpr Text boundIdentity{.key = "BoundIdentity", .fallback = nothing};
/// "enclave" or "handoff", once the first signature has shown which; see SigningMode.
inline constexpr Decision signingMode{.key = "SigningMode"};

/// Whether each signature is confirmed in a dialog first.
inline constexpr Flag confirmBeforeSigning{.key = "ConfirmBeforeSigning"};
/// Whether signatures are demonstrations only.
inline constexpr Flag demoSigning{.key = "DemoSigning"};
/// Whether each captured text is written to a file, for debugging.
inline constexpr Flag debugCapture{.key = "QuillsealDebugCapture"};

}  // namespace quillseal::Settings
