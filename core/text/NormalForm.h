#pragma once

#include <string>
#include <string_view>

namespace quillseal {

/// The canonical form of a text: NFC, typographic dashes and quotes as their ASCII counterparts,
/// and without white space, angle brackets and invisible controls. Takes linear time.
[[nodiscard]] std::string normalForm(std::string_view text);

/// Whether the canonical form of a text leaves this scalar out.
[[nodiscard]] bool isLeftOut(char32_t scalar) noexcept;

}  // namespace quillseal
