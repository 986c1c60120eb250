#include <thread>

#include <gtest/gtest.h>

#include "HttpServer.h"

namespace quillseal::devserver {
namespace {

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

}  // namespace
}  // namespace quillseal::devserver
