#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>
#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <future>
#include <optional>
#include <thread>
#include <tuple>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <malloc.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "BusServices.h"
#include "Cases.h"
#include "LinuxWording.h"
#include "PrivateBus.h"
#include "Quillseal/ContentRisk.h"
#include "applications/WindowDocument.h"
#include "desktop/SigningHotkey.h"
#include "keyboard/KeyChords.h"
#include "session/CommandLine.h"
#include "session/IdleMemory.h"
#include "session/JournalLog.h"
#include "session/QtDescriptors.h"
#include "session/QtMainLoop.h"
#include "session/SessionTraits.h"
#include "session/StartupChecks.h"
#include "session/TerminationSignals.h"
#include "x11/QtPasteboard.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using desktop::Key;
using desktop::KeyPress;
using desktop::Modifiers;
using namespace std::chrono_literals;
using namespace std::string_literals;

TEST(CommandLineTest, UnderstandsOptionsOrSaysWhatItDoesNotUnderstand) {
  const std::map<std::string, Command> commands{
      {"start", Command::start},     {"background", Command::background},
      {"sign", Command::sign},       {"settings", Command::settings},
      {"quit", Command::quit},       {"help", Command::help},
      {"version", Command::version}, {"wrong", Command::wrong}};
  for (const auto& [arguments, command, problem, tpm] :
       testing::cases<std::vector<std::string>, std::string, std::string, std::string>()) {
    SCOPED_TRACE(::testing::PrintToString(arguments));
    const CommandLine line =
        parseCommandLine(std::vector<std::string_view>(arguments.begin(), arguments.end()));
    EXPECT_EQ(line.command, commands.at(command));
    EXPECT_THAT(line.problem, HasSubstr(problem));
    EXPECT_EQ(line.problem.empty(), problem.empty());
    EXPECT_EQ(line.tpm, tpm);
  }
}

// A second start without an option shows the settings: without a tray there is no other way to
// them.
TEST(CommandLineTest, ASecondStartOpensTheSettings) {
  EXPECT_EQ(wireName(Command::start), wireName(Command::settings));
  EXPECT_EQ(wireName(Command::help), "");
}

void expectPart(const std::string& text, const std::string& part) {
  EXPECT_THAT(text, HasSubstr(part));
  EXPECT_EQ(text.empty(), part.empty()) << text;
}

TEST(ReachTest, SaysWhatDoesNotWorkAndHowToGoOn) {
  for (const auto& [isWayland, hasXServer, canPressKeys, part] :
       testing::cases<bool, bool, bool, std::string>())
    expectPart(
        limitsOf({.isWayland = isWayland, .hasXServer = hasXServer, .canPressKeys = canPressKeys}),
        part);
  expectPart(limitsOf({.isWayland = true, .hasXServer = true, .isPortalSilent = true}),
             "did not answer in time");
  expectPart(limitsOf({.isWayland = true, .canPortalPressKeys = true}),
             "Install the package xwayland");
}

TEST(ReachTest, ChoosesThePlatformThatReachesMost) {
  for (const auto& [hasXServer, reachesApplications, hasWayland, hasPlugin, wanted, chosen, part] :
       testing::cases<bool, bool, bool, bool, std::string, std::string, std::string>()) {
    const auto platform = platformFor({.hasXServer = hasXServer,
                                       .reachesApplicationsByWayland = reachesApplications,
                                       .hasWayland = hasWayland,
                                       .hasWaylandPlugin = hasPlugin,
                                       .wantedPlatform = wanted});
    EXPECT_EQ(platform.platform, chosen);
    expectPart(platform.obstacle, part);
  }
}

TEST(SessionBusTest, AnswersForAccessibilityUnlessAServiceInUseHangs) {
  const testing::PrivateBus bus("DBUS_SESSION_BUS_ADDRESS");
  EXPECT_TRUE(accessibilityAnswers(200ms));  // nobody is there
  for (const auto& [isUsed, address, answers] :
       {std::tuple{0, "", true}, {1, "", false}, {1, "unix:path=/none", true}}) {
    const testing::BusServices service(
        ::sd_bus_open_user, {"org.a11y.Bus"},
        [&](sd_bus_message* call, const std::string& method, sd_bus_error* error) {
          if (method == "Get") return ::sd_bus_reply_method_return(call, "v", "b", isUsed);
          if (::sd_bus_message_get_interface(call) != "org.a11y.Bus"s)
            return ::sd_bus_error_set(error, "org.freedesktop.DBus.Error.UnknownMethod", "");
          return *address == '\0' ? 1 : ::sd_bus_reply_method_return(call, "s", address);
        });
    EXPECT_EQ(accessibilityAnswers(200ms), answers) << isUsed << address;
  }
}

