#include "wayland/SwayReports.h"

#include <algorithm>
#include <istream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/text/UnicodeText.h"

namespace quillseal::linux {
namespace {

using nlohmann::json;

/// Returns one name for each key that has several.
std::string plainName(std::string_view key) {
  static const std::map<std::string, std::string, std::less<>> others = {
      {"ctrl", "control"}, {"alt", "mod1"}, {"super", "mod4"}, {"logo", "mod4"}};
  std::string name = unicode::lowercased(key);
  const auto found = others.find(name);
  return found == others.end() ? name : found->second;
}

std::set<std::string> keysOf(std::string_view combination) {
  std::set<std::string> keys;
  std::istringstream parts{std::string(combination)};
  for (std::string part; std::getline(parts, part, '+');)
    keys.insert(plainName(part));
  return keys;
}

/// The variables of a configuration, "$mod" and the like, substituted in sway's order: the longest
/// name first.
class Variables {
 public:
  /// Reads the words behind "set": a name, and a value that may use variables itself.
  void read(std::istream& words) {
    std::string name;
    std::string value;
    if (words >> name && std::getline(words >> std::ws, value)) values_[name] = resolved(value);
  }

  [[nodiscard]] std::string resolved(std::string text) const {
    for (const auto& [name, value] : values_)
      for (std::size_t at = text.find(name); at != std::string::npos;
           at = text.find(name, at + value.size()))
        text.replace(at, name.size(), value);
    return text;
  }

 private:
  struct LongerFirst {
    bool operator()(const std::string& a, const std::string& b) const {
      return a.size() != b.size() ? a.size() > b.size() : a < b;
    }
  };
  std::map<std::string, std::string, LongerFirst> values_;
};

bool isBinding(const std::string& word) {
  return word == "bindsym" || word == "bindcode";
}

bool opensBlock(std::string_view line) {
  const std::size_t last = line.find_last_not_of(" \t");
  return last != std::string_view::npos && line[last] == '{';
}

/// The next line with those that a backslash joins to it; nothing at the end.
std::optional<std::string> nextLine(std::istream& lines) {
  std::string line;
  if (!std::getline(lines, line)) return std::nullopt;
  while (line.ends_with('\\')) {
    std::string more;
    line.pop_back();
    if (!std::getline(lines, more)) break;
    line += more;
  }
  return line;
}

}  // namespace

std::string textOf(const json& object, const char* key) {
  const auto found = object.find(key);
  return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

std::optional<SwayApplication> applicationIn(std::string_view tree, std::string_view title) {
  std::set<std::string> ids;
  std::set<std::uint32_t> processes;
  const json parsed = json::parse(tree, nullptr, false);
  std::vector<const json*> open = {&parsed};
  while (!open.empty()) {
    const json& node = *open.back();
    open.pop_back();
    if (!node.is_object()) continue;
    for (const char* children : {"nodes", "floating_nodes"})
      if (const auto list = node.find(children); list != node.end() && list->is_array())
        for (const json& child : *list)
          open.push_back(&child);
    const auto process = node.find("pid");
    if (process == node.end() || textOf(node, "name") != title) continue;
    const auto x11 = node.find("window_properties");
    ids.insert(x11 != node.end() ? textOf(*x11, "class") : textOf(node, "app_id"));
    processes.insert(process->is_number_unsigned() ? process->get<std::uint32_t>() : 0);
  }
  if (ids.size() != 1 || ids.begin()->empty()) return std::nullopt;
  return SwayApplication{.id = *ids.begin(),
                         .process = processes.size() == 1 ? *processes.begin() : 0};
}

bool bindsAlready(std::string_view configuration, const SwayChord& chord) {
  const std::set<std::string> modifiers = {"control", "mod1", "mod4"};
  std::set<std::string> bySymbol = modifiers;
  bySymbol.insert(unicode::lowercased(chord.symbol));
  std::set<std::string> byCode = modifiers;
  byCode.insert(std::to_string(chord.code));

  Variables variables;
  std::vector<std::string> blocks;  // first words of the open blocks
  std::istringstream lines{std::string(configuration)};
  while (const std::optional<std::string> line = nextLine(lines)) {
    std::istringstream words(*line);
    std::string word;
    if (!(words >> word)) continue;
    if (word == "}") {
      if (!blocks.empty()) blocks.pop_back();
    } else if (word == "set") {
      variables.read(words);
    } else if (opensBlock(*line)) {
      blocks.push_back(word);
    } else if (std::ranges::all_of(blocks, isBinding)) {
      if (blocks.empty() && !(isBinding(word) && words >> word)) continue;
      while (word.starts_with("--") && words >> word) {
      }
      const std::set<std::string> keys = keysOf(variables.resolved(word));
      if (keys == bySymbol || keys == byCode) return true;
    }
  }
  return false;
}

}  // namespace quillseal::linux
