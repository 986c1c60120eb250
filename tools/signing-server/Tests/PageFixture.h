#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "HttpServer.h"
#include "Quillseal/CryptoManager.h"
#include "Registry.h"
#include "Service.h"

/// Runs the pages in a headless browser.
namespace quillseal::devserver {

inline constexpr const char* apiKey = "key";
inline constexpr std::int64_t start = 1767225600;  // 1 January 2026, 00:00 UTC

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
    const std::optional<int> port = server_.bind({.host = "127.0.0.1", .port = 0});
    if (!port) throw std::runtime_error("no port to listen on");
    origin_ += std::to_string(*port);
    serving_ = std::thread([this] { EXPECT_TRUE(server_.serve()); });
  }
  ~PageTest() override {
    server_.stop();
    serving_.join();
    std::filesystem::remove_all(profile_);
  }

  /// Adds the test's script to the pages and serves its files. /test/clock is the real time in
  /// milliseconds, because the browser's clock is virtual and stops while it works.
  Reply answer(const Request& request) {
    if (request.path == "/test/clock") {
      const auto now = std::chrono::steady_clock::now().time_since_epoch();
      return {.contentType = "text/plain",
              .body = std::to_string(now / std::chrono::milliseconds(1))};
    }
    if (const auto own = files_.find(request.path); own != files_.end())
      return {.contentType = request.path.ends_with(".js") ? "text/javascript" : "text/html",
              .body = own->second};
    {
      const std::scoped_lock lock(mutex_);
      traffic_.push_back(request.path + ' ' + request.handoffId + ' ' + request.body);
    }
    Reply reply = service_.answer(request);
    if (const std::size_t end = reply.body.find("</body>");
        end != std::string::npos && files_.contains("/test/act.js"))
      reply.body.insert(end, R"(<script type="module" src="/test/act.js"></script>)");
    return reply;
  }

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
                                              .host = origin_.substr(7),
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
  std::string origin_ = "http://127.0.0.1:";
  std::map<std::string, std::string> files_{{"/test/help.js", helpers}};  ///< of the test
  std::vector<std::string> traffic_;  ///< path, handoff and body of every other request
  Registry registry_{":memory:"};
  Service service_{registry_,
                   {.apiKey = apiKey, .identity = "", .origin = "", .now = [] { return start; }}};
  HttpServer server_{[this](const Request& request) { return answer(request); }, nullptr};

 private:
  std::mutex mutex_;
  std::thread serving_;
};

}  // namespace quillseal::devserver
