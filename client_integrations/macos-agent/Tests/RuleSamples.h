#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace quillseal::testing {

/// Texts that show what a content rule is meant for.
struct RuleSamples {
  std::string_view id;
  std::vector<std::string_view> hits;        ///< the rule matches each; at least two
  std::vector<std::string_view> nearMisses;  ///< the rule matches none, though words are shared
};

/// The samples of every content rule, in table order.
[[nodiscard]] std::span<const RuleSamples> ruleSamples();

}  // namespace quillseal::testing
