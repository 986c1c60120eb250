#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include "HttpServer.h"
#include "Quillseal/CryptoManager.h"
#include "Registry.h"
#include "Service.h"

/// Runs the pages in a headless browser.
namespace quillseal::devserver {

inline constexpr const char* apiKey = "key";
inline constexpr const char* host = "127.0.0.1";
inline constexpr std::int64_t start = 1767225600;  // 1 January 2026, 00:00 UTC

/// Runs a server on its own thread.
template <typename Server>
class Serving {
 public:
  explicit Serving(Server& server, std::function<void()> serve) : server_(server), thread_(serve) {}
  ~Serving() {
    server_.stop();
    thread_.join();
  }

 private:
  Server& server_;
  std::thread thread_;
};

/// A proxy in front of the real server that passes everything on. It lets a test add a script to
/// the pages and serve more files, and records the browser's requests. /test/clock returns the real
/// time in milliseconds, because the browser's clock is virtual and stops while it works.
class Front {
 public:
  explicit Front(int upstreamPort) : upstreamPort_(upstreamPort) {
    server_.Get(R"([\s\S]*)", [this](const auto& request, auto& response) {
      if (request.path == "/test/clock") return tellTime(response);
      const auto own = files.find(request.path);
      if (own == files.end()) return pass(request, response);
      const bool isScript = request.path.ends_with(".js");
      response.set_content(own->second, isScript ? "text/javascript" : "text/html; charset=utf-8");
    });
    server_.Post(R"([\s\S]*)",
                 [this](const auto& request, auto& response) { pass(request, response); });
    port_ = server_.bind_to_any_port(host);
    serving_.emplace(server_, [this] { server_.listen_after_bind(); });
  }

  [[nodiscard]] std::string origin() const {
    return "http://" + std::string(host) + ":" + std::to_string(port_);
  }

  /// Returns target and body of every request.
  [[nodiscard]] std::vector<std::string> traffic() const {
    const std::scoped_lock lock(mutex_);
    return traffic_;
  }

  std::map<std::string, std::string> files;  ///< changed only while no browser runs

 private:
  static void tellTime(httplib::Response& response) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    response.set_content(
        std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()),
        "text/plain");
  }

  void pass(const httplib::Request& request, httplib::Response& response) {
    {
      const std::scoped_lock lock(mutex_);
      traffic_.push_back(request.target + ' ' + request.body);
    }
    httplib::Client client(host, upstreamPort_);
    const httplib::Result result =
        request.method == "POST"
            ? client.Post(request.target, request.body, request.get_header_value("Content-Type"))
            : client.Get(request.target);
    if (!result) return;
    response.status = result->status;
    response.set_header("Content-Security-Policy",
                        result->get_header_value("Content-Security-Policy"));
    std::string body = result->body;
    if (const std::size_t end = body.find("</body>");
        end != std::string::npos && files.contains("/test/act.js")) {
      body.insert(end, R"(<script type="module" src="/test/act.js"></script>)");
    }
    response.set_content(body, result->get_header_value("Content-Type"));
  }

  httplib::Server server_;
  int upstreamPort_;
  int port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> traffic_;
  std::optional<Serving<httplib::Server>> serving_;
};

/// What the scripts of tests share: `report` shows lines in an element of their own, `openRecord`
/// makes the page that of another signature, whose script finds its record when it starts.
inline constexpr const char* helpers = R"js(
export const settled = () => new Promise((resolve) => setTimeout(resolve, 5));
export async function until(condition) {
  for (let i = 0; i < 2000 && !condition(); ++i) await settled();
}
let loads = 0;
export async function openRecord(id) {
  const source = await (await fetch(`/verify/${id}`)).text();
  const page = new DOMParser().parseFromString(source, "text/html");
  document.querySelector("main").replaceWith(page.querySelector("main"));
  await import(`/assets/verify.js?${++loads}`);
}
export function paste(text) {
  const field = document.getElementById("text");
  field.value = text;
  field.dispatchEvent(new Event("input"));
}
export const isSilent = () => document.getElementById("result").innerText.includes("Nothing has been compared yet");
const output = document.createElement("pre");
output.id = "report";
export function report(line) {
  output.textContent += `${line}\n`;
  document.body.append(output);
}
)js";

