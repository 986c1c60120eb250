#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "desktop/Alerts.h"
#include "desktop/StatusItem.h"
#include "desktop/Window.h"
#include "keys/KeyMedium.h"

/// The agent's texts as they read on a Linux desktop. Only what the agent itself says is changed,
/// and only when it is shown: a row of the table names a whole text or the fixed beginning or end
/// of a paragraph, so that a text to be signed, an identity, an address or a server's answer comes
/// through as it is. Pure.
namespace quillseal::PlatformWording {

/// With what the person agrees to a signature.
enum class Proof {
  pin,
  passphrase,
  presence,  ///< no key is used; which of the two it will be is not known before
};

struct Circumstances {
  KeyPlace key;
  Proof proof;
};

/// Asked whenever a text is shown: keys come and go.
using CurrentCircumstances = std::function<Circumstances()>;

/// The circumstances of a signature made with a key in `place`.
[[nodiscard]] Circumstances withKeyIn(KeyPlace place) noexcept;

[[nodiscard]] std::string adapted(std::string_view text, const Circumstances& circumstances);

[[nodiscard]] desktop::Alert adapted(desktop::Alert alert, const Circumstances& circumstances);
[[nodiscard]] desktop::Question adapted(desktop::Question question,
                                        const Circumstances& circumstances);
[[nodiscard]] desktop::ConfirmationForm adapted(desktop::ConfirmationForm form,
                                                const Circumstances& circumstances);
[[nodiscard]] desktop::Form adapted(desktop::Form form, const Circumstances& circumstances);
[[nodiscard]] desktop::StatusMenu adapted(desktop::StatusMenu menu,
                                          const Circumstances& circumstances);

}  // namespace quillseal::PlatformWording
