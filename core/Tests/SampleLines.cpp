#include "SampleLines.h"

#include <fstream>
#include <stdexcept>

#include "core/text/UnicodeText.h"

namespace quillseal::testing {

std::vector<std::string> linesOf(const std::string& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    for (std::size_t at = 0; (at = line.find("\\u{", at)) != std::string::npos;) {
      std::string scalar;
      unicode::append(scalar, static_cast<char32_t>(std::stoul(line.substr(at + 3), nullptr, 16)));
      line.replace(at, line.find('}', at) + 1 - at, scalar);
    }
    line = unicode::replacingAll(line, "\\n", "\n");
    lines.push_back(unicode::replacingAll(line, "\\r", "\r"));
  }
  if (lines.empty()) throw std::runtime_error("no lines in " + path);
  return lines;
}

std::pair<std::string, std::string> divided(const std::string& line, const std::string& separator) {
  const std::size_t at = line.find(separator);
  if (at == std::string::npos) return {line, ""};
  return {line.substr(0, at), line.substr(at + separator.size())};
}

std::vector<std::string> splitAt(std::string line, const std::string& separator) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; (at = line.find(separator)) != std::string::npos;
       line.erase(0, at + separator.size()))
    parts.push_back(line.substr(0, at));
  parts.push_back(line);
  return parts;
}

}  // namespace quillseal::testing