TEST(SessionBusTest, HandsOverToAnAgentThatRuns) {
  const testing::PrivateBus bus("DBUS_SESSION_BUS_ADDRESS");
  EXPECT_EQ(handOver("sign", 200ms), Handover::noAgent);
  for (const auto& [answers, expected] : {std::pair{1, Handover::done}, {0, Handover::noAnswer}}) {
    testing::BusServices agent(
        ::sd_bus_open_user, {agentName},
        [isKnown = answers](sd_bus_message* call, const std::string& method, sd_bus_error*) {
          return method == "sign" && isKnown ? ::sd_bus_reply_method_return(call, "") : 1;
        });
    EXPECT_EQ(handOver("sign", 200ms), expected);
  }
  EXPECT_TRUE(sessionBusAnswers(1s));
  bus.hang();
  EXPECT_FALSE(sessionBusAnswers(200ms));
  EXPECT_EQ(handOver("sign", 200ms), Handover::noAgent);
}

TEST(JournalLogTest, ALineStaysALine) {
  ::testing::internal::CaptureStderr();
  JournalLog(JournalLog::Echo::standardError).write("a\nb\x1b[1m\x7f é");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "a\\x0ab\\x1b[1m\\x7f é\n");
}

TEST(JournalLogTest, DoesNotWaitUntilSomebodyReadsItsOutput) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK), 0);
  std::string page(4096, 'x');
  while (::write(pipe[1], page.data(), page.size()) > 0) {
  }
  ::fcntl(pipe[1], F_SETFL, 0);
  const int before = ::dup(STDERR_FILENO);
  ::dup2(pipe[1], STDERR_FILENO);

  JournalLog log(JournalLog::Echo::standardError);
  const auto written = std::async(std::launch::async, [&log] { log.write("a line"); });
  const auto status = written.wait_for(std::chrono::seconds(20));

  // Wakes a writer that would wait.
  while (::read(pipe[0], page.data(), page.size()) > 0) {
  }
  written.wait();
  ::dup2(before, STDERR_FILENO);
  for (const int descriptor : {pipe[0], pipe[1], before})
    ::close(descriptor);
  EXPECT_EQ(status, std::future_status::ready);
}

// Another thread may be in the middle of a call to the TPM or the disk.
TEST(TerminationSignalsTest, InterruptNoCall) {
  std::string word = "test";
  std::array<char*, 2> arguments{word.data(), nullptr};
  int count = 1;
  const QCoreApplication application(count, arguments.data());
  const TerminationSignals signals([] {});
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
  char byte = 0;
  ssize_t got = 0;
  std::thread reader([&] { got = ::read(pipe[0], &byte, 1); });
  std::this_thread::sleep_for(100ms);
  ::pthread_kill(reader.native_handle(), SIGTERM);
  std::this_thread::sleep_for(100ms);
  EXPECT_EQ(::write(pipe[1], "x", 1), 1);
  reader.join();
  EXPECT_EQ(got, 1);
  for (const int descriptor : pipe)
    ::close(descriptor);
}

constexpr std::size_t mebibyte = 1U << 20U;

