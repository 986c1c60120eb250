#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <array>
#include <chrono>
#include <future>
#include <optional>
#include <stdexcept>

#include <gmock/gmock.h>

#include "session/QtMainLoop.h"
#include "windows/OwnWindows.h"
#include "windows/QtAlerts.h"
#include "windows/QtPresencePrompt.h"
#include "windows/QtSecretPrompt.h"
#include "windows/TrayStatusItem.h"

namespace quillseal::linux {
namespace {

using namespace ::testing;

/// Where no other program has windows.
class ShownWindows : public OwnWindows {
 public:
  void bringToFront(QWidget& window) const override {
    window.show();
    window.activateWindow();
  }
};

class QtPromptsTest : public ::testing::Test {
 protected:
  /// Runs the event loop until `condition` is true.
  template <typename Condition>
  static void runUntil(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
      if (std::chrono::steady_clock::now() > end) throw std::runtime_error("nothing happened");
      QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
  }

  /// Returns the open dialog.
  static QWidget& dialog() {
    runUntil([] { return QApplication::activeModalWidget() != nullptr; });
    return *QApplication::activeModalWidget();
  }

  /// Everything that it says.
  static std::string said() {
    QString texts;
    for (const QLabel* label : dialog().findChildren<QLabel*>())
      texts += label->text() + QLatin1Char('\n');
    return texts.toStdString();
  }
  static void expectSaid(const std::vector<std::string_view>& parts) {
    for (const std::string_view part : parts)
      EXPECT_THAT(said(), HasSubstr(std::string(part)));
  }

  static void press(int key, const QString& text = {}) {
    QWidget* focused = dialog().focusWidget();
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(focused != nullptr ? focused : &dialog(), &event);
  }
  static void type(std::string_view text) {
    for (const char c : text)
      press(Qt::Key_unknown, QString(QLatin1Char(c)));
  }
  static bool canAccept() {
    for (const QPushButton* button : dialog().findChildren<QPushButton*>())
      if (button->isDefault()) return button->isEnabled();
    return false;
  }

  static void cancel() {
    for (QPushButton* button : dialog().findChildren<QPushButton*>())
      if (button->text() == QStringLiteral("Cancel")) return button->click();
    ADD_FAILURE() << "no such button";
  }

