// Asks browsers for their tabs as the agent does. Commands come on standard input, one a line:
//   current BROWSER            answers the current tab, or "none"
//   close BROWSER MARK TAB     answers "true" or "false"; "-" for no tab
// What is logged appears on standard output too.

#include <iostream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "LinuxDesktop/LinuxBrowserTabs.h"
#include "LinuxDesktop/PollLoop.h"
#include "LinuxDesktop/TabSocket.h"

namespace quillseal {
namespace {

class PrintedLog final : public desktop::Log {
 public:
  void write(std::string_view line) override { std::cout << line << std::endl; }
};

class Console {
 public:
  void run() {
    const desktop::Ticket watch = loop_.watch(STDIN_FILENO, Descriptors::Interest::reading,
                                              [this](Descriptors::Interest) { read(); });
    loop_.run();
  }

 private:
  void read() {
    const std::string bytes = TabSocket::receive(input_);
    if (bytes.empty()) loop_.stop();
    pending_ += bytes;
    for (auto end = pending_.find('\n'); end != std::string::npos; end = pending_.find('\n')) {
      obey(pending_.substr(0, end));
      pending_.erase(0, end + 1);
    }
  }

  void obey(const std::string& line) {
    std::istringstream words(line);
    std::string command, browser, mark, tab;
    words >> command >> browser >> mark >> tab;
    if (command == "current") {
      ticket_ = tabs_.currentTab(browser, [](const std::optional<std::string>& current) {
        std::cout << "tab " << current.value_or("none") << std::endl;
      });
    } else if (command == "close") {
      desktop::TabReturn request{.browser = browser, .urlContains = mark, .tab = {}};
      if (tab != "-") request.tab = tab;
      ticket_ = tabs_.closeAndRestore(request, [](bool isDone) {
        std::cout << "done " << std::boolalpha << isDone << std::endl;
      });
    }
  }

  FileDescriptor input_{STDIN_FILENO};
  PrintedLog log_;
  PollLoop loop_;
  LinuxBrowserTabs tabs_{{.loop = loop_, .descriptors = loop_, .log = log_}};
  std::string pending_;
  desktop::Ticket ticket_;
};

}  // namespace
}  // namespace quillseal

int main() {
  quillseal::Console().run();
}