std::size_t residentBytes() {
  std::size_t all = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

TEST(IdleMemory, HoldsNoLargeBlocks) {
  if (!returnLargeBlocks()) GTEST_SKIP() << "a sanitizer's allocator keeps what is freed";
  // The C library would raise its threshold with the first, and keep the second.
  for (int round = 0; round < 2; ++round) {
    const std::size_t before = ::mallinfo2().hblks;
    const std::vector<char> block(2 * mebibyte, 'x');
    EXPECT_EQ(::mallinfo2().hblks, before + 1) << block.back();
  }
}

TEST(IdleMemory, ConstantsAreThereAgainWhenTheyAreNeeded) {
  const auto scores = [] {
    return ContentRisk::evaluate("Please buy gift cards and send me a picture of them.").score;
  };
  const auto expected = scores();
  ASSERT_GT(expected, 0);
  ::malloc_trim(0);  // what is given back behind this is constants
  const std::size_t before = residentBytes();
  giveBackUnusedMemory();
  EXPECT_LT(residentBytes(), before - mebibyte);
  EXPECT_EQ(scores(), expected);
}

constexpr KeyPress copy{.key = Key::c, .modifiers = Modifiers::command};
constexpr KeyPress paste{.key = Key::v, .modifiers = Modifiers::command};
constexpr KeyPress selectAll{.key = Key::a, .modifiers = Modifiers::command};
constexpr KeyPress hotkey = desktop::signingHotkey;

TEST(KeyChordsTest, CommandIsControlUnlessControlIsThereToo) {
  EXPECT_THAT(chordOf(copy), ElementsAre(XKB_KEY_Control_L, XKB_KEY_c));
  EXPECT_THAT(chordOf(hotkey),
              ElementsAre(XKB_KEY_Control_L, XKB_KEY_Alt_L, XKB_KEY_Super_L, XKB_KEY_h));
  EXPECT_EQ(nameOf(hotkey), "Ctrl+Alt+Super+H");
  EXPECT_EQ(nameOf(hotkey), linuxWording({.key = KeyPlace::tpm}).hotkey);
  EXPECT_EQ(nameOf(Modifiers::command, ","), "Ctrl+,");
}

TEST(KeyChordsTest, ApplicationsGetTheChordsTheyKnowAndNoTerminalAnInterruptOrALineOfText) {
  const std::map<std::string, std::vector<Keysym>> chords{
      {"none", {}},
      {"control", chordOf(copy)},
      {"shift", {XKB_KEY_Control_L, XKB_KEY_Shift_L, XKB_KEY_c}}};
  for (const auto& [categories, windowClass, isOne, copies] :
       testing::cases<std::string, std::string, bool, std::string>()) {
    SCOPED_TRACE(windowClass);
    const ApplicationKind kind{.categories = categories, .windowClass = windowClass};
    EXPECT_EQ(isTerminal(kind), isOne);
    EXPECT_EQ(chordFor(copy, kind), chords.at(copies));
    EXPECT_EQ(copiesBySelecting(windowClass), copies == "none");
    for (const KeyPress press : {paste, selectAll})
      EXPECT_EQ(chordFor(press, kind), isOne ? std::vector<Keysym>() : chordOf(press));
  }
}

TEST(WindowDocumentTest, TellsDocumentsApart) {
  for (const auto& [title, focus, titleNow, focusNow, isSame] :
       testing::cases<std::string, std::uint32_t, std::string, std::uint32_t, bool>())
    EXPECT_EQ(isSameDocument(documentName({title, focus}), documentName({titleNow, focusNow})),
              isSame)
        << title << " | " << titleNow;
  EXPECT_TRUE(isSameDocument(documentName({"Brief \xFF"}), documentName({"Brief \xFF"})));
  EXPECT_TRUE(isSameDocument("", documentName({"letter.txt", 7})));
}

TEST(QtPasteboard, ReadsWhatProgramsOffer) {
  std::array words{"test"s, "-platform"s, "minimal"s};  // a platform without X
  std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), nullptr};
  int count = 3;
  const QGuiApplication application(count, arguments.data());
  QtMainLoop loop;
  QtDescriptors descriptors;
  QtPasteboard pasteboard({.loop = loop, .descriptors = descriptors}, ClipboardKeeper({}));

  for (const char* hint : {"", "secret"}) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("x-kde-passwordManagerHint"), hint);
    data->setData(QStringLiteral("text/rtf"), QByteArray("{\0}", 3));
    data->setData(QStringLiteral("text/html"), QByteArray("\xFF\xFE<\0p\0>\0", 8));
    data->setText(QStringLiteral("é"));
    QGuiApplication::clipboard()->setMimeData(data.release());
    EXPECT_EQ(pasteboard.isConcealed(), *hint != 0);
    EXPECT_EQ(pasteboard.html(), "<p>");
    EXPECT_EQ(pasteboard.plainText(), "é");
    std::optional<std::string> rtf = "not called";
    const auto ticket =
        pasteboard.fetchRtf([&](std::optional<std::string> bytes) { rtf = std::move(bytes); });
    EXPECT_EQ(rtf, *hint == 0 ? std::optional("{\0}"s) : std::nullopt);
  }
}

}  // namespace
}  // namespace quillseal::linux
