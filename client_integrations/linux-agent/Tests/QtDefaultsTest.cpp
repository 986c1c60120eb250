#include <QCoreApplication>
#include <QTest>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include "Cases.h"
#include "TemporaryFolder.h"
#include "core/text/UnicodeText.h"
#include "session/QtDefaults.h"
#include "session/QtDescriptors.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::contentsOf;
using testing::overwrite;
namespace fs = std::filesystem;

/// The settings in a folder, what the user is told of them, and those who observe them.
struct Story {
  static bool eventually(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition);
  }

  void start() {
    defaults.emplace(QtDefaults::Options{
        .path = path.string(), .warn = [this](const std::string& text) { warnings += text; }});
    observers[0] = defaults->observe([this] { ++changes; });
    observers[1] = defaults->observe([this] {
      observers[2] = {};
      observers[1] = {};
    });
    observers[2] = defaults->observe([] { ADD_FAILURE() << "this observer has ended"; });
  }

  /// What there is now, by the name that a story gives it.
  std::string stateOf(const std::string& name) {
    if (name == "changes") return std::to_string(changes);
    if (name == "warnings") return unicode::replacingAll(warnings, path.string(), "FILE");
    if (name == "mode") return std::to_string(static_cast<int>(fs::status(path).permissions()));
    if (name.starts_with("Quillseal.conf")) return contentsOf(path.parent_path() / name);
    return defaults->string(name).value_or("none");
  }

  void act(const std::string& line) {
    const auto [verb, what] = testing::divided(line, " ");
    const auto [key, value] = testing::divided(what, " = ");
    const fs::path other = path.string() + ".new";
    const std::map<std::string, std::function<void()>> actions{
        {"start", [&] { start(); }},
        {"set", [&] { defaults->setString(key, value); }},
        {"squeeze", [&] { testing::onFullDisk(10, [&] { defaults->setString(key, value); }); }},
        {"write", [&] { overwrite(path, unicode::replacingAll(what, "{ff}", "\xFF")); }},
        {"replace",
         [&] {
           overwrite(other, what);
           fs::permissions(other, fs::perms(0644));
           fs::rename(other, path);
         }},
        {"remove", [&] { fs::remove_all(path); }},
        {"folder",
         [&] {
           fs::create_directories(path);
           overwrite(path / "kept", "x");
         }},
        {"nowhere", [&] { path = "/dev/null/Quillseal/Quillseal.conf"; }},
        {"settle", [&] { QTest::qWait(100); }},
        {"await", [&] { EXPECT_TRUE(eventually([&] { return stateOf(key) == value; })); }}};
    actions.at(verb)();
  }

  testing::TemporaryFolder folder;
  fs::path path = folder.path() / "Quillseal" / "Quillseal.conf";
  std::string warnings;
  int changes = 0;
  std::optional<QtDefaults> defaults;
  std::array<desktop::Ticket, 3> observers;
};

class QtDefaultsTest : public ::testing::Test {
 protected:
  int argumentCount_ = 1;
  std::string name_ = "test";
  std::vector<char*> arguments_{name_.data(), nullptr};
  QCoreApplication application_{argumentCount_, arguments_.data()};
  Story its_;
};

TEST_F(QtDefaultsTest, GoesAsTold) {
  testing::tell(testing::runningTest(), [](const auto&) { return std::make_unique<Story>(); });
}

TEST_F(QtDefaultsTest, KeepsValues) {
  for (const auto& [value] : testing::cases<std::string>()) {
    its_.start();
    its_.defaults->setString("BoundIdentity", value);
    EXPECT_EQ(its_.defaults->string("BoundIdentity"), value);
    its_.start();
    EXPECT_EQ(its_.defaults->string("BoundIdentity"), value);
  }
  EXPECT_EQ(contentsOf(its_.path), "[General]\nBoundIdentity=[x]\n");
  EXPECT_EQ(its_.warnings, "");
}

TEST_F(QtDefaultsTest, ReadsWhatPeopleWrite) {
  its_.start();
  for (const auto& [text, key, value, isTrue] :
       testing::cases<std::string, std::string, std::string, bool>()) {
    overwrite(its_.path, text);
    EXPECT_EQ(its_.defaults->string(key).value_or("none"), value) << text;
    EXPECT_EQ(its_.defaults->boolean(key), isTrue) << text;
  }
}

TEST_F(QtDefaultsTest, ChangesOneLineOnly) {
  its_.start();
  for (const auto& [before, after] : testing::cases<std::string, std::string>()) {
    overwrite(its_.path, before);
    its_.defaults->setString("APIKey", "new");
    EXPECT_EQ(contentsOf(its_.path), after);
  }
  EXPECT_EQ(its_.warnings, "");
}

TEST_F(QtDefaultsTest, WaitsForAnEditorThatIsStillWriting) {
  its_.start();
  overwrite(its_.path, "no settings ");
  std::jthread editor([&] {
    for (int i = 0; i < 15; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      std::ofstream(its_.path, std::ios::app) << i;
    }
    overwrite(its_.path, "APIKey=k\n");
  });
  its_.start();
  EXPECT_EQ(its_.defaults->string("APIKey"), "k");
  EXPECT_EQ(its_.warnings, "");
}

TEST_F(QtDefaultsTest, ServesOtherThreadsWhileItIsChanged) {
  fs::create_directories(its_.path);  // so that the values are only in memory
  constexpr int rounds = 200;
  its_.start();
  QtDefaults& defaults = *its_.defaults;
  defaults.setString("APIKey", "0");
  const std::jthread reader([&defaults] {
    int last = 0;
    for (int round = 0; round < rounds; ++round) {
      const int value = std::stoi(defaults.string("APIKey").value_or("-1"));
      EXPECT_GE(value, last);
      last = value;
    }
  });
  for (int round = 1; round <= rounds; ++round)
    defaults.setString("APIKey", std::to_string(round));
}

using QtDescriptorsTest = QtDefaultsTest;

TEST_F(QtDescriptorsTest, TellsReadinessUntilTheTicketIsDropped) {
  using Interest = Descriptors::Interest;
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
  QtDescriptors descriptors;
  std::string received;
  desktop::Ticket writing = descriptors.watch(ends[0], Interest::writing, [&](Interest ready) {
    EXPECT_EQ(ready, Interest::writing);
    writing = {};
    EXPECT_EQ(write(ends[0], "xyz", 3), 3);
  });
  desktop::Ticket reading = descriptors.watch(ends[1], Interest::reading, [&](Interest ready) {
    EXPECT_EQ(ready, Interest::reading);
    char byte = 0;
    EXPECT_EQ(read(ends[1], &byte, 1), 1);
    received += byte;
    if (received.size() == 2) reading = {};
  });
  EXPECT_TRUE(Story::eventually([&] { return received == "xy"; }));
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  EXPECT_EQ(received, "xy");
  close(ends[0]);
  close(ends[1]);
}

}  // namespace
}  // namespace quillseal::linux
