#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>

#include <getopt.h>

#include "Inspection.h"
#include "Operations.h"
#include "core/text/UnicodeText.h"
#include "core/text/UniqueHandle.h"

namespace {

constexpr int cannotReadOrWrite = 1;
constexpr int wrongUsage = 2;

constexpr const char* usage = R"(usage: quillseal-inspect [OPTION]... [FILE]
       quillseal-inspect --jsonl
       quillseal-inspect rules

Shows what Quillseal would sign for a text, without signing anything.
FILE is the text in UTF-8; standard input when it is left out or "-".
"rules" prints the table of content rules (a file of that name: ./rules).

  --json           print one JSON object instead of the report
  --html FILE      the HTML form of the same text, for its images
  --issued DATE    the issue date, yyyy-MM-dd (today when left out)
  --jsonl          answer requests, one JSON object a line, on standard input
  --help           print this help
  --version        print the version

Exit status: 0, or 1 when a file cannot be read or the output not written, or 2 for a wrong use.
Example: printf '%s' "I met Ada on 3 May." | quillseal-inspect
)";

struct Options {
  std::string textPath = "-";
  std::optional<std::string> htmlPath;
  std::optional<std::string> issued;
  bool json = false;
  bool jsonl = false;
  bool rules = false;
};

struct Failure {
  int status;
  std::string message;
};

std::string lastError() {
  return std::generic_category().message(errno);
}

/// All of a file, or of standard input for "-", as well-formed UTF-8.
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

/// Nothing when the answer has been printed already (help and version).
std::optional<Options> parsed(int argc, char** argv) {
  enum Long { json = 256, html, issued, jsonl, help, version };
  static const option longOptions[] = {{"json", no_argument, nullptr, json},
                                       {"html", required_argument, nullptr, html},
                                       {"issued", required_argument, nullptr, issued},
                                       {"jsonl", no_argument, nullptr, jsonl},
                                       {"help", no_argument, nullptr, help},
                                       {"version", no_argument, nullptr, version},
                                       {nullptr, 0, nullptr, 0}};
  Options options;
  int found = 0;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): there is one thread.
  while ((found = getopt_long(argc, argv, "", longOptions, nullptr)) != -1) {
    switch (found) {
      case json:
        options.json = true;
        break;
      case html:
        options.htmlPath = optarg;
        break;
      case issued:
        options.issued = optarg;
        break;
      case jsonl:
        options.jsonl = true;
        break;
      case help:
        std::cout << usage;
        return std::nullopt;
      case version:
        std::cout << "quillseal-inspect " << QUILLSEAL_VERSION << '\n';
        return std::nullopt;
      default:
        throw Failure{wrongUsage, "see quillseal-inspect --help"};
    }
  }
  if (argc - optind > 1) throw Failure{wrongUsage, "one file at a time; see --help"};
  if (argc - optind == 1) options.textPath = argv[optind];
  options.rules = options.textPath == "rules";
  if (options.rules && argc != 2) throw Failure{wrongUsage, "rules stands alone; see --help"};
  if (options.jsonl && (options.json || options.htmlPath || options.issued || optind < argc))
    throw Failure{wrongUsage, "--jsonl takes its input from the requests alone; see --help"};
  if (options.textPath == "-" && options.htmlPath == "-")
    throw Failure{wrongUsage, "only one of the text and the HTML can be standard input"};
  return options;
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
    const std::optional<Options> options = parsed(argc, argv);
    if (!options) {
      requireWritten();
      return 0;
    }
    if (options->rules) {
      std::cout << quillseal::inspect::rulesTable();
    } else if (options->jsonl) {
      answerRequests();
    } else {
      printInspection(*options);
    }
    requireWritten();
    return 0;
  } catch (const Failure& failure) {
    std::cerr << "quillseal-inspect: " << failure.message << '\n';
    return failure.status;
  } catch (const std::exception& error) {
    std::cerr << "quillseal-inspect: " << error.what() << '\n';
    return cannotReadOrWrite;
  }
}
