#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quillseal::testing {

/// The cases of the running test in cases.jsonl, which explains its form; `part` is the rest of
/// their heading. Throws when there are none.
template <typename... Fields>
std::vector<std::tuple<Fields...>> cases(const std::string& part = "") {
  const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
  const std::string heading = std::string("# ") + test.test_suite_name() + '.' + test.name() + part;
  std::vector<std::tuple<Fields...>> result;
  std::ifstream file(QUILLSEAL_CASES);
  std::string line;
  while (std::getline(file, line) && line != heading) {
  }
  while (std::getline(file, line) && !line.starts_with("# "))
    if (line.starts_with('['))
      result.push_back(nlohmann::json::parse(line).get<std::tuple<Fields...>>());
  if (result.empty()) throw std::runtime_error("no cases below " + heading);
  return result;
}

}  // namespace quillseal::testing
