#include <QCoreApplication>
#include <QTest>
#include <array>
#include <filesystem>
#include <fstream>
#include <thread>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include "Cases.h"
#include "TemporaryFolder.h"
#include "session/QtDefaults.h"
#include "session/QtDescriptors.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;
using testing::contentsOf;
using testing::overwrite;
namespace fs = std::filesystem;

class QtDefaultsTest : public ::testing::Test {
 protected:
  QtDefaults make() {
    return QtDefaults({.path = path_.string(),
                       .warn = [this](const std::string& text) { warnings_.push_back(text); }});
  }

  static bool eventually(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition);
  }

  int argumentCount_ = 1;
  std::string name_ = "test";
  std::vector<char*> arguments_{name_.data(), nullptr};
  QCoreApplication application_{argumentCount_, arguments_.data()};
  testing::TemporaryFolder folder_;
  fs::path path_ = folder_.path() / "Quillseal" / "Quillseal.conf";
  std::vector<std::string> warnings_;
};

TEST_F(QtDefaultsTest, KeepsValuesForTheirOwnerOnly) {
  for (const auto& [value] : testing::cases<std::string>()) {
    {
      QtDefaults defaults = make();
      defaults.setString("BoundIdentity", value);
      EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
      EXPECT_EQ(defaults.string("BoundIdentity"), value);
    }
    EXPECT_EQ(make().string("BoundIdentity"), value);
  }
  EXPECT_EQ(make().string("ServerURL"), std::nullopt);
  EXPECT_EQ(contentsOf(path_), "[General]\nBoundIdentity=[x]\n");
  EXPECT_THAT(warnings_, IsEmpty());
}

TEST_F(QtDefaultsTest, ReadsWhatPeopleWrite) {
  fs::create_directories(path_.parent_path());
  overwrite(path_, "");
  fs::permissions(path_, fs::perms::owner_all | fs::perms::group_read);
  const QtDefaults defaults = make();
  EXPECT_EQ(fs::status(path_).permissions() & fs::perms::group_all, fs::perms::none);
  for (const auto& [text, key, value, isTrue] :
       testing::cases<std::string, std::string, std::string, bool>()) {
    overwrite(path_, text);
    EXPECT_EQ(defaults.string(key).value_or("none"), value) << text;
    EXPECT_EQ(defaults.boolean(key), isTrue) << text;
  }
}

TEST_F(QtDefaultsTest, ChangesOneLineOnly) {
  fs::create_directories(path_.parent_path());
  for (const auto& [before, after] : testing::cases<std::string, std::string>()) {
    overwrite(path_, before);
    QtDefaults defaults = make();
    defaults.setString("APIKey", "new");
    EXPECT_EQ(contentsOf(path_), after);
    EXPECT_EQ(defaults.string("APIKey"), "new");
  }
  EXPECT_THAT(warnings_, IsEmpty());
}

TEST_F(QtDefaultsTest, KeepsWhatNoLineCanHoldForTheProcess) {
  QtDefaults defaults = make();
  defaults.setString("APIKey", "k");
  for (const std::string& value :
       {std::string("a\nServerURL=x"), std::string("a\rb"), std::string("a\0b", 3)}) {
    defaults.setString("BoundIdentity", value);
    EXPECT_EQ(defaults.string("BoundIdentity"), value);
    EXPECT_EQ(defaults.string("ServerURL"), std::nullopt);
    EXPECT_EQ(contentsOf(path_), "[General]\nAPIKey=k\n");
  }
  EXPECT_TRUE(eventually([&] { return warnings_.size() == 3; }));
  defaults.setString("BoundIdentity", "Ada");
  EXPECT_EQ(defaults.string("BoundIdentity"), "Ada");
  EXPECT_EQ(make().string("BoundIdentity"), "Ada");
}

