#include <cstring>

#include "Cases.h"
#include "browsers/TabMessages.h"

namespace quillseal::linux::TabMessages {
namespace {

std::string withLength(std::uint32_t length, std::string_view bytes) {
  std::string result(sizeof length, '\0');
  std::memcpy(result.data(), &length, sizeof length);
  return result.append(bytes);
}

TEST(TabMessages, AreCutFromAStreamHoweverItIsSplit) {
  const std::string longest(longestMessage, 'x');
  const std::string stream = framed("{}") + framed(longest) + framed("[1]");
  for (const std::size_t step : {std::size_t{1}, std::size_t{3}, stream.size()}) {
    Deframer deframer;
    std::vector<std::string> messages;
    for (std::size_t at = 0; at < stream.size(); at += step) {
      deframer.append(std::string_view(stream).substr(at, step));
      while (const auto message = deframer.next())
        messages.push_back(*message);
    }
    EXPECT_EQ(messages, (std::vector<std::string>{"{}", longest, "[1]"})) << step;
  }
}

TEST(TabMessages, RefusesLengthsThatNobodyMaySend) {
  for (const std::uint32_t length : {0U, 4097U, 0x7fffffffU, 0xffffffffU}) {
    Deframer deframer;
    deframer.append(withLength(length, ""));
    EXPECT_THROW((void)deframer.next(), ProtocolError) << length;
  }
  EXPECT_THROW((void)framed(""), ProtocolError);
  EXPECT_THROW((void)framed(std::string(longestMessage + 1, 'x')), ProtocolError);
}

TEST(TabMessages, SayWhatTheExtensionUnderstands) {
  EXPECT_EQ(written(Request{.id = 7, .operation = CurrentTab{}}),
            R"({"id":7,"operation":"currentTab"})");
  EXPECT_EQ(written(Request{.id = 8, .operation = CloseAndRestore{"/handoff?h=\"1", 12}}),
            R"({"id":8,"operation":"closeAndRestore","urlContains":"/handoff?h=\"1","tab":12})");
  EXPECT_EQ(written(Request{.id = 9, .operation = CloseAndRestore{"\xff", std::nullopt}}),
            "{\"id\":9,\"operation\":\"closeAndRestore\",\"urlContains\":\"\uFFFD\",\"tab\":null}");
}

TEST(TabMessages, SurviveBeingPassedOn) {
  for (const auto& [kind, message] : testing::cases<std::string, std::string>())
    EXPECT_EQ(kind == "request" ? written(readRequest(message)) : written(readAnswer(message)),
              message);
  EXPECT_EQ(readGreeting(written(Greeting{"chromium"})).program, "chromium");
}

TEST(TabMessages, RefusesWhatIsNoSuchMessage) {
  for (const auto& [kind, message] : testing::cases<std::string, std::string>())
    EXPECT_THROW(kind == "request" ? (void)readRequest(message) : (void)readAnswer(message),
                 ProtocolError)
        << message;
  EXPECT_THROW((void)readGreeting(R"({"program":null})"), ProtocolError);
}

}  // namespace
}  // namespace quillseal::linux::TabMessages
