#pragma once

#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quillseal::testing {

/// The cases of the running test: what stands in its program's data file QUILLSEAL_CASES between
/// "# " and its name and the next such line, one JSON value a line beside comments ("## ").
/// {3*ab} stands for ababab.
inline std::vector<nlohmann::ordered_json> cases() {
  static const std::regex repetition(R"(\{(\d+)\*([^{}]+)\})");
  const std::string heading =
      std::string("# ") + ::testing::UnitTest::GetInstance()->current_test_info()->name();
  std::vector<nlohmann::ordered_json> result;
  std::ifstream file(QUILLSEAL_CASES);
  std::string line;
  while (std::getline(file, line) && line != heading) {
  }
  while (std::getline(file, line) && !line.starts_with("# ")) {
    if (line.empty() || line.starts_with("##")) continue;
    for (std::smatch found; std::regex_search(line, found, repetition);) {
      std::string whole;
      for (int i = std::stoi(found[1]); i > 0; --i)
        whole += found[2];
      line.replace(found[0].first, found[0].second, whole);
    }
    result.push_back(nlohmann::ordered_json::parse(line));
  }
  EXPECT_FALSE(result.empty()) << "no cases below " << heading;
  return result;
}

}  // namespace quillseal::testing
