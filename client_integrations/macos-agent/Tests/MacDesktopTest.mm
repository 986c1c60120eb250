#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#import <Foundation/Foundation.h>

#include "MacDesktop/MacError.h"
#include "MacDesktop/MacFiles.h"
#include "MacDesktop/MacHttpTransport.h"
#include "MacDesktop/MacMachineIdentity.h"
#include "MacDesktop/MacMainLoop.h"
#include "MacDesktop/MacText.h"

namespace quillseal::mac {
namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;

/// Runs the main run loop until `done`; false when that takes more than ten seconds.
bool runUntil(const bool& done) {
  NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:10];
  while (!done && limit.timeIntervalSinceNow > 0) {
    ::CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0.05, true);
  }
  return done;
}

TEST(MacMainLoopTest, RunsPostedWorkLaterAndInOrder) {
  MacMainLoop loop;
  std::string order;
  bool done = false;
  loop.post([&] { order += "a"; });
  loop.post([&] {
    order += "b";
    loop.post([&] { done = true; });
  });
  EXPECT_EQ(order, "");
  ASSERT_TRUE(runUntil(done));
  EXPECT_EQ(order, "ab");
}

// What an open alert does: it keeps posted work on the stack while it runs a loop of its own.
TEST(MacMainLoopTest, GoesOnInsideALoopThatPostedWorkRuns) {
  MacMainLoop loop;
  bool inner = false;
  bool outer = false;
  loop.post([&] {
    EXPECT_TRUE(runUntil(inner));
    outer = true;
  });
  loop.post([&] { inner = true; });
  EXPECT_TRUE(runUntil(outer));
}

TEST(MacMainLoopTest, SurvivesWorkThatThrows) {
  MacMainLoop loop;
  bool done = false;
  loop.post([] { throw std::runtime_error("deliberate"); });
  loop.post([&] { done = true; });
  EXPECT_TRUE(runUntil(done));
}

TEST(MacMainLoopTest, StopsATimerWhoseTicketWasDropped) {
  MacMainLoop loop;
  bool stopped = true;
  bool done = false;
  {
    const desktop::Ticket dropped = loop.after(10ms, [&] { stopped = false; });
  }
  const desktop::Ticket kept = loop.after(50ms, [&] { done = true; });
  ASSERT_TRUE(runUntil(done));
  EXPECT_TRUE(stopped);
}

TEST(MacMainLoopTest, BlocksOnAWorkerAndFinishesOnTheMainThread) {
  MacMainLoop loop;
  bool workedOnMain = true;
  bool finishedOnMain = false;
  bool done = false;
  const desktop::Ticket ticket = loop.runBlocking([&] { workedOnMain = NSThread.isMainThread; },
                                                  [&] {
                                                    finishedOnMain = NSThread.isMainThread;
                                                    done = true;
                                                  });
  ASSERT_TRUE(runUntil(done));
  EXPECT_FALSE(workedOnMain);
  EXPECT_TRUE(finishedOnMain);
}

TEST(MacTextTest, KeepsWellFormedTextAndMendsTheRest) {
  for (const std::string& text : {std::string("Hi"), std::string("『Zoë』 🛡️"),
                                  std::string("a\0b", 3), std::string()}) {
    EXPECT_EQ(utf8(nsString(text)), text);
  }
  EXPECT_EQ(utf8(nsString("a\xff"
                          "b")),
            "a\uFFFDb");
  const unichar unpaired[] = {'a', 0xd83d, 'b'};
  const std::string mended = utf8([NSString stringWithCharacters:unpaired length:3]);
  EXPECT_EQ(mended.front(), 'a');
  EXPECT_EQ(mended.back(), 'b');
  EXPECT_EQ(utf8(nil), "");
  EXPECT_EQ(optionalUtf8(nil), std::nullopt);
}

TEST(MacTextTest, MakesNoUrlOfWhatIsNone) {
  EXPECT_NE(urlFrom("https://seal.example/handoff?h=1#t=SGk"), nil);
  EXPECT_EQ(urlFrom("https://seal example/"), nil);
}

TEST(MacFilesTest, ReplacesAFileThatOnlyItsOwnerReads) {
  NSString* folder = [NSTemporaryDirectory() stringByAppendingPathComponent:NSUUID.UUID.UUIDString];
  const std::string path = utf8([folder stringByAppendingPathComponent:@"new/text.txt"]);
  MacFiles files;
  ASSERT_TRUE(files.replace(path, "first, and longer"));
  ASSERT_TRUE(files.replace(path, "second"));
  NSString* contents = [NSString stringWithContentsOfFile:nsString(path)
                                                 encoding:NSUTF8StringEncoding
                                                    error:nil];
  EXPECT_EQ(utf8(contents), "second");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600);
  NSString* parent = nsString(path).stringByDeletingLastPathComponent;
  EXPECT_EQ([NSFileManager.defaultManager contentsOfDirectoryAtPath:parent error:nil].count, 1U);
  EXPECT_FALSE(files.replace(path + "/below-a-file", "x"));
  [NSFileManager.defaultManager removeItemAtPath:folder error:nil];
}

TEST(MacMachineIdentityTest, StaysTheSame) {
  const MacMachineIdentity machine;
  const std::optional<std::string> identifier = machine.platformUuid();
  ASSERT_TRUE(identifier.has_value());
  EXPECT_EQ(identifier->size(), 36U);
  EXPECT_EQ(machine.platformUuid(), identifier);
}

class MacHttpTransportTest : public testing::Test {
 protected:
  std::int64_t errorOf(const std::string& url, std::chrono::seconds timeout = 60s) {
    std::optional<Outcome<desktop::HttpResponse>> answer;
    bool done = false;
    const desktop::Ticket ticket =
        transport_.send({.url = url, .headers = {}, .body = "{}", .timeout = timeout},
                        [&](Outcome<desktop::HttpResponse> outcome) {
                          answer = std::move(outcome);
                          done = true;
                        });
    if (!runUntil(done) || !std::holds_alternative<Error>(*answer)) return 0;
    EXPECT_EQ(std::get<Error>(*answer).domain(), desktop::transport::errorDomain);
    return std::get<Error>(*answer).code();
  }

  MacMainLoop loop_;
  MacHttpTransport transport_{loop_};
};

TEST_F(MacHttpTransportTest, TellsWhyNothingWasSent) {
  EXPECT_EQ(errorOf("https://seal example/api"), desktop::transport::badUrl);
  EXPECT_EQ(errorOf("http://127.0.0.1:1/api"), desktop::transport::cannotConnectToHost);
}

TEST_F(MacHttpTransportTest, GivesUpOnASilentServerAfterThePostsOwnLimit) {
  const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), size), 0);
  ASSERT_EQ(::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size), 0);
  ASSERT_EQ(::listen(listener, 1), 0);  // the system connects, and nobody ever answers
  const std::string url = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/api";
  EXPECT_EQ(errorOf(url, 1s), desktop::transport::timedOut);
  ::close(listener);
}

}  // namespace
}  // namespace quillseal::mac