TEST_F(QtDefaultsTest, NoticesEveryonesChanges) {
  QtDefaults defaults = make();
  int changes = 0;
  const desktop::Ticket observer = defaults.observe([&] { ++changes; });
  desktop::Ticket ended;
  desktop::Ticket once = defaults.observe([&] {
    ended = {};
    once = {};
  });
  ended = defaults.observe([] { ADD_FAILURE() << "this observer has ended"; });

  defaults.setString("ServerURL", "https://a.example");
  EXPECT_EQ(changes, 0) << "not from inside the call";
  EXPECT_TRUE(eventually([&] { return changes == 1; }));

  // Saves as editors do: in place, then by replacing the file.
  overwrite(path_, "[General]\nServerURL=https://second.example\n");
  EXPECT_EQ(defaults.string("ServerURL"), "https://second.example");
  EXPECT_TRUE(eventually([&] { return changes == 2; }));
  overwrite(path_.string() + ".new", "[General]\nServerURL=https://three.example\n");
  fs::permissions(path_.string() + ".new", fs::perms::group_read | fs::perms::others_read,
                  fs::perm_options::add);
  fs::rename(path_.string() + ".new", path_);
  EXPECT_TRUE(eventually([&] { return changes == 3; }));
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write)
      << "the new file too is its owner's only";
  overwrite(path_, "[General]\nServerURL=https://fourth.example\n");
  EXPECT_TRUE(eventually([&] { return changes == 4; }));

  defaults.setString("APIKey", "k");
  EXPECT_EQ(defaults.string("ServerURL"), "https://fourth.example") << "the other edit stays";
  fs::remove(path_);
  EXPECT_EQ(defaults.string("APIKey"), std::nullopt);
}

TEST_F(QtDefaultsTest, SetsADamagedFileAside) {
  fs::create_directories(path_.parent_path());
  int number = 0;
  for (const auto& [text] : testing::cases<std::string>()) {
    const std::string damage = text == "bytes" ? "a=\xff\xfe\n" : text;
    overwrite(path_, damage);
    warnings_.clear();
    QtDefaults defaults = make();
    EXPECT_EQ(defaults.string("ServerURL"), std::nullopt);
    defaults.setString("APIKey", "k");
    EXPECT_EQ(defaults.string("APIKey"), "k");
    const std::string aside = path_.string() + ".damaged-" + std::to_string(++number);
    EXPECT_EQ(contentsOf(aside), damage);
    EXPECT_TRUE(eventually([&] { return !warnings_.empty(); }));
    EXPECT_THAT(warnings_, ElementsAre(HasSubstr(aside)));
  }
}

TEST_F(QtDefaultsTest, WaitsForAnEditorThatIsStillWriting) {
  fs::create_directories(path_.parent_path());
  overwrite(path_, "no settings ");
  std::jthread editor([&] {
    for (int i = 0; i < 15; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      std::ofstream(path_, std::ios::app) << i;
    }
    overwrite(path_, "APIKey=k\n");
  });
  EXPECT_EQ(make().string("APIKey"), "k");
  EXPECT_THAT(warnings_, IsEmpty());
}

TEST_F(QtDefaultsTest, ValuesThatCannotBeSavedHoldForTheProcess) {
  fs::create_directories(path_);  // a folder where the file should be
  overwrite(path_ / "kept", "x");
  QtDefaults defaults = make();
  int changes = 0;
  const desktop::Ticket observer = defaults.observe([&] { ++changes; });
  defaults.setString("SigningMode", "handoff");
  EXPECT_EQ(defaults.string("SigningMode"), "handoff");
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(defaults.string("APIKey"), std::nullopt);
  EXPECT_TRUE(eventually([&] { return changes == 1 && warnings_.size() >= 2; }));
  EXPECT_THAT(warnings_, ElementsAre(HasSubstr("cannot be read"), HasSubstr("could not be saved")));
  EXPECT_TRUE(fs::exists(path_ / "kept"));

  path_ = "/dev/null/Quillseal/Quillseal.conf";  // a place where no folder can be made
  QtDefaults others = make();
  others.setString("SigningMode", "handoff");
  EXPECT_EQ(others.string("SigningMode"), "handoff");
}

TEST_F(QtDefaultsTest, ServesOtherThreadsWhileItIsChanged) {
  fs::create_directories(path_);  // so that the values are only in memory
  constexpr int rounds = 200;
  QtDefaults defaults = make();
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

TEST_F(QtDefaultsTest, AFullDiskKeepsTheEarlierSettings) {
  make().setString("ServerURL", "https://a.example");
  const std::string before = contentsOf(path_);
  QtDefaults defaults = make();
  testing::onFullDisk(10, [&] { defaults.setString("BoundIdentity", "Ada"); });
  EXPECT_EQ(contentsOf(path_), before);
  EXPECT_EQ(defaults.string("BoundIdentity"), "Ada") << "for as long as the agent runs";
  EXPECT_TRUE(eventually([&] { return !warnings_.empty(); }));
  EXPECT_THAT(warnings_, ElementsAre(HasSubstr("could not be saved")));
  defaults.setString("APIKey", "k");
  EXPECT_THAT(contentsOf(path_), HasSubstr("a.example"));
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
  EXPECT_TRUE(eventually([&] { return received == "xy"; }));
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  EXPECT_EQ(received, "xy");
  close(ends[0]);
  close(ends[1]);
}

}  // namespace
}  // namespace quillseal::linux
