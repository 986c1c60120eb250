#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "HttpServer.h"
#include "Quillseal/CryptoManager.h"
#include "RandomText.h"
#include "Registry.h"
#include "Service.h"

/// The pages in a real browser, headless.
namespace quillseal::devserver {
namespace {

using nlohmann::json;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* apiKey = "key";
constexpr const char* host = "127.0.0.1";
constexpr std::int64_t start = 1767225600;  // 1 January 2026, 00:00 UTC

/// A server that listens on its own thread.
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

/// Stands before the real server, passes everything on as it is, and lets a test add a script to
/// the pages and files beside them. Keeps what browsers ask for.
class Front {
 public:
  explicit Front(int upstreamPort) : upstreamPort_(upstreamPort) {
    server_.Get(R"([\s\S]*)", [this](const auto& request, auto& response) {
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

  /// Target and body of every request.
  [[nodiscard]] std::vector<std::string> traffic() const {
    const std::scoped_lock lock(mutex_);
    return traffic_;
  }

  std::map<std::string, std::string> files;  ///< changed only while no browser runs

 private:
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

/// What the scripts of tests share: `report` shows lines in an element of their own.
constexpr const char* helpers = R"js(
export const settled = () => new Promise((resolve) => setTimeout(resolve, 100));
export async function until(condition) {
  for (let i = 0; i < 100 && !condition(); ++i) await settled();
}
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

  /// The document, as HTML, once its scripts have run for `milliseconds` of virtual time.
  std::string documentAt(const std::string& url, int milliseconds = 20'000) const {
    const std::string command =
        "timeout 60 '" QUILLSEAL_CHROMIUM
        "' --headless --no-sandbox --disable-gpu --disable-background-networking --no-first-run "
        "--disable-component-update --disable-sync --user-data-dir='" +
        profile_.string() + "' --virtual-time-budget=" + std::to_string(milliseconds) +
        " --dump-dom '" + url + "' 2>/dev/null";
    std::string output;
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 65536> buffer{};
    for (std::size_t n = 0; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
      output.append(buffer.data(), n);
    }
    EXPECT_EQ(pclose(pipe), 0) << "the browser failed";
    return output;
  }

  /// The lines that a test's script reported.
  std::vector<std::string> reportAt(const std::string& url) const {
    const std::string document = documentAt(url);
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

  json post(const std::string& path, const json& body) {
    return json::parse(service_
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
    const json answer =
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

/// Every scalar that is a character, in groups, and random texts.
std::vector<std::string> textsToNormalise() {
  std::vector<std::string> texts{"",
                                 "Hello,  world!\n",
                                 "“Don’t” — wait…",
                                 "a<b>c",
                                 "e\u0301",
                                 " \u200b\ufeff\u2060 ",
                                 "q\u0307\u0323 \u1e9b\u0323",
                                 "\u1100\u1161\u11a8",
                                 "👩‍👩‍👧 🛡️",
                                 "\r\n\u0085\u2028"};
  constexpr char32_t groupSize = 512;
  for (char32_t first = 0; first < 0x110000; first += groupSize) {
    icu::UnicodeString group;
    for (char32_t scalar = first; scalar < first + groupSize; ++scalar) {
      const auto code = static_cast<UChar32>(scalar);
      const auto category = u_charType(code);
      // What one Unicode version has not assigned, another may compose.
      if (category == U_UNASSIGNED || category == U_SURROGATE) continue;
      group.append('a').append(code).append(UChar32{0x301});
    }
    if (!group.isEmpty()) group.toUTF8String(texts.emplace_back());
  }
  std::mt19937 random(20260101);
  for (int i = 0; i < 300; ++i)
    texts.push_back(quillseal::testing::randomText(random, 200));
  return texts;
}

TEST_F(PageTest, NormalisesAsTheAgentDoes) {
  const std::vector<std::string> texts = textsToNormalise();
  front_->files["/test/texts.html"] =
      R"(<!DOCTYPE html><body><script type="module" src="/test/texts.js"></script></body>)";
  front_->files["/test/texts.json"] = json(texts).dump();
  front_->files["/test/texts.js"] = R"js(
import { textDigest } from "/assets/canonical.js";
import { report } from "/test/help.js";
for (const text of await (await fetch("/test/texts.json")).json()) report(await textDigest(text));
)js";
  const std::vector<std::string> digests = reportAt(front_->origin() + "/test/texts.html");
  ASSERT_EQ(digests.size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(digests[i], digestOf(texts[i])) << quillseal::testing::escaped(texts[i]);
  }
}

TEST_F(PageTest, ComparesWhatAReaderPastes) {
  const std::string text = "Don't pay €1,250 \"twice\" - ask <Ada> first.";
  const json answer = post("/api/sign_demo", {{"text_digest", digestOf(text)},
                                              {"issued", "2026-01-01"},
                                              {"scope", "<img src=x onerror=alert(1)>"},
                                              {"image_digest", digestOf("")},
                                              {"device_id", "0F4B3A52-7C1D-4E8A-9B60-5D2E1C7F8A90"},
                                              {"method", "</dd><script>alert(1)</script>"},
                                              {"expires", "2026-01-08"},
                                              {"commitment", "statement"},
                                              {"nonce", "00112233445566778899aabbccddeeff"},
                                              {"timezone", "UTC"},
                                              {"tz_offset", 0},
                                              {"api_key", apiKey}});
  struct Paste {
    std::string text;
    const char* outcome;
  };
  const char* whole = "good ✓ This is the signed text, word for word.";
  const char* framed = "good ✓ What stands between 『 and 』 is the signed text.";
  const char* surrounded =
      "caution ✓ What stands between 『 and 』 is the signed text. Text outside the brackets is "
      "not signed.";
  const char* other =
      "bad ✗ This is not the text that was signed. A word, a number or a sign differs, or "
      "something is missing.";
  const std::string block = "『" + text + "』";
  const std::string rule = "────────────────────";
  const std::string stamp = "\n\n" + rule + "\n🛡️ QUILLSEAL · 『x』 · 1 January 2026";
  const std::string link = "\nCheck this signature → https://seal.example/verify/1";
  const std::vector<Paste> pastes{
      {text, whole},
      {"  Don’t pay €1,250\n“twice” – ask\t<Ada> first.\u200b", whole},
      {block, framed},
      {" \n" + block + stamp, framed},
      {block + stamp + link + "\n", framed},
      {block + "\n🛡️\u00a0QUILLSEAL\nMail · 1 January 2026" + link, framed},
      {"> " + block + " QUILLSEAL", surrounded},
      {"Pay today.\n" + block + stamp + link, surrounded},
      {block + " Pay today." + link, surrounded},
      {block + stamp + "\nPay today." + link, surrounded},
      {block + stamp + link + "\nPay today.", surrounded},
      {"Don't pay €1,260 \"twice\" - ask <Ada> first.", other},
      {"『Don't pay』", other},
  };
  json list = json::array();
  for (const Paste& paste : pastes)
    list.push_back(paste.text);
  front_->files["/test/act.js"] = "const pastes = " + list.dump() + R"js(;
import { report, until } from "/test/help.js";
const field = document.getElementById("text");
const result = document.getElementById("result");
for (const paste of pastes) {
  field.value = "";
  field.dispatchEvent(new Event("input"));
  field.value = paste;
  field.dispatchEvent(new Event("input"));
  await until(() => result.textContent !== "");
  report(`${result.classList[1]} ${result.textContent}`);
}
report(document.querySelectorAll("img").length);
report([...document.scripts].every((script) => script.src.startsWith(location.origin)));
)js";
  const std::vector<std::string> report =
      reportAt(front_->origin() + "/verify/" + answer.at("signature_id").get<std::string>());
  ASSERT_EQ(report.size(), pastes.size() + 2);
  for (std::size_t i = 0; i < pastes.size(); ++i) {
    EXPECT_EQ(report[i], pastes[i].outcome) << pastes[i].text;
  }
  EXPECT_EQ(report[pastes.size()], "1") << "only the shield: nobody's value became markup";
  EXPECT_EQ(report[pastes.size() + 1], "true");
}

/// "A <img src=x onerror=document.title=1> & “é”", and its HTML, as the agent puts them.
constexpr const char* hostileText = "A <img src=x onerror=document.title=1> & “é”";
constexpr const char* hostileFragment =
    "#t=QSA8aW1nIHNyYz14IG9uZXJyb3I9ZG9jdW1lbnQudGl0bGU9MT4gJiDigJzDqeKAnQ"
    "&h=PHA-QSA8aW1nIHNyYz14IG9uZXJyb3I9ZG9jdW1lbnQudGl0bGU9MT48L3A-";

TEST_F(PageTest, SignsTheTextOfTheFragment) {
  const Handoff handoff = openHandoff(hostileText);
  front_->files["/test/act.js"] = R"js(
import { report, settled, until } from "/test/help.js";
const sign = document.getElementById("sign");
await until(() => !sign.disabled);
report(document.getElementById("text").textContent);
report(document.getElementById("html").textContent);
report(document.getElementById("text").childElementCount);
const inline = document.createElement("script");
inline.textContent = "window.injected = true";
document.body.append(inline);
report(window.injected ?? "no inline script");
report(await fetch("http://localhost:9/").catch(() => "no other server"));
sign.click();
sign.click();
await until(() => document.getElementById("actions").hidden);
report(document.getElementById("heading").textContent);
report(location.pathname + location.search + location.hash);
)js";
  EXPECT_THAT(reportAt(handoff.url + hostileFragment),
              ::testing::ElementsAre(
                  "A &lt;img src=x onerror=document.title=1&gt; &amp; “é”",
                  "&lt;p&gt;A &lt;img src=x onerror=document.title=1&gt;&lt;/p&gt;", "0",
                  "no inline script", "no other server", "Signed", "/handoff?h=" + handoff.id));
  EXPECT_EQ(statusOf(handoff.id), "complete");
  for (const std::string& request : front_->traffic()) {
    EXPECT_THAT(request, AllOf(Not(HasSubstr("onerror")), Not(HasSubstr("QSA8aW1n"))))
        << "the text never reaches the server";
  }
  EXPECT_THAT(front_->traffic(), Contains(HasSubstr("/handoff/sign")));
}

TEST_F(PageTest, RefusesToSignAnyOtherText) {
  const Handoff handoff = openHandoff("another text");
  front_->files["/test/act.js"] = R"js(
import { report, until } from "/test/help.js";
await until(() => document.getElementById("result").textContent !== "");
report(document.getElementById("result").classList[1]);
report(document.getElementById("sign").disabled);
)js";
  for (const std::string& fragment :
       {std::string(hostileFragment), std::string("#t=_w"), std::string()}) {
    EXPECT_THAT(reportAt(handoff.url + fragment), ::testing::ElementsAre("bad", "true"))
        << fragment;
  }
  EXPECT_EQ(statusOf(handoff.id), "pending");
}

TEST_F(PageTest, DeclinesAndExpires) {
  const Handoff declined = openHandoff(hostileText);
  const Handoff late = openHandoff(hostileText);
  EXPECT_THAT(documentAt(late.url + hostileFragment, 700'000),
              HasSubstr(R"(<h1 id="heading">Expired</h1>)"));
  front_->files["/test/act.js"] = R"js(
import { report, until } from "/test/help.js";
document.getElementById("decline").click();
await until(() => document.getElementById("actions").hidden);
report(document.getElementById("heading").textContent);
)js";
  EXPECT_THAT(reportAt(declined.url + hostileFragment), ::testing::ElementsAre("Declined"));
  EXPECT_EQ(statusOf(declined.id), "expired");
}

}  // namespace
}  // namespace quillseal::devserver
