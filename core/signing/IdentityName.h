#pragma once

#include <string>
#include <string_view>

/// The name that a server binds to a device, as people read it. Signatures bind its bytes; these
/// functions are for what is shown. Pure functions.
namespace quillseal::IdentityName {

/// Whether a name is what it looks like: it has a visible character, and no
/// control, line break, directional control or other invisible scalar. Joiners and variation
/// selectors, which names in many scripts need, are allowed.
[[nodiscard]] bool isPlain(std::string_view name);

/// A name for the middle of a sentence. What `isPlain` does not allow is spelled out, as in
/// "Ada‹U+202E›", and a name that is written from right to left does not change the order of the
/// words around it. Any other name is returned as it is.
[[nodiscard]] std::string shown(std::string_view name);

}  // namespace quillseal::IdentityName
