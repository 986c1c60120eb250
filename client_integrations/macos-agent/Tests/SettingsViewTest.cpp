#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"
#include "Quillseal/BuiltInServer.h"
#include "Quillseal/SettingsView.h"
#include "Quillseal/SigningCoordinator.h"

namespace quillseal {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::EndsWith;
using testing::FakeDesktop;
using ::testing::Not;
using ::testing::StartsWith;
using Build = SettingsView::Build;
using Lines = std::vector<std::string>;

const std::string enrolled =
    "green checkmark.seal.fill callout: Enrolled — a signing key exists inside the Secure Enclave.";
const std::string notSetUp =
    "orange exclamationmark.triangle.fill callout: Not set up yet. This happens automatically the "
    "first time you press ⌘⌥⌃H — there is nothing to do here.";
const std::string attributed = "caption secondary: Signatures are attributed to Ada";
const std::string anonymous =
    "caption orange: No verified identity is bound to this Mac. Signatures will be shown to "
    "readers as \"anonymous human\" — proof that a person signed, but not who. That is not a basis "
    "for trusting a payment request.";
const std::string enrol = "button Enrol This Mac", reenrol = "button Re-enrol This Mac";
const std::string reenrolling =
    "caption secondary: Re-enrolling creates a NEW key. Signatures already made remain verifiable, "
    "but this Mac must be re-enrolled on the server.";

std::string lineOf(const desktop::FormText& text) {
  const char* const fonts[] = {"body", "callout", "caption"};
  const char* const colours[] = {"", " secondary", " green", " orange"};
  return std::string(fonts[static_cast<int>(text.font)]) + colours[static_cast<int>(text.colour)] +
         (text.selectable ? " selectable: " : ": ") + text.text;
}

std::string lineOf(const desktop::FormStatus& status) {
  const bool isGreen = status.symbolColour == desktop::TextColour::green;
  return (isGreen ? "green " : "orange ") + status.symbol + " " + lineOf(status.text);
}

std::string lineOf(const desktop::FormField& field) {
  return "field " + field.label + " = " + field.value + (field.masked ? " (masked)" : "");
}

std::string lineOf(const desktop::FormButton& button) {
  return "button " + button.label + (button.enabled ? "" : " (disabled)");
}

class SettingsViewTest : public ::testing::Test {
 protected:
  SettingsViewTest() { desktop_.keyStore.hasKey = false; }

  void open(Build build = Build::packaged) {
    view_ = std::make_unique<SettingsView>(SettingsView::Services{.defaults = desktop_.defaults,
                                                                  .keyStore = desktop_.keyStore,
                                                                  .log = desktop_.log,
                                                                  .loop = desktop_.loop,
                                                                  .words = desktop_.words},
                                           coordinator_, *window_, build);
    desktop_.loop.run();
  }

  /// Returns the rows that the window shows in a section.
  [[nodiscard]] Lines section(const std::string& header) const {
    Lines lines;
    for (const desktop::FormSection& section : desktop_.windows.form.sections) {
      if (section.header != header) continue;
      for (const auto& row : section.rows)
        lines.push_back(std::visit([](const auto& shown) { return lineOf(shown); }, row));
    }
    return lines;
  }

  [[nodiscard]] Lines machine() const { return section("This Mac"); }

  /// A copy: an action may replace the form of its row.
  template <typename Row>
  [[nodiscard]] Row row(const std::string& label) const {
    for (const desktop::FormSection& section : desktop_.windows.form.sections) {
      for (const auto& row : section.rows) {
        const Row* wanted = std::get_if<Row>(&row);
        if (wanted && wanted->label == label) return *wanted;
      }
    }
    ADD_FAILURE() << "there is no " << label;
    return {};
  }

  [[nodiscard]] std::ptrdiff_t count(const std::string& line) const {
    return std::count(desktop_.trace.begin(), desktop_.trace.end(), line);
  }

