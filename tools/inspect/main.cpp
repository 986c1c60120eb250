#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>

#include <CLI/CLI.hpp>

#include "Inspection.h"
#include "Operations.h"
#include "PatternTrial.h"
#include "core/text/UnicodeText.h"
#include "core/text/UniqueHandle.h"

namespace {

constexpr int cannotReadOrWrite = 1;
constexpr int wrongUsage = 2;

struct Options {
  std::string textPath = "-";
  std::optional<std::string> htmlPath;
  std::optional<std::string> issued;
  std::optional<std::string> rule;
  std::optional<std::string> pattern;
  bool json = false;
  bool jsonl = false;
};

struct Failure {
  int status;
  std::string message;
};

std::string lastError() {
  return std::generic_category().message(errno);
}

/// Reads a file, or standard input for "-", as well-formed UTF-8.
std::string contentsOf(const std::string& path) {
  quillseal::UniqueHandle<std::FILE, std::fclose> opened;
  std::FILE* file = stdin;
  if (path != "-") {
    opened.reset(std::fopen(path.c_str(), "rb"));
    file = opened.get();
  }
  const std::string name = path == "-" ? "standard input" : '"' + path + '"';
  if (file == nullptr) throw Failure{cannotReadOrWrite, name + ": " + lastError()};

  std::string bytes;
  std::array<char, 65536> chunk{};
  while (const std::size_t count = std::fread(chunk.data(), 1, chunk.size(), file))
    bytes.append(chunk.data(), count);
  if (std::ferror(file) != 0) throw Failure{cannotReadOrWrite, name + ": " + lastError()};
  return quillseal::unicode::wellFormed(bytes);
}

void requireWritten() {
  if (!std::cout.flush()) throw Failure{cannotReadOrWrite, "standard output: " + lastError()};
}

std::string today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[sizeof "yyyy-MM-dd"];
  const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%d", &local);
  return {text, length};
}

constexpr const char* description =
    R"(Shows what Quillseal would sign for a text, without signing anything.
"quillseal-inspect rules" prints the table of content rules (a file of that name: ./rules).)";

constexpr const char* footer =
    R"(Exit status: 0, or 1 when a file cannot be read or the output not written, or 2 for a wrong use.
Example: printf '%s' "I met Ada on 3 May." | quillseal-inspect)";

/// Parses the options. Returns the exit status if the program should end.
std::optional<int> read(Options& options, int argc, char** argv) {
  CLI::App app(description, "quillseal-inspect");
  app.footer(footer);
  app.add_option("FILE", options.textPath, "the text in UTF-8; standard input when it is \"-\"")
      ->type_name("")
      ->capture_default_str();
  app.add_flag("--json", options.json, "print one JSON object instead of the report");
  app.add_option("--html", options.htmlPath, "the HTML form of the same text, for its images")
      ->type_name("FILE");
  app.add_option("--issued", options.issued, "the issue date, yyyy-MM-dd (today when left out)")
      ->type_name("DATE");
  app.add_option("--rule", options.rule,
                 "show where this rule matches, or how far the nearest\n"
                 "alternatives of its pattern came")
      ->type_name("ID");
  app.add_option("--pattern", options.pattern, "the same for a pattern, tried as the rule's")
      ->type_name("PATTERN");
  app.add_flag("--jsonl", options.jsonl,
               "answer requests, one JSON object a line, on standard input");
  app.set_version_flag("--version", "quillseal-inspect " QUILLSEAL_VERSION);
  app.set_help_flag("--help", "print this help");
  try {
    app.parse(argc, argv);
    const bool isTable = options.textPath == "rules";
    if (argc != 2 && (isTable || options.jsonl))
      throw CLI::ValidationError(isTable ? "rules" : "--jsonl", "stands alone");
    if (options.json && (options.rule || options.pattern))
      throw CLI::ValidationError("--json", "cannot be combined with --rule or --pattern");
    if (options.textPath == "-" && options.htmlPath == "-")
      throw CLI::ValidationError("--html", "only one of text and HTML can be standard input");
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_SUCCESS : wrongUsage;
  }
  return std::nullopt;
}

void answerRequests() {
  std::string line;
  while (std::getline(std::cin, line)) {
    std::cout << quillseal::inspect::answer(line) << '\n';
    requireWritten();
  }
  if (std::cin.bad()) throw Failure{cannotReadOrWrite, "standard input: " + lastError()};
}

void printInspection(const Options& options) {
  const std::string text = contentsOf(options.textPath);
  if (options.rule || options.pattern) {
    std::cout << quillseal::inspect::ruleReport(
        {.rule = options.rule, .pattern = options.pattern, .text = text});
    return;
  }
  std::optional<std::string> html;
  if (options.htmlPath) html = contentsOf(*options.htmlPath);
  const std::string issued = options.issued.value_or(today());
  const auto inspection =
      quillseal::inspect::inspect({.text = text, .html = html, .issued = issued});
  if (options.json) {
    std::cout << quillseal::inspect::toJsonWithReading(inspection).dump() << '\n';
  } else {
    std::cout << quillseal::inspect::readableReport(inspection);
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  try {
    Options options;
    if (const std::optional<int> status = read(options, argc, argv)) {
      requireWritten();
      return *status;
    }
    if (options.textPath == "rules") {
      std::cout << quillseal::inspect::rulesTable();
    } else if (options.jsonl) {
      answerRequests();
    } else {
      printInspection(options);
    }
    requireWritten();
    return 0;
  } catch (const Failure& failure) {
    std::cerr << "quillseal-inspect: " << failure.message << '\n';
    return failure.status;
  } catch (const quillseal::inspect::PatternTrialError& error) {
    std::cerr << "quillseal-inspect: " << error.what() << '\n';
    return wrongUsage;
  } catch (const std::exception& error) {
    std::cerr << "quillseal-inspect: " << error.what() << '\n';
    return cannotReadOrWrite;
  }
}
