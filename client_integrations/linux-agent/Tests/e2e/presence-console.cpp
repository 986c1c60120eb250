// Runs one presence check for a test that answers as a person would.
// usage: presence-console can|finger|password   prints its process id, waits for a line, asks

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include <unistd.h>

#include "presence/FingerprintReader.h"
#include "presence/PolkitAuthority.h"

namespace {

void say(std::string_view text) {
  std::cout << text << std::endl;
}

void answer(std::string_view question) {
  const quillseal::linux::Interrupt interrupt;
  if (question == "finger") {
    const bool passed = quillseal::linux::FingerprintReader::verify(interrupt, say);
    say(passed ? "yes" : "no");
  } else if (question == "password") {
    say(quillseal::linux::PolkitAuthority::ask(interrupt) ? "yes" : "no");
  } else {
    say(quillseal::linux::FingerprintReader::isEnrolled() ? "finger" : "no finger");
    say(quillseal::linux::PolkitAuthority::canAsk() ? "password" : "no password");
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  say(std::to_string(getpid()));
  std::string line;
  std::getline(std::cin, line);
  try {
    answer(argv[1]);
  } catch (const std::exception& error) {
    say(error.what());
  }
  return 0;
}
