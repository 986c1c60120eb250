#include "core/signing/SigningScope.h"

#include "core/text/UnicodeText.h"

namespace quillseal::SigningScope {
namespace {

constexpr std::size_t longestScope = 200;

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// Kinds are tried in order, each first in the bundle identifier and then in the name.
struct Kind {
  std::string_view word;
  std::string_view medium;
};

constexpr std::array kinds{
    Kind{.word = "outlook", .medium = "Email Message"},
    Kind{.word = "mail", .medium = "Email Message"},
    Kind{.word = "word", .medium = "Word Document"},
    Kind{.word = "pages", .medium = "Pages Document"},
};

}  // namespace

AppScope detectAppScope(const ApplicationNames& application) {
  const bool isNamed = application.name && !application.name->empty();
  std::string app{isNamed ? *application.name : "Desktop App"};
  const std::string identifier = unicode::lowercased(application.bundleIdentifier);
  const std::string name = unicode::lowercased(app);
  for (const Kind& kind : kinds) {
    if (!contains(identifier, kind.word) && !contains(name, kind.word)) continue;
    std::string scope{kind.medium};
    scope.append(" (").append(app).append(")");
    return {.app = std::move(app), .scope = std::move(scope)};
  }
  return {.app = std::move(app), .scope = "Public Broadcast"};
}

std::size_t defaultMediumIndex(std::string_view scope) {
  constexpr std::size_t outlook = 0, appleMail = 1, wordDocument = 6;
  const std::string lower = unicode::lowercased(scope);
  if (contains(lower, "outlook")) return outlook;
  if (contains(lower, "mail")) return appleMail;
  if (contains(lower, "word")) return wordDocument;
  return mediumOptions.size() - 1;
}

std::string composeScope(const ScopeParts& parts) {
  const std::string_view recipient = unicode::trimmed(parts.recipient);
  std::string scope{parts.base};
  if (recipient.empty()) return scope;
  scope.append(" → ").append(recipient);
  return std::string{unicode::firstCharacters(scope, longestScope)};
}

}  // namespace quillseal::SigningScope
