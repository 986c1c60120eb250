#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "RulePatterns.h"
#include "core/reading/compile/ReadingCompiler.h"
#include "core/screening/compile/TableCompiler.h"
#include "core/screening/match/StoredTables.h"

namespace {

/// Writes bytes as a string literal, which compilers read many times faster than a list of numbers.
void writeLiteral(std::ostream& out, std::span<const std::byte> bytes) {
  constexpr std::size_t bytesOfLine = 32;
  for (std::size_t start = 0; start < bytes.size(); start += bytesOfLine) {
    out << "\n    \"";
    for (const std::byte byte : bytes.subspan(start, std::min(bytesOfLine, bytes.size() - start))) {
      const auto value = std::to_integer<unsigned>(byte);
      out << '\\' << value / 64 << value / 8 % 8 << value % 8;
    }
    out << '"';
  }
}

void writeRules(std::ostream& out, std::span<const std::byte> tables) {
  out << "#include \"Quillseal/CompiledRules.h\"\n\n"
         "namespace quillseal::screening {\nnamespace {\n\n"
         "alignas("
      << quillseal::screening::tableAlignment << ") constexpr unsigned char tables[] =";
  writeLiteral(out, tables);
  out << ";\n\n}  // namespace\n\n"
         "std::span<const std::byte> compiledRules() {\n"
         "  return std::as_bytes(std::span(tables)).first<sizeof tables - 1>();\n"
         "}\n\n}  // namespace quillseal::screening\n";
}

template <typename Numbers>
void writeArray(std::ostream& out, std::string_view type, std::string_view name,
                const Numbers& numbers) {
  constexpr std::size_t numbersOfLine = 16;
  out << "constexpr " << type << ' ' << name << "[] = {";
  for (std::size_t i = 0; i < numbers.size(); ++i)
    out << (i % numbersOfLine == 0 ? "\n    " : " ") << +numbers[i] << ',';
  out << "};\n\n";
}

void writeReadings(std::ostream& out, const quillseal::reading::CompiledTables& tables) {
  out << "#include \"core/reading/ReadingTables.h\"\n\n"
         "namespace quillseal::reading {\nnamespace {\n\n";
  writeArray(out, "std::uint16_t", "blocks", tables.blocks);
  writeArray(out, "std::uint16_t", "readings", tables.readings);
  writeArray(out, "std::uint32_t", "words", tables.words);
  writeArray(out, "std::uint8_t", "longest", tables.longest);
  out << "constexpr Reading distinctReadings[] = {";
  for (const quillseal::reading::Reading& reading : tables.distinctReadings) {
    out << "\n    {static_cast<Reading::Kind>(" << static_cast<int>(reading.kind) << "), {";
    for (const char character : reading.text)
      out << static_cast<int>(character) << ", ";
    out << "}},";
  }
  out << "};\n\n}  // namespace\n\n"
         "constinit const Tables compiledTables{blocks, readings, distinctReadings, words, "
         "longest};\n\n"
         "}  // namespace quillseal::reading\n";
}

template <typename Write>
void writeFile(const std::string& path, Write write) {
  std::ofstream file(path);
  write(file);
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path);
}

std::string contentsOf(const std::string& path) {
  std::ifstream file(path);
  std::string contents{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw std::runtime_error("cannot read " + path);
  return contents;
}

void compile(const std::string& commonWords, const std::string& rulesPath,
             const std::string& readingsPath) {
  const auto patterns = quillseal::screening::rulePatterns();
  const auto rules = quillseal::screening::compilePatterns(patterns);
  for (const auto& problem : rules.problems)
    std::cerr << "warning: pattern " << problem.pattern << " is left out: " << problem.reason
              << '\n';
  writeFile(rulesPath, [&](std::ostream& out) { writeRules(out, rules.tables); });
  const auto readings = quillseal::reading::compileReadings(patterns, contentsOf(commonWords));
  writeFile(readingsPath, [&](std::ostream& out) { writeReadings(out, readings); });
}

}  // namespace

/// Writes two C++ sources: the tables of all rules, and the tables for reading disguised text. The
/// input is a list of common words.
int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: quillseal-compile-rules WORDS RULES READINGS\n";
    return 2;
  }
  try {
    compile(argv[1], argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::cerr << "quillseal-compile-rules: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
