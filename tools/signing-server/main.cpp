#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iostream>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include <CLI/CLI.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include "HttpServer.h"
#include "Quillseal/CryptoManager.h"
#include "Registry.h"
#include "Service.h"
#include "core/text/UnicodeText.h"

namespace {

namespace devserver = quillseal::devserver;

constexpr int failure = 1;
constexpr int wrongUsage = 2;
constexpr int usualPort = 8427;
constexpr int largestPort = 65535;
constexpr int usualSigningSeconds = 600;
constexpr int mostSigningSeconds = 24 * 60 * 60;
constexpr std::int64_t apiKeyBytes = 16;

struct Options {
  std::string listen = "127.0.0.1";
  int port = usualPort;
  std::string database;
  std::string identity;
  std::string apiKey = QUILLSEAL_DEFAULT_API_KEY;
  std::string origin;
  int signingSeconds = usualSigningSeconds;
  bool verbose = false;
};

std::filesystem::path stateFolder() {
  const auto variable = [](const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): before any thread
    return std::filesystem::path(value == nullptr ? "" : value);
  };
  const std::filesystem::path configured = variable("XDG_STATE_HOME");
  const std::filesystem::path base =
      configured.is_absolute() ? configured : variable("HOME") / ".local" / "state";
  return base / "quillseal-dev-server";
}

std::string withoutLastSlashes(std::string url) {
  url.erase(url.find_last_not_of('/') + 1);
  return url;
}

/// Returns what is wrong with an origin; empty when it is valid.
std::string originFault(std::string_view url) {
  constexpr std::string_view hostCharacters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-:[]";
  for (const std::string_view scheme : {"https://", "http://"}) {
    if (!url.starts_with(scheme)) continue;
    const std::string_view host = url.substr(scheme.size());
    if (!host.empty() && host.find_first_not_of(hostCharacters) == std::string_view::npos)
      return "";
  }
  return "must be http:// or https:// and a host";
}

/// Parses the options. Returns the exit status if the program should end.
std::optional<int> read(Options& options, int argc, char** argv) {
  CLI::App app(
      "A signing server for trying Quillseal on one computer.\n"
      "It is not part of the agent, and its records prove nothing to others.",
      "quillseal-dev-server");
  app.add_option("--port", options.port, "TCP port; 0 picks a free one, which is printed")
      ->check(CLI::Range(0, largestPort))
      ->capture_default_str();
  app.add_option("--listen", options.listen,
                 "address to listen on; anything but the loopback\n"
                 "address opens the server to the network, unencrypted")
      ->capture_default_str();
  app.add_option("--database", options.database, "SQLite file that holds the records")
      ->default_str((stateFolder() / "registry.sqlite").string());
  app.add_option("--identity", options.identity, "name bound to every device that enrols")
      ->type_name("NAME")
      ->check([](const std::string& name) -> std::string {
        return quillseal::unicode::wellFormed(name) == name ? "" : "must be UTF-8";
      });
  app.add_option("--api-key", options.apiKey,
                 "key that agents must send; the one built into the\n"
                 "agent when left out");
  app.add_option("--origin", options.origin,
                 "origin of links to this server when it stands behind\n"
                 "a proxy or is reached by a name, such as\n"
                 "https://seal.example.org")
      ->type_name("URL")
      ->transform(withoutLastSlashes)
      ->check(originFault);
  app.add_option("--signing-time", options.signingSeconds,
                 "seconds after which a request to sign in the browser\n"
                 "has expired")
      ->type_name("SECONDS")
      ->check(CLI::Range(1, mostSigningSeconds))
      ->capture_default_str();
  app.add_flag("--verbose", options.verbose, "print one line for each request");
  app.set_version_flag("--version", "quillseal-dev-server " QUILLSEAL_VERSION);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? EXIT_SUCCESS : wrongUsage;
  }
  return std::nullopt;
}

/// Serves until SIGINT or SIGTERM.
int serve(const Options& options) {
  devserver::Registry registry(options.database);
  devserver::Service service(registry, {.apiKey = options.apiKey,
                                        .identity = options.identity,
                                        .origin = options.origin,
                                        .signingSeconds = options.signingSeconds,
                                        .now = [] { return std::int64_t{std::time(nullptr)}; }});
  std::mutex output;
  const auto log = [&](const std::string& line) {
    const std::scoped_lock lock(output);
    std::cerr << line << '\n';
  };
  // Blocked in all threads, so that one thread can wait for it.
  sigset_t endings;
  sigemptyset(&endings);
  sigaddset(&endings, SIGINT);
  sigaddset(&endings, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &endings, nullptr);

  devserver::HttpServer server(
      [&service](const devserver::Request& request) { return service.answer(request); },
      options.verbose ? log : std::function<void(const std::string&)>());
  const std::optional<int> port = server.bind({.host = options.listen, .port = options.port});
  if (!port) {
    std::cerr << "quillseal-dev-server: cannot listen on " << options.listen << " port "
              << options.port << ". Is another program using it? Try --port 0.\n";
    return failure;
  }
  const bool isIpv6 = options.listen.find(':') != std::string::npos;
  std::cout << "quillseal-dev-server: listening on http://"
            << (isIpv6 ? '[' + options.listen + ']' : options.listen) << ':' << *port << std::endl;
  bool isSound = false;
  std::thread serving([&] {
    isSound = server.serve();
    if (!isSound) kill(getpid(), SIGTERM);  // wakes the wait below
  });
  int signal = 0;
  sigwait(&endings, &signal);
  server.stop();
  serving.join();
  if (isSound) return EXIT_SUCCESS;
  std::cerr << "quillseal-dev-server: the listening socket failed.\n";
  return failure;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    if (const std::optional<int> status = read(options, argc, argv)) return *status;
    umask(S_IRWXG | S_IRWXO);  // only the owner may read the records
    if (options.database.empty()) {
      std::filesystem::create_directories(stateFolder());
      options.database = (stateFolder() / "registry.sqlite").string();
    }
    if (options.apiKey.empty()) {
      options.apiKey = quillseal::CryptoManager::randomHex(apiKeyBytes);
      std::cout << "quillseal-dev-server: API key of this run: " << options.apiKey << std::endl;
    }
    return serve(options);
  } catch (const std::exception& error) {
    std::cerr << "quillseal-dev-server: " << error.what() << '\n';
    return failure;
  }
}