  FakeDesktop desktop_;
  SigningCoordinator coordinator_{desktop_.services()};
  std::unique_ptr<desktop::Window> window_ =
      desktop_.windows.make({.title = "Settings", .width = 440, .height = 200});
  std::unique_ptr<SettingsView> view_;
};

TEST_F(SettingsViewTest, OfAPackagedBuildShowsTheServerOnly) {
  open();
  EXPECT_THAT(section("Server"),
              ElementsAre("callout secondary selectable: " + std::string(BuiltInServer::url())));
  EXPECT_EQ(desktop_.windows.form.sections.size(), 2U);
  EXPECT_EQ(desktop_.windows.form.width, 460);
  EXPECT_EQ(desktop_.windows.form.height, 400);
}

TEST_F(SettingsViewTest, OfADevelopmentBuildStoresWhatIsTyped) {
  const std::string header = "Server Configuration (development build)";
  const std::string caption =
      "caption secondary: This key authorizes the app build. It is not proof of who you are — that "
      "comes from the Secure Enclave key below.";
  const std::string url = "Server URL", key = "Native API Key (from server log)";
  open(Build::development);
  EXPECT_THAT(section(header),
              ElementsAre("field " + url + " = " + std::string(BuiltInServer::url()),
                          "field " + key + " =  (masked)", caption));

  row<desktop::FormField>(url).changed("http://localhost:1 ");
  row<desktop::FormField>(key).changed("s3cret");
  EXPECT_EQ(desktop_.defaults.strings["ServerURL"], "http://localhost:1 ")
      << "while it is being typed";
  EXPECT_EQ(desktop_.defaults.strings["APIKey"], "s3cret");
  desktop_.loop.run();
  EXPECT_THAT(section(header), ElementsAre("field " + url + " = http://localhost:1 ",
                                           "field " + key + " = s3cret (masked)", caption));
  row<desktop::FormField>(url).changed("");
  desktop_.loop.run();
  EXPECT_EQ(section(header).front(), "field " + url + " = ");
}

TEST_F(SettingsViewTest, TellsHowThisMachineSigns) {
  const struct {
    bool hasKey;
    std::string identity, advice;
    Lines shown;
  } cases[] = {
      {false, "", "", {notSetUp, anonymous, enrol}},
      {false, "Ada", "", {notSetUp, attributed, enrol}},
      {true, "", "", {enrolled, anonymous, reenrol, reenrolling}},
      {true, "Ada\u202E\n", "", {enrolled, attributed + "‹U+202E›‹U+000A›", reenrol, reenrolling}},
      {true, "Ada", "", {enrolled, attributed, reenrol, reenrolling}},
      {false, "Ada", "Plug it in.", {notSetUp, attributed, enrol, "caption orange: Plug it in."}},
  };
  for (const auto& c : cases) {
    desktop_.keyStore.hasKey = c.hasKey;
    desktop_.defaults.strings["BoundIdentity"] = c.identity;
    desktop_.keyStore.keyAdvice = c.advice;
    for (const Build build : {Build::packaged, Build::development}) {
      open(build);
      EXPECT_THAT(machine(), ElementsAreArray(c.shown));
    }
  }
}

TEST_F(SettingsViewTest, SaysWhyItCannotTellWhetherThereIsAKey) {
  desktop_.keyStore.hasKey = true;
  desktop_.keyStore.loadFailure = Error({.domain = "TPM", .code = 1, .description = "No reader."});
  open();
  EXPECT_THAT(machine().front(), EndsWith("whether this Mac has a signing key: No reader."));
  EXPECT_EQ(desktop_.trace.back(), "log: [sign] key store failed to look the key up: TPM 1");
  desktop_.keyStore.loadFailure.reset();
  open();
  EXPECT_EQ(machine().front(), enrolled);
}

TEST_F(SettingsViewTest, EnrolsOnceHoweverOftenTheButtonIsPressed) {
  open();
  const auto button = row<desktop::FormButton>("Enrol This Mac");
  button.pressed();
  EXPECT_THAT(machine(), ElementsAre(notSetUp, anonymous, "button Enrolling… (disabled)"));
  button.pressed();
  row<desktop::FormButton>("Enrolling…").pressed();
  desktop_.loop.run();
  EXPECT_EQ(count("create key"), 1);
  EXPECT_EQ(count("POST /api/register_native"), 1);
  EXPECT_THAT(desktop_.trace.back(), StartsWith("alert: ✅ This Mac Is Enrolled | "));
  EXPECT_THAT(machine(), ElementsAre(enrolled, attributed, reenrol, reenrolling));

  row<desktop::FormButton>("Re-enrol This Mac").pressed();
  desktop_.loop.run();
  EXPECT_EQ(count("create key"), 2);
}

TEST_F(SettingsViewTest, ShowsWhatAFailedEnrolmentLeft) {
  const std::function<void(FakeDesktop&)> failures[] = {
      [](FakeDesktop& d) {
        d.http.answers["/api/register_native"] = {{503, R"({"error":"Closed."})"}};
      },
      [](FakeDesktop& d) { d.keyStore.lacksEntitlement = true; },
      [](FakeDesktop& d) { d.keyStore.canHoldKey = false; },
      // Cancelled by the user.
      [](FakeDesktop& d) {
        d.keyStore.lacksEntitlement = false;
        d.keyStore.canHoldKey = d.keyStore.hasKey = d.keyStore.cancelsCreation = true;
      },
  };
  int told = 0;
  for (const auto& failure : failures) {
    failure(desktop_);
    open();
    const bool hasKey = desktop_.keyStore.hasKey;
    for (int press = 1; press <= 2; ++press) {
      row<desktop::FormButton>(hasKey ? "Re-enrol This Mac" : "Enrol This Mac").pressed();
      desktop_.loop.run();
      EXPECT_EQ(machine().front(), hasKey ? enrolled : notSetUp);
      EXPECT_THAT(desktop_.trace,
                  Contains(StartsWith("alert: Enrolment Failed | ")).Times(hasKey ? told : ++told));
    }
  }
}

TEST_F(SettingsViewTest, FollowsTheSettings) {
  open();
  desktop_.defaults.setString("BoundIdentity", "Ada");
  desktop_.defaults.setString("ServerURL", "https://own.example");
  desktop_.loop.run();
  EXPECT_THAT(machine(), Contains(attributed));
  EXPECT_THAT(section("Server"), Contains("callout secondary selectable: https://own.example"));
  view_.reset();
  desktop_.defaults.setString("BoundIdentity", "");
  desktop_.loop.run();
  EXPECT_THAT(machine(), Not(Contains(anonymous))) << "drawn by a view that is gone";
}

}  // namespace
}  // namespace quillseal
