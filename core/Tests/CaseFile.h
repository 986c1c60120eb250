#pragma once

#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quillseal::testing {

/// `line` with each {3*ab}, from the innermost outwards, written as ababab.
inline std::string withoutRepetitions(std::string line) {
  for (std::size_t open = line.rfind('{'); open != std::string::npos;
       open = open == 0 ? std::string::npos : line.rfind('{', open - 1)) {
    const std::size_t star = line.find_first_not_of("0123456789", open + 1);
    const std::size_t close = line.find('}', open);
    if (star == open + 1 || star >= close || line[star] != '*') continue;
    const std::string part = line.substr(star + 1, close - star - 1);
    std::string whole;
    for (int i = std::stoi(line.substr(open + 1)); i > 0; --i)
      whole += part;
    line.replace(open, close + 1 - open, whole);
  }
  return line;
}

/// The cases of the running test: what stands in its program's data file QUILLSEAL_CASES between
/// "# " and its name and the next such line, one JSON value a line beside comments ("## ").
/// {3*ab} stands for ababab.
inline std::vector<nlohmann::ordered_json> cases() {
  const std::string heading =
      std::string("# ") + ::testing::UnitTest::GetInstance()->current_test_info()->name();
  std::vector<nlohmann::ordered_json> result;
  std::ifstream file(QUILLSEAL_CASES);
  std::string line;
  while (std::getline(file, line) && line != heading) {
  }
  while (std::getline(file, line) && !line.starts_with("# ")) {
    if (line.empty() || line.starts_with("##")) continue;
    result.push_back(nlohmann::ordered_json::parse(withoutRepetitions(line)));
  }
  EXPECT_FALSE(result.empty()) << "no cases below " << heading;
  return result;
}

}  // namespace quillseal::testing
