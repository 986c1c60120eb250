#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "TemporaryFolder.h"
#include "network/LoadedTransport.h"
#include "session/PollLoop.h"

namespace quillseal::linux {
namespace {

using desktop::HttpResponse;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

/// Returns the message for a request to an invalid URL.
std::string answerOf(std::vector<fs::path> places, std::string version = QUILLSEAL_VERSION) {
  PollLoop loop;
  LoadedTransport transport(loop, loop,
                            LoadedModule({.places = std::move(places),
                                          .version = std::move(version),
                                          .duty = "talks to the server"}));
  std::string told;
  for (int request = 0; request < 2; ++request) {
    const desktop::Ticket ticket = transport.send(
        {.url = "nonsense", .headers = {}, .body = {}},
        [&](const Outcome<HttpResponse>& outcome) { told = std::get<Error>(outcome).what(); });
  }
  return told;
}

TEST(LoadedTransport, SendsThroughTheModuleOrTellsWhatIsWrongWithIt) {
  const testing::TemporaryFolder folder;
  const fs::path module = QUILLSEAL_HTTP_MODULE, missing = folder.path() / "quillseal-http.so",
                 damaged = folder.path() / "damaged.so";
  testing::overwrite(damaged, "no library");
  EXPECT_THAT(answerOf({missing, module}), HasSubstr("not a valid URL"));
  EXPECT_THAT(answerOf({missing}), HasSubstr("(" + missing.string() + " is missing). If "));
  EXPECT_THAT(answerOf({damaged, module}), HasSubstr(damaged.string() + ": "));
  EXPECT_THAT(answerOf({module}, "0.0.0"), HasSubstr(module.string() + " is of another version"));
}

}  // namespace
}  // namespace quillseal::linux
