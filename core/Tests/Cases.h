#pragma once

#include <cstddef>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

/// Cases of tests in files, which CMake names in QUILLSEAL_CASES with colons between. "#
/// Suite.Test" heads the cases of a test, one a line, up to the next such heading; empty lines and
/// "## remarks" are left out. {3*ab} stands for ababab. A case is a JSON value, or a text with the
/// escapes of JSON but without its quotation marks.
namespace quillseal::testing {

using Json = nlohmann::ordered_json;

inline std::string runningTest() {
  const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
  return std::string(test.test_suite_name()) + '.' + test.name();
}

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

/// The lines below a heading. Throws when there are none.
inline std::vector<std::string> caseLines(const std::string& heading) {
  std::vector<std::string> lines;
  std::istringstream paths(QUILLSEAL_CASES);
  for (std::string path; std::getline(paths, path, ':');) {
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line) && line != "# " + heading) {
    }
    while (std::getline(file, line) && !line.starts_with("# "))
      if (!line.empty() && !line.starts_with("##")) lines.push_back(withoutRepetitions(line));
  }
  if (lines.empty()) throw std::runtime_error("no cases below " + heading);
  return lines;
}

inline std::vector<std::string> textCases(const std::string& heading = runningTest()) {
  std::vector<std::string> texts = caseLines(heading);
  for (std::string& text : texts) {
    for (std::size_t at = 0; (at = text.find('"', at)) != std::string::npos; at += 2)
      text.insert(at, 1, '\\');
    text = Json::parse('"' + text + '"').get<std::string>();
  }
  return texts;
}

inline std::vector<Json> cases() {
  std::vector<Json> values;
  for (const std::string& line : caseLines(runningTest()))
    values.push_back(Json::parse(line));
  return values;
}

/// The parts of a text before and behind a separator; the second is empty without one.
inline std::pair<std::string, std::string> divided(const std::string& text,
                                                   const std::string& separator) {
  const std::size_t at = text.find(separator);
  if (at == std::string::npos) return {text, ""};
  return {text.substr(0, at), text.substr(at + separator.size())};
}

/// Tells the stories below a heading, line by line. "[TITLE]" begins one with what `begin` returns,
/// or skips it when that is null; one at least must be told. "NAME == VALUE" and "NAME ~ PART"
/// compare with the story's `stateOf(NAME)`, where "nothing" is the empty text; every other line is
/// for its `act`.
void tell(const std::string& heading, const auto& begin) {
  decltype(begin(heading)) story;
  std::string title;
  bool isTold = false;
  for (const std::string& line : textCases(heading)) {
    SCOPED_TRACE(title + " before " + line.substr(0, 80));
    const auto [name, value] = divided(line, " == ");
    const auto [whole, part] = divided(line, " ~ ");
    if (line.starts_with('[')) {
      title = line;
      story.reset();
      story = begin(title);
      isTold = isTold || story;
    } else if (!story) {
      continue;
    } else if (name != line) {
      EXPECT_EQ(story->stateOf(name), value == "nothing" ? "" : value);
    } else if (whole != line) {
      const std::string state = story->stateOf(whole);
      EXPECT_NE(state.find(part), std::string::npos) << state;
    } else {
      story->act(line);
    }
  }
  EXPECT_TRUE(isTold) << "no story below " << heading << " is told here";
}

/// Cases that are lists of so many fields.
template <typename First, typename... More>
std::vector<std::tuple<First, More...>> cases() {
  std::vector<std::tuple<First, More...>> rows;
  for (const Json& value : cases()) {
    if (value.size() != 1 + sizeof...(More))
      throw std::runtime_error("not the fields of a case: " + value.dump());
    rows.push_back(value.get<std::tuple<First, More...>>());
  }
  return rows;
}

}  // namespace quillseal::testing