  /// Asks a question from a worker thread, as key stores do.
  void ask(const std::function<std::optional<SecretBytes>()>& question) {
    pending = std::async(std::launch::async, question);
  }
  std::optional<std::string> answer() {
    runUntil(
        [this] { return pending.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    const std::optional<SecretBytes> secret = pending.get();
    return secret ? std::optional<std::string>(secret->text()) : std::nullopt;
  }
  void TearDown() override {
    prompt.close();
    // Deletes closed dialogs, which a running event loop would do.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  std::future<std::optional<SecretBytes>> pending;
  std::string words[3] = {"test", "-platform", "offscreen"};
  std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), nullptr};
  int count = 3;
  QApplication application{count, arguments.data()};
  QtMainLoop loop;
  const ShownWindows windows;
  QtSecretPrompt prompt{loop, windows};
  const SecretRequest request{.kind = SecretKind::pin,
                              .reason = "Sign “x” as Ada",
                              .destination = "LinkedIn Post",
                              .medium = "The key is in the TPM.",
                              .problem = "This PIN is wrong.",
                              .attempt = 2,
                              .attempts = 3};
};

TEST_F(QtPromptsTest, TheSecretIsAskedForWithWhatItIsFor) {
  ask([this] { return prompt.ask(request); });
  expectSaid({"Enter the PIN", "Sign “x” as Ada", "Medium: LinkedIn Post", "The key is in the TPM.",
              "This PIN is wrong. Try 2 of 3."});
  EXPECT_FALSE(canAccept());
  type("24681x");
  press(Qt::Key_Backspace);
  EXPECT_TRUE(canAccept());
  EXPECT_THAT(said(), Not(HasSubstr("24681")));
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), "24681");
}

TEST_F(QtPromptsTest, ANewSecretIsTypedTwice) {
  const auto question = [this] {
    return prompt.askForNew({.kind = SecretKind::passphrase,
                             .medium = "In a file.",
                             .notice = "The old one goes.",
                             .problem = {}});
  };
  ask(question);
  cancel();
  EXPECT_EQ(answer(), std::nullopt);
  ask(question);
  expectSaid({"In a file.", "The old one goes.", rulesFor(SecretKind::passphrase)});
  const std::string good = "correct horse battery";
  type(good);
  EXPECT_FALSE(canAccept());
  press(Qt::Key_Tab);
  type("correct horse batterx");
  EXPECT_FALSE(canAccept());
  EXPECT_THAT(said(), HasSubstr("differ"));
  press(Qt::Key_Backspace);
  type("y");
  EXPECT_TRUE(canAccept());
  press(Qt::Key_Return);
  EXPECT_EQ(answer(), good);
}

TEST_F(QtPromptsTest, NoAnswerWithoutThePerson) {
  const std::function<void()> endings[] = {[] { press(Qt::Key_Escape); }, cancel,
                                           [this] { prompt.close(); }};
  for (const auto& end : endings) {
    ask([this] { return prompt.ask(request); });
    type("24681");
    end();
    EXPECT_EQ(answer(), std::nullopt);
  }
  ask([this] { return prompt.ask(request); });
  EXPECT_EQ(answer(), std::nullopt) << "the agent is about to quit";
}

TEST_F(QtPromptsTest, PresenceIsAskedForWithWhatItIsFor) {
  QtPresencePrompt presence(windows);
  std::optional<bool> goesOn;
  const auto window = presence.open({.reason = "Sign “x”",
                                     .medium = "LinkedIn Post",
                                     .instruction = "Touch the reader.",
                                     .needsConsent = true},
                                    [&](bool answer) { goesOn = answer; });
  window->setInstruction("Touch it again.");
  expectSaid({"Sign “x”", "Medium: LinkedIn Post", "Touch it again."});
  press(Qt::Key_Return);
  runUntil([&] { return goesOn.has_value(); });
  EXPECT_EQ(goesOn, true);
}

TEST_F(QtPromptsTest, AConfirmationBeginsWithWhatTheAgentProposes) {
  QtAlerts alerts(windows);
  const auto confirm = [&](const std::function<void()>& act) {
    std::optional<desktop::ConfirmationEntry> entry;
    const auto ticket = alerts.confirm({.question = {.title = "Sign this?",
                                                     .body = "The text & more",
                                                     .style = desktop::AlertStyle::informational,
                                                     .confirm = "Sign",
                                                     .cancel = "Cancel"},
                                        .choices = {"Letter", "Mail", "Post"},
                                        .selectedChoice = 1,
                                        .fieldPlaceholder = "To",
                                        .note = "A note."},
                                       [&](auto given) { entry = given; });
    expectSaid({"Sign this?", "The text & more", "A note."});
    act();
    return entry ? entry->choice + " to " + entry->field : "none";
  };
  EXPECT_EQ(confirm([] {
              type("Ada");
              press(Qt::Key_Return);
            }),
            "Mail to Ada");
  EXPECT_EQ(confirm(cancel), "none");
}

// Here because it needs the same toolkit.
TEST_F(QtPromptsTest, TheMenuOfTheShieldIsShownAsItIsDescribed) {
  using desktop::MenuItem;
  using desktop::Modifiers;
  std::vector<std::string> lines;
  const auto item = [&lines](MenuItem::Kind kind, const char* title, const char* key) {
    return MenuItem{.kind = kind,
                    .title = title,
                    .keyEquivalent = key,
                    .keyModifiers = Modifiers::command,
                    .action = [&lines] { lines.emplace_back("chosen:"); }};
  };
  MenuItem sign = item(MenuItem::Kind::action, "Sign Selected Text (Ctrl+Alt+Super+H)", "h");
  sign.keyModifiers = Modifiers::command | Modifiers::option | Modifiers::control;
  TrayStatusItem tray;
  tray.show({.symbol = "shield.fill",
             .symbolDescription = "Quill Seal",
             .title = " 🛡️ Quillseal",
             .items = {sign, item(MenuItem::Kind::separator, "", ""),
                       item(MenuItem::Kind::label, "Server: a", ""),
                       item(MenuItem::Kind::action, "Quit Quill Seal", "q")}});
  tray.setItemTitle(2, "Server: https://b.example/?x&y");

  const QMenu* menu = nullptr;
  for (const QWidget* widget : QApplication::allWidgets())
    if (const auto* found = qobject_cast<const QMenu*>(widget)) menu = found;
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions()) {
    action->trigger();
    const std::string shortcut =
        action->shortcut().toString(QKeySequence::PortableText).toStdString();
    lines.push_back(action->isSeparator() ? "---"
                                          : action->text().toStdString() + " [" + shortcut +
                                                (action->isEnabled() ? "]" : "] disabled"));
  }
  EXPECT_THAT(lines, ElementsAre("chosen:", "Sign Selected Text (Ctrl+Alt+Super+H) []", "---",
                                 "Server: https://b.example/?x&&y [] disabled",
                                 "chosen:", "Quit Quill Seal [Ctrl+Q]"));
}

}  // namespace
}  // namespace quillseal::linux
