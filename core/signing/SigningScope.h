#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The scope: where a text is going, as a signature binds it and readers see it, such as "Email
/// Message (Microsoft Outlook) → ada@example.com". Pure functions.
namespace quillseal::SigningScope {

/// How an application calls itself.
struct ApplicationNames {
  std::optional<std::string_view> name;  ///< an empty one counts as none
  std::string_view bundleIdentifier;     ///< with further words of its kind, if the desktop has any
};

struct AppScope {
  std::string app;    ///< display name
  std::string scope;  ///< the medium
};

/// The medium that an application stands for, by plain substrings of its names. What is neither
/// mail nor a word processor nor a page layout counts as public.
[[nodiscard]] AppScope detectAppScope(const ApplicationNames& application);

/// The media a user can choose from; the last stands for everything else.
inline constexpr auto mediumOptions = std::to_array<std::string_view>(
    {"Email Message (Microsoft Outlook)", "Email Message (Apple Mail)", "LinkedIn Post",
     "X / Twitter Post", "Facebook Post", "Instagram Post", "Word Document",
     "Other / Unspecified"});

/// The index in `mediumOptions` that fits `scope`.
[[nodiscard]] std::size_t defaultMediumIndex(std::string_view scope);

struct ScopeParts {
  std::string_view base;
  std::string_view recipient;  ///< white space at its ends is ignored; may be empty
};

/// Medium and recipient as one scope. One with a recipient has 200 characters at most.
[[nodiscard]] std::string composeScope(const ScopeParts& parts);

}  // namespace quillseal::SigningScope
