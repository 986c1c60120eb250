#include <chrono>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <httplib.h>

#include "HttpServer.h"

namespace quillseal::devserver {
namespace {

using namespace std::chrono_literals;

TEST(HttpServer, StopHoldsWheneverItComes) {
  Registry registry(":memory:");
  Service service(registry, {.apiKey = "k", .identity = "", .origin = "", .now = [] { return 0; }});
  for (int round = 0; round < 100; ++round) {
    HttpServer server(service, nullptr);
    ASSERT_TRUE(server.bind({.host = "127.0.0.1", .port = 0}));
    std::thread serving([&] { EXPECT_TRUE(server.serve()); });
    // From before the thread has begun to when it serves.
    if (round % 2 == 1) std::this_thread::sleep_for(std::chrono::microseconds(20 * round));
    server.stop();
    serving.join();
  }
}

TEST(HttpServer, AnswersWhileOthersLeaveTheirRequestsHalfSent) {
  constexpr int others = 40;
  Registry registry(":memory:");
  Service service(registry, {.apiKey = "k", .identity = "", .origin = "", .now = [] { return 0; }});
  HttpServer server(service, nullptr);
  const std::optional<int> port = server.bind({.host = "127.0.0.1", .port = 0});
  ASSERT_TRUE(port);
  std::thread serving([&] { EXPECT_TRUE(server.serve()); });

  std::vector<int> halfSent;
  for (int i = 0; i < others; ++i) {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(*port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    const std::string_view beginning = "POST /api/handoff/poll HTTP/1.1\r\nHost: 127.0.0.1\r\nCon";
    ASSERT_GT(::send(socket, beginning.data(), beginning.size(), MSG_NOSIGNAL), 0);
    halfSent.push_back(socket);
  }
  httplib::Client client("127.0.0.1", *port);
  client.set_read_timeout(20s);
  const auto start = std::chrono::steady_clock::now();
  const httplib::Result result = client.Get("/");
  EXPECT_TRUE(result && result->status == 200);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
  for (const int socket : halfSent)
    ::close(socket);
  server.stop();
  serving.join();
}

}  // namespace
}  // namespace quillseal::devserver
