// Makes many signatures with the whole agent, one after the other, on a desktop that answers at
// once. Measures the cost of a run and checks for leaks.

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include <malloc.h>

#include "FakeDesktop.h"
#include "Quillseal/AppDelegate.h"

namespace {

using quillseal::testing::Copy;
using quillseal::testing::FakeDesktop;

constexpr std::size_t usualCount = 10'000;
constexpr std::size_t settled = 1000;               // number of runs after which caches are full
constexpr std::size_t allowedGrowth = 64UL * 1024;  // bytes on the heap

/// Returns the processor time of this process, which other programs do not affect.
double microsecondsUsed() {
  constexpr double perSecond = 1e6;
  return static_cast<double>(std::clock()) * (perSecond / CLOCKS_PER_SEC);
}

struct Holdings {
  std::size_t heapBytes = mallinfo2().uordblks;
  std::ptrdiff_t descriptors =
      std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
};

/// Returns a text, from a short message to a long letter, sometimes with HTML.
Copy textOf(std::size_t number) {
  constexpr std::size_t kinds = 7;
  std::string text = "Message " + std::to_string(number) + " of Grace to the fair in June.";
  for (std::size_t i = 0; i < (std::size_t{1} << (number % kinds)); ++i)
    text += " We agreed on " + std::to_string(i + 40) + " posters, two banners and a tent.";
  std::optional<std::string> html;
  if (number % 2 == 0) html = "<p>" + text + R"(<img src="https://a.example/b.png"></p>)";
  return {.text = std::move(text), .html = std::move(html)};
}

/// Chooses the device key, the browser, or a demonstration.
void prepare(FakeDesktop& desktop, std::size_t number) {
  desktop.forget();
  desktop.keys.selection = textOf(number);
  desktop.keyStore.hasKey = number % 3 != 1;
  desktop.defaults.flags.clear();
  if (number % 3 == 2) desktop.defaults.flags.insert("DemoSigning");
  desktop.http.answers["/api/handoff/poll"] = {
      {200, R"({"status":"waiting"})"}, {200, R"({"status":"complete","signature_id":"w"})"}};
}

}  // namespace

int main(int count, char** arguments) {
  const std::size_t runs =
      count > 1 ? std::strtoul(arguments[1], nullptr, 10) : usualCount;  // NOLINT(cert-err34-c)
  FakeDesktop desktop;
  desktop.applications.front = desktop.applications.active =
      quillseal::desktop::RunningApplication{.instance = 1,
                                             .name = "Mail",
                                             .bundleIdentifier = "com.apple.mail",
                                             .categories = "",
                                             .document = {}};
  desktop.defaults.strings["SigningMode"] = "handoff";
  quillseal::AppDelegate agent(desktop.services());
  agent.applicationDidFinishLaunching();

  std::vector<double> microseconds(runs);
  Holdings before;
  for (std::size_t number = 0; number < runs; ++number) {
    if (number == std::min(settled, runs / 2)) before = {};
    prepare(desktop, number);
    const double begun = microsecondsUsed();
    desktop.hotkey.pressed();
    desktop.loop.run();
    microseconds[number] = microsecondsUsed() - begun;
    if (desktop.trace.empty() || !desktop.trace.back().starts_with("notify: ✅")) {
      std::cerr << "Signature " << number << " was not made: "
                << (desktop.trace.empty() ? "nothing happened" : desktop.trace.back()) << '\n';
      return EXIT_FAILURE;
    }
  }
  desktop.forget();
  const Holdings after;

  std::ranges::sort(microseconds);
  std::cout << runs << " signatures: p50 " << microseconds[runs / 2] << " µs, p99 "
            << microseconds[runs * 99 / 100] << " µs of processor time\nheap "
            << before.heapBytes / 1024 << " → " << after.heapBytes / 1024 << " KiB, descriptors "
            << before.descriptors << " → " << after.descriptors << '\n';
  const bool isFlat = after.heapBytes <= before.heapBytes + allowedGrowth &&
                      after.descriptors == before.descriptors;
  if (!isFlat) std::cerr << "Something stays behind after each signature.\n";
  return isFlat ? EXIT_SUCCESS : EXIT_FAILURE;
}