class PageTest : public ::testing::Test {
 protected:
  PageTest() {
    std::string pattern = ::testing::TempDir() + "/pages-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    profile_ = pattern;
    const std::optional<int> port = server_.bind({.host = host, .port = 0});
    if (!port) throw std::runtime_error("no port to listen on");
    serving_.emplace(server_, [this] { EXPECT_TRUE(server_.serve()); });
    front_.emplace(*port);
    front_->files["/test/help.js"] = helpers;
  }
  ~PageTest() override { std::filesystem::remove_all(profile_); }

  /// Returns the document's HTML after its scripts have run for `milliseconds` of virtual time.
  std::string documentAt(const std::string& url, int milliseconds = 20'000) const {
    const std::string command =
        "timeout 120 '" QUILLSEAL_CHROMIUM
        "' --headless --no-sandbox --disable-gpu --disable-background-networking --no-first-run "
        "--disable-component-update --disable-sync --user-data-dir='" +
        profile_.string() +
        "'"
        " --virtual-time-budget=" +
        std::to_string(milliseconds) + " --dump-dom '" + url + "' 2>/dev/null";
    std::string output;
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 65536> buffer{};
    for (std::size_t n = 0; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
      output.append(buffer.data(), n);
    }
    EXPECT_EQ(pclose(pipe), 0) << "the browser failed";
    return output;
  }

  /// Returns the lines that a test's script reported.
  std::vector<std::string> reportAt(const std::string& url, int milliseconds = 20'000) const {
    const std::string document = documentAt(url, milliseconds);
    const std::string opening = R"(<pre id="report">)";
    const std::size_t begin = document.find(opening);
    std::vector<std::string> lines;
    if (begin == std::string::npos) return lines;
    std::istringstream text(document.substr(begin + opening.size()));
    for (std::string line; std::getline(text, line) && !line.starts_with("</pre>");) {
      lines.push_back(line);
    }
    return lines;
  }

  nlohmann::json post(const std::string& path, const nlohmann::json& body) {
    return nlohmann::json::parse(service_
                                     .answer({.method = "POST",
                                              .path = path,
                                              .contentType = "application/json",
                                              .host = front_->origin().substr(7),
                                              .handoffId = "",
                                              .body = body.dump()})
                                     .body);
  }

  static std::string digestOf(const std::string& text) {
    return CryptoManager::sha256Hex(CryptoManager::normalizeText(text));
  }

  struct Handoff {
    std::string id;
    std::string url;
  };

  Handoff openHandoff(const std::string& text) {
    const nlohmann::json answer =
        post("/api/handoff/create", {{"text_digest", digestOf(text)},
                                     {"snapshot_digest", ""},
                                     {"issued", "2026-01-01"},
                                     {"scope", "Web Form (<i>Browser</i>)"},
                                     {"image_digest", CryptoManager::imageManifestDigest({})},
                                     {"api_key", apiKey}});
    return {answer.at("handoff_id"), answer.at("url")};
  }

  std::string statusOf(const std::string& handoffId) {
    return post("/api/handoff/poll", {{"handoff_id", handoffId}, {"api_key", apiKey}}).at("status");
  }

  std::filesystem::path profile_;
  Registry registry_{":memory:"};
  Service service_{registry_,
                   {.apiKey = apiKey, .identity = "", .origin = "", .now = [] { return start; }}};
  HttpServer server_{service_, nullptr};
  std::optional<Serving<HttpServer>> serving_;
  std::optional<Front> front_;
};

}  // namespace quillseal::devserver
