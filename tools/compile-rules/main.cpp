#include <algorithm>
#include <cstddef>
#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>

#include "PatternCompiler/RulePatterns.h"
#include "PatternCompiler/TableCompiler.h"
#include "Quillseal/StoredTables.h"

namespace {

/// The tables as a string literal: compilers read those many times faster than lists of numbers.
void writeSource(std::ostream& out, std::span<const std::byte> tables) {
  out << "#include \"Quillseal/CompiledRules.h\"\n\n"
         "namespace quillseal::screening {\nnamespace {\n\n"
         "alignas("
      << quillseal::screening::tableAlignment << ") constexpr unsigned char tables[] =";
  constexpr std::size_t bytesOfLine = 32;
  for (std::size_t start = 0; start < tables.size(); start += bytesOfLine) {
    out << "\n    \"";
    for (const std::byte byte :
         tables.subspan(start, std::min(bytesOfLine, tables.size() - start))) {
      const auto value = std::to_integer<unsigned>(byte);
      out << '\\' << value / 64 << value / 8 % 8 << value % 8;
    }
    out << '"';
  }
  out << ";\n\n}  // namespace\n\n"
         "std::span<const std::byte> compiledRules() {\n"
         "  return std::as_bytes(std::span(tables)).first<sizeof tables - 1>();\n"
         "}\n\n}  // namespace quillseal::screening\n";
}

}  // namespace

/// Writes the tables of all rules as the C++ source named on the command line.
int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: quillseal-compile-rules FILE\n";
    return 2;
  }
  try {
    const auto compiled =
        quillseal::screening::compilePatterns(quillseal::screening::rulePatterns());
    for (const auto& problem : compiled.problems)
      std::cerr << "warning: pattern " << problem.pattern << " is left out: " << problem.reason
                << '\n';
    std::ofstream file(argv[1]);
    writeSource(file, compiled.tables);
    file.close();
    if (!file) throw std::runtime_error(std::string("cannot write ") + argv[1]);
  } catch (const std::exception& error) {
    std::cerr << "quillseal-compile-rules: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
