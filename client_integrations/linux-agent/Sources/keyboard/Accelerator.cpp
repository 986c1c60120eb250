#include "keyboard/Accelerator.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <utility>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "keyboard/KeyChords.h"

namespace quillseal::linux {
namespace {

/// The modifiers in the order in which people name them.
constexpr std::array modifierNames = {"Ctrl", "Alt", "Shift", "Super"};

/// What GTK reads as one of them, in lower case, and its place among the names.
constexpr auto spellings = std::to_array<std::pair<std::string_view, std::size_t>>({{"control", 0},
                                                                                    {"ctrl", 0},
                                                                                    {"ctl", 0},
                                                                                    {"primary", 0},
                                                                                    {"alt", 1},
                                                                                    {"mod1", 1},
                                                                                    {"shift", 2},
                                                                                    {"shft", 2},
                                                                                    {"super", 3},
                                                                                    {"mod4", 3}});

struct Parts {
  std::set<std::size_t> modifiers;  ///< places among the names
  std::set<std::string> others;     ///< other modifiers, as written
  std::string key;

  bool operator==(const Parts&) const = default;
};

std::string lowerCase(std::string_view text) {
  std::string result(text);
  // Of ASCII only, whatever the user's locale makes of other letters.
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

Parts partsOf(std::string_view accelerator) {
  Parts parts;
  while (accelerator.starts_with('<')) {
    const std::size_t end = accelerator.find('>');
    if (end == std::string_view::npos) break;
    const std::string_view modifier = accelerator.substr(1, end - 1);
    const std::string spelling = lowerCase(modifier);
    const auto* const known = std::ranges::find(spellings, std::string_view(spelling),
                                                &decltype(spellings)::value_type::first);
    if (known != spellings.end())
      parts.modifiers.insert(known->second);
    else
      parts.others.emplace(modifier);
    accelerator.remove_prefix(end + 1);
  }
  parts.key = accelerator;
  return parts;
}

}  // namespace

std::string acceleratorOf(desktop::KeyPress press) {
  std::string result;
  for (const Keysym symbol : chordOf(press)) {
    switch (symbol) {
      case XKB_KEY_Control_L:
        result += "<Control>";
        break;
      case XKB_KEY_Alt_L:
        result += "<Alt>";
        break;
      case XKB_KEY_Super_L:
        result += "<Super>";
        break;
      default:
        result += desktop::letterOf(press.key);
    }
  }
  return result;
}

bool isSameAccelerator(std::string_view one, std::string_view other) {
  return partsOf(lowerCase(one)) == partsOf(lowerCase(other));
}

std::string nameOfAccelerator(std::string_view accelerator) {
  const Parts parts = partsOf(accelerator);
  std::string result;
  for (const std::size_t modifier : parts.modifiers)
    result.append(modifierNames.at(modifier)) += '+';
  for (const std::string& modifier : parts.others)
    result += modifier + "+";
  result += parts.key;
  if (parts.key.size() == 1)
    result.back() = static_cast<char>(std::toupper(static_cast<unsigned char>(result.back())));
  return result;
}

}  // namespace quillseal::linux
